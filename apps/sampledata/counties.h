#pragma once

#include "sampledata/sink.h"

namespace kv::sample {

/// Fills the table of the counties and parishes along the Gulf coast.
void WriteCounties(Sink& sink);

}  // namespace kv::sample
