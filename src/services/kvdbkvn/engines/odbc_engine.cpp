#include <sql.h>
#include <sqlext.h>

#include <array>
#include <chrono>
#include <map>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "base/text.h"
#include "frame/kvdbkvn/sql_literal.h"
#include "services/kvdbkvn/engines/bordered_session.h"
#include "services/kvdbkvn/engines/column_types.h"
#include "services/kvdbkvn/engines/engine_module.h"
#include "services/kvdbkvn/engines/file_identity.h"
#include "services/kvdbkvn/engines/postgres_statements.h"
#include "services/kvdbkvn/engines/row_arena.h"
#include "services/kvdbkvn/engines/statement_words.h"

namespace kv::db {
namespace {

constexpr std::string_view kPrefix = "odbc:";
constexpr SQLULEN kLoginSeconds = 10;

template <SQLSMALLINT kType>
class Handle {
public:
    Handle() = default;
    explicit Handle(SQLHANDLE parent) { SQLAllocHandle(kType, parent, &handle_); }
    Handle(Handle&& other) noexcept : handle_(std::exchange(other.handle_, SQL_NULL_HANDLE)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~Handle() {
        if (handle_ != SQL_NULL_HANDLE) SQLFreeHandle(kType, handle_);
    }
    SQLHANDLE get() const { return handle_; }

private:
    SQLHANDLE handle_ = SQL_NULL_HANDLE;
};

using Environment = Handle<SQL_HANDLE_ENV>;
using ConnectionHandle = Handle<SQL_HANDLE_DBC>;
using Statement = Handle<SQL_HANDLE_STMT>;

SQLCHAR* Text(const std::string& text) {
    return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text.c_str()));
}

/// What a call failed on: the driver's words, without the names in brackets ahead of them, and the
/// class of the failure.
struct Diagnosis {
    std::string words;
    std::string state;

