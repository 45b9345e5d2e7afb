#pragma once

#include <functional>
#include <string>

#include "kvdlg/records.h"
#include "kvdlg/screen.h"

namespace kvdlg {

/// The script of a run: its text, for the lines, and what it says.
struct Script {
    std::string text;
    Json json;
};

/// Runs the adaptor with the script in the place of the user. Throws BadScript for a script that
/// cannot be read. `mismatch` is called, and must not return, when script and windows do not fit.
void Play(const adaptors::Adaptor& adaptor, adaptors::Run& run, const Script& script,
          Records& records, const WindowClosed& closed,
          const std::function<void(const std::string&)>& mismatch);

}  // namespace kvdlg
