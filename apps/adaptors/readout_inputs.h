#pragma once

#include <string>
#include <vector>

#include "adaptors/adaptor.h"
#include "coordtools/event_mode.h"

/// What the readouts have in common as scripts see them.
namespace adaptors {

/// A host's mode while its readout is open.
inline constexpr KVEventMode kReading{1};

/// "projection" and "unit" of the map, behind which those of the position come.
std::vector<Input> ReadoutInputs(std::vector<Input> position);

/// DialogUpdateText, which takes a position and then projection and unit; ResetToDefault and Show.
std::vector<Method> ReadoutMethods(std::vector<Input> position);

}  // namespace adaptors
