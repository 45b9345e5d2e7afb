#pragma once

#include <stdexcept>
#include <string>

namespace kvdlg {

/// A script that cannot be read, with what was expected and where.
class BadScript : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

[[noreturn]] inline void Wrong(const std::string& where, const std::string& expected) {
    throw BadScript(where + ": expected " + expected);
}

}  // namespace kvdlg
