#pragma once

#include <string>
#include <string_view>

#include "base/export.h"

namespace kv::vertices {

/// Takes values off a row of text one behind the other, as the platform's scanning by a format
/// does: white space ahead of each is left out, and once a value is not found no further one is.
/// What is not found is 0 or empty.
class KVGUICTL_API RowScan {
public:
    explicit RowScan(std::string_view row) : m_rest(row) {}

    /// "%lf".
    double Double();
    /// "%f".
    float Float();
    /// "%d".
    int Int();
    /// "%c" behind a blank.
    char Char();
    /// "%s".
    std::string Token();
    /// Whether all that was asked for was found.
    bool Found() const { return !m_failed; }

private:
    std::string_view m_rest;
    bool m_failed = false;
};

}  // namespace kv::vertices
