#pragma once

#include <vector>

#include "sampledata/blocks.h"
#include "sampledata/sink.h"
#include "sampledata/wells.h"

namespace kv::sample {

/// Fills the tables of pipeline segments and of their vertices. Each segment runs from a platform
/// to one that is nearer to the coast, or ashore.
void WritePipelines(const std::vector<Block>& blocks, const std::vector<Site>& platforms,
                    Sink& sink);

}  // namespace kv::sample
