#pragma once

#include <string>

#include "adaptors/adaptor.h"

namespace kvdlg {

/// Finds a value by its name in the outcome of a run, "result", or "messages". Names and places in
/// lists are joined by points: "bounds.0". Throws BadUse that shows the outcome, so that it is
/// not lost.
const adaptors::Json& ValueOf(const adaptors::Json& outcome, const std::string& key);

/// The value for a shell: a text by itself, with all its bytes, all else as JSON; of a list each
/// item so. `end` stands behind each.
std::string Bare(const adaptors::Json& value, char end);

}  // namespace kvdlg
