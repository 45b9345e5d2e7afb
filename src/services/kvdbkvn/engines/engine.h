#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "base/export.h"
#include "services/kvdbkvn/dialect/context.h"

/// The engines below `CKvDbAbsDataMgr`: a small class over each client library.
namespace kv::db {

/// What a text that does more than read is refused with, when it comes where only a query may.
inline constexpr const char* kOnlyReads =
    "Refused: only a statement that reads may be run here, and this one does more";
/// What a text is refused with where engines differ in whether it reads.
inline constexpr const char* kDoubtfulEnd =
    "Refused: it cannot be told where a text in this statement ends";
/// What a text that holds several statements is refused with.
inline constexpr const char* kOneStatement = "Refused: the text holds more than one statement";

/// Rows of a query: cells as the engine's own text, null as "".
class KVGUICTL_API Rows {
public:
    virtual ~Rows() = default;
    virtual int Count() const = 0;
    virtual int Columns() const = 0;
    /// Both indices in range. Valid as long as the object.
    virtual const char* Cell(int row, int column) const = 0;
};

/// One open session. Every operation throws CKvException with the engine's own words; none of these
/// ever holds the password.
class Session {
public:
    virtual ~Session() = default;
    virtual dialect::Target Target() const = 0;
    /// Whether statements may call the functions `lesort`, `kv_number` and `kv_to_date`.
    virtual bool HasOwnFunctions() const = 0;
    /// False once the server is known to be gone, or the file replaced: the session is then not
    /// used again.
    virtual bool IsAlive() = 0;
    /// Of a session that a failure showed to be gone: whether that was found out ahead of the
    /// caller's statement, which therefore has not run.
    virtual bool WasGoneAhead() const { return false; }
    /// Whether it is closed when the process ends. Client libraries that were loaded may have shut
    /// down by then, and their servers notice by themselves.
    virtual bool ClosesAtExit() const { return false; }
    /// Whether there is a schema of that name, whatever the case of its letters.
    virtual bool HasSchema(const std::string& name) = 0;

    /// Ahead of what `ColumnsOf` is asked about one statement.
    virtual void StatementBegins() {}
    /// The columns of a table, in their order; the schema may be empty. None where there is no such
    /// table.
    virtual const dialect::Columns& ColumnsOf(const std::string& schema,
                                              const std::string& table) = 0;

    /// No statement may run longer from now on.
    virtual void LimitStatements(std::chrono::milliseconds limit) = 0;

    /// Throws what the engine has to say against a text that it cannot read; runs nothing. Returns
    /// when the engine can read the text, or cannot be asked.
    virtual void Check(const std::string& sql) = 0;
    /// Runs one statement that reads; refuses any other, whatever `sql` claims to be. Sees what
    /// the open transaction has changed. Where the engine can, it asks `StatementWait::IsOver`
    /// again and again, and fails when it is.
    virtual std::unique_ptr<Rows> Query(const std::string& sql) = 0;
    /// Runs one statement inside the session's open transaction, which it begins if there is none.
    /// A failure undoes that statement alone. Returns the number of rows changed.
    virtual int Execute(const std::string& sql) = 0;
    /// Ends the open transaction, if there is one. A failure undoes it; the words then say so, or
    /// that nobody can know.
    virtual void Commit() = 0;
    /// The same by undoing it. False when a transaction may still be open: the session is then not
    /// used again.
    virtual bool Rollback() noexcept = 0;
};

/// What a statement that took longer than it may has to say.
inline std::string TimeLimitWords(std::chrono::milliseconds limit) {
    return "The statement was stopped: it took longer than the time limit of the connection, " +
           std::to_string(limit.count()) + " ms";
}

/// The words of a commit that failed with `reason`.
inline std::string CommitFailure(const std::string& reason) {
    return "The changes could not be committed, and are undone: " + reason;
}
/// The same where the server went away before it had answered.
inline std::string CommitUnanswered(const std::string& reason) {
    return "Whether the changes were committed is not known, since the connection was lost: " +
           reason;
}

}  // namespace kv::db
