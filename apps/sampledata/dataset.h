#pragma once

#include <functional>
#include <string>

#include "sampledata/sink.h"

namespace kv::sample {

/// Makes the whole dataset, table by table. `progress` hears a line before each step.
///
/// It is the same every time: all that is made up comes from `Random` with fixed seeds, all
/// arithmetic behind the projections is in whole numbers.
void WriteDataset(Sink& sink, const std::function<void(const std::string&)>& progress,
                  int scale = 1);

}  // namespace kv::sample
