#pragma once

#include <exception>
#include <string>

#include "base/export.h"

/// A failure of the database, thrown by value by `CKvDbAbsDataMgr`. Its callers show or log
/// `GetErrorMessage(true, true)` and go on.
class KVGUICTL_API CKvException : public std::exception {
public:
    /// `message` is the engine's or the library's own account of what failed, fit to be shown to a
    /// user; `statement` the SQL text it failed on, or empty.
    explicit CKvException(std::string message, std::string statement = {});

    /// The words to show. `withStatement` adds the SQL text, if there is one, on lines of its own;
    /// `withSource` puts "Database error: " ahead. Passwords never stand in it.
    std::string GetErrorMessage(bool withSource, bool withStatement) const;

    /// The message alone.
    const char* what() const noexcept override { return m_sMessage.c_str(); }

private:
    std::string m_sMessage;
    std::string m_sStatement;
};
