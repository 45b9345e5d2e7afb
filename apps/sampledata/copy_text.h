#pragma once

#include <string>

#include "sampledata/sink.h"

namespace kv::sample {

/// Appends a row as PostgreSQL's COPY reads it in its text format.
void AppendCopyLine(std::string& lines, const Row& row);

}  // namespace kv::sample
