#pragma once

/// What a host's mouse does on its map. The host has the modes, and declares them as an enumeration
/// of this name and type.
enum KVEventMode : int;

namespace kv::coordtools {

/// The mode, of all hosts, that a readout leaves behind when it is closed.
inline constexpr int kModeAfterReadout = 3;

}  // namespace kv::coordtools
