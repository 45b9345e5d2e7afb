#pragma once

#include <vector>

#include "sampledata/blocks.h"
#include "sampledata/sink.h"

namespace kv::sample {

/// Fills the tables of pipeline segments and of their vertices.
void WritePipelines(const std::vector<Block>& blocks, Sink& sink);

}  // namespace kv::sample
