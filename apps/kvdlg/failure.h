#pragma once

#include <stdexcept>

namespace kvdlg {

/// Exit codes of the program.
enum ExitCode { kDone = 0, kCancelled = 1, kWrongUse = 2, kDataFailure = 3 };

/// A file that cannot be read or written, with its name in the words.
class FileFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Something is asked for that cannot be had here.
class BadUse : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace kvdlg