    bool ConnectionLost() const {
        // 57P is what a PostgreSQL server says when it is shut down.
        return state.starts_with("08") || state.starts_with("57P");
    }
    /// A change was refused by the guard around a query: a PostgreSQL server's read-only
    /// transaction, SQLite's `query_only`.
    bool WritesInReading() const {
        return state == "25006" || words.find("readonly database") != std::string::npos;
    }
};

std::string WithoutSource(std::string words) {
    while (words.starts_with('[') && words.find(']') != std::string::npos)
        words.erase(0, words.find(']') + 1);
    return TrimSpace(words);
}

Diagnosis Diagnose(SQLSMALLINT type, SQLHANDLE handle) {
    std::array<SQLCHAR, 6> state{};
    std::array<SQLCHAR, 2048> words{};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    const SQLRETURN code = SQLGetDiagRec(type, handle, 1, state.data(), &native, words.data(),
                                         static_cast<SQLSMALLINT>(words.size()), &length);
    if (!SQL_SUCCEEDED(code)) return {"The ODBC driver gave no reason", ""};
    return {WithoutSource(reinterpret_cast<const char*>(words.data())),
            reinterpret_cast<const char*>(state.data())};
}

/// An open connection. Its environment outlives it.
class Connection {
public:
    Connection() : environment_(SQL_NULL_HANDLE) {
        SQLSetEnvAttr(environment_.get(), SQL_ATTR_ODBC_VERSION,
                      reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
        handle_ = ConnectionHandle(environment_.get());
        SQLSetConnectAttr(handle_.get(), SQL_ATTR_LOGIN_TIMEOUT,
                          reinterpret_cast<SQLPOINTER>(kLoginSeconds), 0);
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    /// Drivers do not disconnect from within a transaction.
    ~Connection() {
        if (!open_) return;
        SQLEndTran(SQL_HANDLE_DBC, handle_.get(), SQL_ROLLBACK);
        SQLDisconnect(handle_.get());
    }

    bool Open(const std::string& connectionString, std::string& failure) {
        const SQLRETURN code = SQLDriverConnect(handle_.get(), nullptr, Text(connectionString),
                                                SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
        open_ = SQL_SUCCEEDED(code);
        if (!open_)
            failure =
                "Cannot connect through ODBC: " + Diagnose(SQL_HANDLE_DBC, handle_.get()).words;
        return open_;
    }

    /// Name of the database product.
    std::string Product() const {
        std::array<char, 128> name{};
        SQLGetInfo(handle_.get(), SQL_DBMS_NAME, name.data(), static_cast<SQLSMALLINT>(name.size()),
                   nullptr);
        return name.data();
    }

    SQLHANDLE get() const { return handle_.get(); }

private:
    Environment environment_;
    ConnectionHandle handle_;
    bool open_ = false;
};

dialect::Target TargetOf(std::string_view product) {
    if (StartsWithNoCase(product, "SQLite")) return dialect::Target::kSqlite;
    if (StartsWithNoCase(product, "PostgreSQL")) return dialect::Target::kPostgres;
    return dialect::Target::kOracle;
}

Quoting QuotingOf(std::string_view product) {
    if (StartsWithNoCase(product, "SQLite")) return Quoting::kSqlite;
    const bool standard =
        StartsWithNoCase(product, "PostgreSQL") || StartsWithNoCase(product, "Oracle");
    return standard ? Quoting::kStandard : Quoting::kUnknown;
}

class OdbcSession final {
public:
    explicit OdbcSession(std::unique_ptr<Connection> connection)
        : connection_(std::move(connection)),
          target_(TargetOf(connection_->Product())),
          quoting_(QuotingOf(connection_->Product())) {}

    /// Settles what the statements rely on.
    bool SetUp(std::string& failure) {
        SQLSetConnectAttr(connection_->get(), SQL_ATTR_AUTOCOMMIT,
                          reinterpret_cast<SQLPOINTER>(SQL_AUTOCOMMIT_OFF), SQL_IS_UINTEGER);
        if (target_ == dialect::Target::kSqlite && !SetUpSqlite(failure)) return false;
        if (target_ == dialect::Target::kPostgres && !SetUpPostgres(failure)) return false;
        return EndTransaction(SQL_COMMIT, failure);
    }

    dialect::Target Target() const { return target_; }

    /// None is stopped over ODBC.
    void StopQueryWhen(ModuleSession::IsOver*) {}

    bool IsAlive() {
        SQLUINTEGER dead = SQL_CD_FALSE;
        SQLGetConnectAttr(connection_->get(), SQL_ATTR_CONNECTION_DEAD, &dead, 0, nullptr);
        return !lost_ && dead != SQL_CD_TRUE && (file_.empty() || IdentityOf(file_) == identity_);
    }
    bool WasGoneAhead() const { return !sent_; }

    /// Drivers take whole seconds.
    bool LimitStatements(std::chrono::milliseconds limit, std::string&) {
        limit_ = static_cast<SQLULEN>(std::chrono::ceil<std::chrono::seconds>(limit).count());
        return true;
    }

    bool HasSchema(const std::string& name) {
        switch (target_) {
            case dialect::Target::kSqlite:
                return EqualsNoCase(name, "main") || EqualsNoCase(name, "temp");
            case dialect::Target::kPostgres:
                return HasPostgresSchema(ToLower(name));
            case dialect::Target::kOracle:
                break;
        }
        return true;
    }

    const dialect::Columns* ColumnsOf(const std::string& schema, const std::string& table,
                                      std::string& failure) {
        const std::string name = schema + "." + table;
        if (const auto known = columns_.find(name); known != columns_.end()) return &known->second;
        sent_ = false;
        const auto rows = Fetch(ColumnsQuery(target_, schema, table), failure);
        std::string ignored;
        if (!inTransaction_) EndTransaction(SQL_ROLLBACK, ignored);
        return rows ? &(columns_[name] = ColumnsIn(*rows, target_)) : nullptr;
    }

    bool Check(const std::string& sql, std::string& failure) {
        if (HoldsTwoStatements(sql)) return true;
        if (!BeginReading(failure)) return false;
        const bool prepared = Prepare(sql, failure);
        return EndReading(failure) && prepared;
    }

    std::unique_ptr<Rows> Query(const std::string& sql, std::string& failure) {
        const Reading reading = ReadingOf(sql, quoting_);
        if (reading != Reading::kReads) {
            failure = reading == Reading::kDoubtful ? kDoubtfulEnd : kOnlyReads;
            return nullptr;
        }
        sent_ = false;
        if (!BeginReading(failure)) return nullptr;
        sent_ = true;
        auto rows = Fetch(sql, failure);
        if (!rows) columns_.clear();
        if (!EndReading(failure)) return nullptr;
        return rows;
    }

    int Execute(const std::string& sql, std::string& failure) {
        if (HoldsTwoStatements(sql)) {
            failure = kOneStatement;
            return -1;
        }
        if (MayDefine(sql)) columns_.clear();
        const bool begins = !inTransaction_;
        // Ahead of the first change, too: where the server is gone it shows here.
        sent_ = false;
        if (HasSavepoints() && !Run("savepoint kv_statement", failure)) return -1;
        sent_ = true;
        const int changed = Change(sql, failure);
        if (changed < 0) {
            columns_.clear();
            UndoStatement(begins, failure);
            return -1;
        }
        inTransaction_ = true;
        if (HasSavepoints() && !Run("release savepoint kv_statement", failure)) return -1;
        return changed;
    }

    bool Commit(std::string& failure) {
        if (!inTransaction_) return true;
        sent_ = true;
        std::string reason;
        if (EndTransaction(SQL_COMMIT, reason)) {
            UndoAndUnlock();
            return true;
        }
        failure = serverLost_ ? CommitUnanswered(reason) : CommitFailure(reason);
        return false;
    }
    bool Rollback() {
        std::string ignored;
        const bool mayHoldLocks = inTransaction_;
        if (EndTransaction(SQL_ROLLBACK, ignored) && mayHoldLocks) UndoAndUnlock();
        return !lost_;
    }

private:
    /// The others undo a statement that failed by themselves.
    bool HasSavepoints() const { return target_ != dialect::Target::kOracle; }

    bool SetUpPostgres(std::string& failure) {
        return Run(kPostgresSearchPath, failure) && Run(kPostgresPlainBackslashes, failure);
    }

    /// None of this looks into the file, which others may have locked.
    bool SetUpSqlite(std::string& failure) {
        if (!Run("pragma case_sensitive_like=on", failure) ||
            !Run("pragma busy_timeout=5000", failure))
            return false;
        const auto rows = Fetch("pragma database_list", failure);
        if (!rows) return false;
        constexpr int kFile = 2;
        if (rows->Count() > 0) file_ = rows->Cell(0, kFile);
        identity_ = IdentityOf(file_);
        return true;
    }

    bool BeginReading(std::string& failure) {
        reading_ = OpenForReading(failure);
        return reading_;
    }

    bool OpenForReading(std::string& failure) {
        if (target_ == dialect::Target::kSqlite) return Run("pragma query_only=on", failure);
        if (target_ == dialect::Target::kOracle) return true;
        if (inTransaction_ && !Run("savepoint kv_read", failure)) return false;
        return Run("set transaction read only", failure);
    }

    /// False when what was changed before the query is lost with the transaction. Without such
    /// changes the rows hold whatever becomes of the session.
    bool EndReading(std::string& failure) {
        std::string reason;
        reading_ = false;
        if (target_ == dialect::Target::kSqlite && !Run("pragma query_only=off", reason))
            lost_ = true;
        if (!inTransaction_) {
            if (!failure.empty()) EndTransaction(SQL_ROLLBACK, reason);
            UndoAndUnlock();
            return true;
        }
        if (target_ != dialect::Target::kPostgres || UndoTo("kv_read", reason)) return true;
        AbandonTransaction(failure.empty() ? reason : failure, failure);
        return false;
    }

    void UndoStatement(bool began, std::string& failure) {
        std::string ignored;
        if (began)
            EndTransaction(SQL_ROLLBACK, ignored);
        else if (HasSavepoints() && !UndoTo("kv_statement", ignored))
            AbandonTransaction(std::string(failure), failure);
    }

    bool UndoTo(const std::string& savepoint, std::string& failure) {
        return Run("rollback to savepoint " + savepoint, failure) &&
               Run("release savepoint " + savepoint, failure);
    }

    void AbandonTransaction(const std::string& reason, std::string& failure) {
        std::string ignored;
        EndTransaction(SQL_ROLLBACK, ignored);
        failure = reason + "; the earlier changes of this connection were undone, too";
    }

    /// Where it fails the session is given up: a driver may take the transaction for ended which
    /// the database still holds open.
    bool EndTransaction(SQLSMALLINT how, std::string& failure) {
        inTransaction_ = false;
        if (SQL_SUCCEEDED(SQLEndTran(SQL_HANDLE_DBC, connection_->get(), how))) return true;
        failure = Note(Diagnose(SQL_HANDLE_DBC, connection_->get()));
        lost_ = true;
        return false;
    }

    /// Undoes what is open, and gives up the locks that a function in a query took for the session:
    /// unlike its other locks they outlast the transaction.
    void UndoAndUnlock() {
        std::string ignored;
        try {
            if (target_ == dialect::Target::kPostgres && !Run(kPostgresGiveUpLocks, ignored))
                lost_ = true;
            EndTransaction(SQL_ROLLBACK, ignored);
        } catch (const std::bad_alloc&) {
            // What came ahead, a commit perhaps, has ended well.
            lost_ = true;
        }
    }

    bool HasPostgresSchema(const std::string& name) {
        if (const auto known = schemas_.find(name); known != schemas_.end()) return known->second;
        std::string ignored;
        sent_ = false;
        const auto rows =
            Fetch("select 1 from pg_namespace where nspname = " + SqlLiteral(name), ignored);
        if (!inTransaction_) EndTransaction(SQL_ROLLBACK, ignored);
        return rows && (schemas_[name] = rows->Count() > 0);
    }

    bool Run(const std::string& sql, std::string& failure) { return Change(sql, failure) >= 0; }

    int Change(const std::string& sql, std::string& failure) {
        const Statement statement(connection_->get());
        if (!Send(statement, sql, failure)) return -1;
        SQLLEN rows = 0;
        const bool changes = ColumnsOf(statement) == 0;
        if (changes) SQLRowCount(statement.get(), &rows);
        return rows > 0 ? static_cast<int>(rows) : 0;
    }

    std::unique_ptr<Rows> Fetch(const std::string& sql, std::string& failure) {
        const Statement statement(connection_->get());
        if (!Send(statement, sql, failure)) return nullptr;
        const SQLSMALLINT columns = ColumnsOf(statement);
        if (columns == 0) {
            failure = kOnlyReads;
            return nullptr;
        }
        auto rows = std::make_unique<RowArena>(columns);
        SQLRETURN code = SQLFetch(statement.get());
        for (; SQL_SUCCEEDED(code); code = SQLFetch(statement.get()))
            for (SQLSMALLINT column = 1; column <= columns; ++column)
                if (!FetchCell(statement, column, *rows, failure)) return nullptr;
        if (code != SQL_NO_DATA) {
            failure = Note(Diagnose(SQL_HANDLE_STMT, statement.get()));
            return nullptr;
        }
        return rows;
    }

    /// Cells that are longer than the buffer come in pieces, each but the last filling it to the
    /// zero at its end.
    bool FetchCell(const Statement& statement, SQLSMALLINT column, RowArena& rows,
                   std::string& failure) {
        std::array<char, 4096> piece{};
        SQLLEN length = 0;
        const auto next = [&] {
            return SQLGetData(statement.get(), static_cast<SQLUSMALLINT>(column), SQL_C_CHAR,
                              piece.data(), static_cast<SQLLEN>(piece.size()), &length);
        };
        SQLRETURN code = next();
        if (SQL_SUCCEEDED(code) && length == SQL_NULL_DATA) {
            rows.AddNull();
            return true;
        }
        rows.BeginCell();
        for (; SQL_SUCCEEDED(code); code = next()) {
            const auto most = static_cast<SQLLEN>(piece.size()) - 1;
            const bool more = length == SQL_NO_TOTAL || length > most;
            rows.AddPiece({piece.data(), static_cast<std::size_t>(more ? most : length)});
            if (!more) break;
        }
        rows.EndCell();
        if (SQL_SUCCEEDED(code) || code == SQL_NO_DATA) return true;
        failure = Note(Diagnose(SQL_HANDLE_STMT, statement.get()));
        return false;
    }

    static SQLSMALLINT ColumnsOf(const Statement& statement) {
        SQLSMALLINT columns = 0;
        SQLNumResultCols(statement.get(), &columns);
        return columns;
    }

    /// Some drivers do not send the text before they are asked what it gives.
    bool Prepare(const std::string& sql, std::string& failure) {
        const Statement statement(connection_->get());
        SQLSMALLINT columns = 0;
        if (SQL_SUCCEEDED(SQLPrepare(statement.get(), Text(sql), SQL_NTS)) &&
            SQL_SUCCEEDED(SQLNumResultCols(statement.get(), &columns)))
            return true;
        failure = Note(Diagnose(SQL_HANDLE_STMT, statement.get()));
        return false;
    }

    bool Send(const Statement& statement, const std::string& sql, std::string& failure) {
        // A driver that knows no limit runs it without.
        if (limit_ > 0)
            SQLSetStmtAttr(statement.get(), SQL_ATTR_QUERY_TIMEOUT,
                           reinterpret_cast<SQLPOINTER>(limit_), SQL_IS_UINTEGER);
        const SQLRETURN code = SQLExecDirect(statement.get(), Text(sql), SQL_NTS);
        if (SQL_SUCCEEDED(code) || code == SQL_NO_DATA) return true;
        failure = Note(Diagnose(SQL_HANDLE_STMT, statement.get()));
        return false;
    }

    /// Remembers that the connection is lost, if that is what the diagnosis says.
    std::string Note(const Diagnosis& diagnosis) {
        if (diagnosis.ConnectionLost()) lost_ = serverLost_ = true;
        return reading_ && diagnosis.WritesInReading() ? kOnlyReads + (": " + diagnosis.words)
                                                       : diagnosis.words;
    }

    std::unique_ptr<Connection> connection_;
    dialect::Target target_;
    Quoting quoting_;
    bool inTransaction_ = false;
    /// Whether a query is being run, in the guard around it.
    bool reading_ = false;
    bool lost_ = false;
    bool serverLost_ = false;
    /// Whether the caller's statement that came last was sent, or the commit behind it. False while
    /// the server is asked what must be known to translate one.
    bool sent_ = false;
    /// Of SQLite; empty for one in memory, and for other databases.
    std::string file_;
    FileIdentity identity_;
    /// Of a statement, in seconds; 0 for none.
    SQLULEN limit_ = 0;
    std::map<std::string, bool> schemas_;
    /// By schema and table; kept until a statement defines something or fails.
    std::map<std::string, dialect::Columns> columns_;
};

/// Braces keep the signs that mean something between keywords. Only where there are any: some
/// drivers take braces around a user's name for a part of it.
std::string Quoted(const std::string& value) {
    if (value.find_first_of(" []{}(),;?*=!@") == std::string::npos) return value;
    return "{" + ReplaceAll(value, "}", "}}") + "}";
}

/// The SQLite driver waits for minutes while others lock the file, on connecting, too; with this it
/// leaves the waiting to SQLite. The first of two equal keywords counts: another time may be asked
/// for.
constexpr const char* kOwnWaits = ";Timeout=1";

/// The first of two equal keywords counts, so the record's user and password go ahead.
std::string ConnectionString(const CKvDbInfo& info) {
    const std::string rest = info.GetServer().substr(kPrefix.size());
    std::string text;
    if (!info.GetUser().empty()) text += "UID=" + Quoted(info.GetUser()) + ";";
    if (!info.GetPassword().empty()) text += "PWD=" + Quoted(info.GetPassword()) + ";";
    text += rest.find('=') == std::string::npos ? "DSN=" + rest : rest;
    // Without it that driver makes an empty database of a mistyped name.
    if (ToLower(rest).find("driver=sqlite") != std::string::npos)
        text += std::string(";NoCreat=1") + kOwnWaits;
    return text;
}

/// The PostgreSQL driver undoes the whole transaction on some failures and adds savepoints of its
/// own; with this it leaves both to the session.
constexpr const char* kPlainPostgres = "Protocol=7.4-0;";

/// A connection of the kind that the product behind it needs; null, with the reason, when there is
/// none. What the product is, only a connection tells.
std::unique_ptr<Connection> Connect(const CKvDbInfo& info, std::string& failure) {
    std::string text = ConnectionString(info);
    auto connection = std::make_unique<Connection>();
    if (!connection->Open(text, failure)) return nullptr;
    switch (TargetOf(connection->Product())) {
        case dialect::Target::kPostgres:
            text = kPlainPostgres + text;
            break;
        case dialect::Target::kSqlite:
            text += kOwnWaits;
            break;
        case dialect::Target::kOracle:
            return connection;
    }
    connection = std::make_unique<Connection>();
    return connection->Open(text, failure) ? std::move(connection) : nullptr;
}

}  // namespace
}  // namespace kv::db

extern "C" KVGUICTL_API kv::db::ModuleSession* KVGuiCtlOpenSession(const CKvDbInfo& info,
                                                                   std::string& failure) {
    auto connection = kv::db::Connect(info, failure);
    if (!connection) return nullptr;
    auto session = std::make_unique<kv::db::OdbcSession>(std::move(connection));
    if (!session->SetUp(failure)) return nullptr;
    return new kv::db::BorderedSession(std::move(session));
}
