#pragma once

#include "sampledata/sink.h"

namespace kv::sample {

/// Fills the table of projection zones, which hold for any dataset.
void WriteZones(Sink& sink);

}  // namespace kv::sample
