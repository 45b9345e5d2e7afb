#pragma once

#include <string>

#include "adaptors/adaptor.h"

namespace recording {

/// Runs a dialog, and writes what a person does in its windows to a file as a script: ahead of each
/// deed, so that it stands there also where that ends the program. The path is the machine's own.
/// False when the file could not be written; where that shows at once, the dialog does not run.
bool RunRecorded(const adaptors::Adaptor& adaptor, adaptors::Run& run, const std::string& path);

}  // namespace recording
