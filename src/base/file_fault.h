#pragma once

#include <functional>

#include "base/export.h"

namespace kv {

/// Asked ahead of each call by which `base` opens, reads, writes, closes, renames, removes or lists
/// a file, or makes or changes to a folder; where it answers true, that call fails as on a broken
/// disk. Looking whether something is there is no such call.
using FileFault = std::function<bool()>;

/// For tests of what becomes of a failure. Null, as at the start, lets nothing fail. Returns the
/// one there was.
KVGUICTL_API FileFault SetFileFault(FileFault fault);

/// Whether the call that comes next is to fail; `errno` then tells why.
bool FileCallFails();

}  // namespace kv
