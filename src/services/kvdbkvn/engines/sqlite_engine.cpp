#include "services/kvdbkvn/engines/sqlite_engine.h"

#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <deque>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>

#include "base/paths.h"
#include "base/text.h"
#include "frame/kvcom/exception.h"
#include "services/kvdbkvn/engines/column_types.h"
#include "services/kvdbkvn/engines/database_fault.h"
#include "services/kvdbkvn/engines/file_identity.h"
#include "services/kvdbkvn/engines/row_arena.h"
#include "services/kvdbkvn/engines/sqlite_functions.h"
#include "services/kvdbkvn/engines/statement_wait.h"

namespace kv::db {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefix = "sqlite:";
constexpr std::chrono::milliseconds kLongestLock{5000};
/// Steps of SQLite's machine after which it asks whether a statement is to go on: they take far
/// less than a millisecond.
constexpr int kStepsBetweenQuestions = 4000;
/// A list of distinct values is read from one page for each of them, and the two megabytes that are
/// usual do not hold those of a large table. With more than this, what is sorted at a stretch would
/// take too long for a person who cancels.
constexpr const char* kKeepPages = "pragma cache_size=-4096";
constexpr std::size_t kMostKept = 8;
constexpr std::size_t kLongestKept = 4096;

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;

struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

class SqliteSession final : public Session {
    using Clock = std::chrono::steady_clock;

public:
    /// One that is `frozen` is read as it stands, past its log and unguarded against who changes
    /// it.
    SqliteSession(Database database, std::string path, bool frozen)
        : database_(std::move(database)),
          path_(std::move(path)),
          identity_(IdentityOf(path_)),
          frozen_(frozen) {
        sqlite3_set_authorizer(database_.get(), &Authorize, this);
        sqlite3_progress_handler(database_.get(), kStepsBetweenQuestions, &IsToStop, this);
        AddSqliteFunctions(database_.get());
        Run("pragma case_sensitive_like=on");
        LookAtFile();
        sqlite3_busy_handler(database_.get(), &WaitForLock, this);
    }

    dialect::Target Target() const override { return dialect::Target::kSqlite; }
    bool HasOwnFunctions() const override { return true; }

    /// The open file lives on when its name is given to another, or taken away.
    /// Each statement has a new look at a file that is frozen.
    bool IsAlive() override { return !frozen_ && IdentityOf(path_) == identity_; }

    /// The last to close a file takes its log away, which another file of that name would suffer
    /// by.
    bool ClosesAtExit() const override { return true; }

    bool HasSchema(const std::string& name) override {
        return sqlite3_db_filename(database_.get(), name.c_str()) != nullptr;
    }

    void StatementBegins() override { columnsAreFresh_ = false; }

    /// Kept as long as the file's definitions are the same, whoever changes them.
    const dialect::Columns& ColumnsOf(const std::string& schema,
                                      const std::string& table) override {
        if (!columnsAreFresh_) ForgetOldColumns();
        columnsAreFresh_ = true;
        const std::string name = schema + "." + table;
        if (const auto known = columns_.find(name); known != columns_.end()) return known->second;
        const std::string sql = ColumnsQuery(Target(), schema, table);
        return columns_[name] = ColumnsIn(*Fetch(Prepare(sql).get(), sql), Target());
    }

    void LimitStatements(std::chrono::milliseconds limit) override { limit_ = limit; }

    void Check(const std::string& sql) override {
        const GuardScope guard(*this, Guard::kChecking);
        sqlite3_stmt* raw = nullptr;
        const int code = sqlite3_prepare_v2(database_.get(), sql.c_str(), -1, &raw, nullptr);
        const Statement statement(raw);
        if (code != SQLITE_OK && code != SQLITE_AUTH) Throw(sql);
    }

    std::unique_ptr<Rows> Query(const std::string& sql) override {
        const GuardScope guard(*this, Guard::kReading);
        Statement statement = TakePrepared(sql);
        if (!statement) statement = Prepare(sql);
        if (!sqlite3_stmt_readonly(statement.get()) || sqlite3_column_count(statement.get()) == 0)
            throw CKvException(kOnlyReads, sql);
        auto rows = Fetch(statement.get(), sql);
        Keep(sql, std::move(statement));
        return rows;
    }

    int Execute(const std::string& sql) override {
        const bool begins = !InTransaction();
        Run(begins ? "begin immediate" : "savepoint kv_statement");
        try {
            const int changed = Change(sql);
            if (!begins) Run("release kv_statement");
            return changed;
        } catch (const CKvException& failure) {
            if (!begins && !InTransaction())
                throw CKvException(failure.GetErrorMessage(false, false) +
                                       "; the earlier changes of this connection were undone, too",
                                   sql);
            TryRun(begins ? "rollback" : "rollback to kv_statement; release kv_statement");
            throw;
        }
    }

    void Commit() override {
        if (!InTransaction()) return;
        try {
            Run("commit");
        } catch (const CKvException& failure) {
            Rollback();
            throw CKvException(CommitFailure(failure.what()));
        }
    }
    bool Rollback() noexcept override {
        if (InTransaction()) TryRun("rollback");
        return !InTransaction();
    }

private:
    /// Whose statement is being prepared: the session's own, or a caller's. Some pragmas act as
    /// soon as they are.
    enum class Guard { kNone, kChecking, kReading, kChanging };

    class GuardScope {
    public:
        GuardScope(SqliteSession& session, Guard guard) : session_(session) {
            session_.guard_ = guard;
            session_.begun_ = Clock::now();
            session_.tooLong_ = false;
        }
        ~GuardScope() { session_.guard_ = Guard::kNone; }
        GuardScope(const GuardScope&) = delete;
        GuardScope& operator=(const GuardScope&) = delete;

    private:
        SqliteSession& session_;
    };

    void ForgetOldColumns() {
        if (!versionQuery_) versionQuery_ = Prepare("pragma schema_version");
        const std::string version = Fetch(versionQuery_.get(), {})->Cell(0, 0);
        sqlite3_reset(versionQuery_.get());
        if (version != columnsVersion_) columns_.clear();
        columnsVersion_ = version;
    }

    /// The file is first read here, so this is where one that is no database is found out. Who
    /// only connects does not wait for those who lock it.
    void LookAtFile() {
        try {
            Run("select 1 from sqlite_master limit 1");
            Run(kKeepPages);
        } catch (const CKvException&) {
            if (sqlite3_errcode(database_.get()) != SQLITE_BUSY) throw;
        }
    }

    /// What changes the session or its transaction counts as read-only to SQLite.
    static int Authorize(void* self, int action, const char* name, const char*, const char*,
                         const char*) {
        const Guard guard = static_cast<SqliteSession*>(self)->guard_;
        if (guard == Guard::kNone) return SQLITE_OK;
        if (action == SQLITE_TRANSACTION || action == SQLITE_SAVEPOINT) return SQLITE_DENY;
        if (guard == Guard::kChanging) return SQLITE_OK;
        if (action == SQLITE_ATTACH || action == SQLITE_DETACH) return SQLITE_DENY;
        if (action == SQLITE_PRAGMA && !DescribesOnly(name)) return SQLITE_DENY;
        return SQLITE_OK;
    }

    /// Only a caller's statement is stopped; what the session runs of its own ends soon.
    static int IsToStop(void* self) {
        auto& session = *static_cast<SqliteSession*>(self);
        if (session.guard_ == Guard::kNone) return 0;
        session.tooLong_ =
            session.limit_.count() > 0 && Clock::now() - session.begun_ > session.limit_;
        const bool isQuery = session.guard_ == Guard::kReading;
        return session.tooLong_ || (isQuery && StatementWait::IsOver());
    }

    /// Not 0 to try again what another process holds up, a query only for as long as somebody wants
    /// it.
    static int WaitForLock(void* self, int attempt) {
        auto& session = *static_cast<SqliteSession*>(self);
        if (attempt == 0) session.lockedSince_ = Clock::now();
        const auto limit = session.limit_.count() > 0 ? session.limit_ : kLongestLock;
        const auto waited = Clock::now() - session.lockedSince_;
        if (waited > std::min(limit, kLongestLock) || StatementWait::IsOver()) return 0;
        std::this_thread::sleep_for(std::chrono::milliseconds(std::min(attempt + 1, 25)));
        return 1;
    }

    static bool DescribesOnly(std::string_view pragma) {
        return pragma.ends_with("_info") || pragma.ends_with("_list");
    }

    bool InTransaction() const { return sqlite3_get_autocommit(database_.get()) == 0; }

    [[noreturn]] void Throw(const std::string& sql) const {
        const int code = sqlite3_errcode(database_.get());
        if (code == SQLITE_AUTH && guard_ == Guard::kReading) throw CKvException(kOnlyReads, sql);
        if (code == SQLITE_AUTH)
            throw CKvException("Refused: the connection itself begins and ends its transaction",
                               sql);
        if (code == SQLITE_INTERRUPT && tooLong_) throw CKvException(TimeLimitWords(limit_), sql);
        throw CKvException(sqlite3_errmsg(database_.get()), sql);
    }

    Statement Prepare(const std::string& sql) {
        const char* rest = nullptr;
        Statement statement = PrepareFirst(sql.c_str(), rest, sql);
        if (!statement) throw CKvException("The statement is empty", sql);
        if (HoldsMore(rest)) throw CKvException(kOneStatement, sql);
        return statement;
    }

    /// Dialogs ask the same again and again, and reading a statement takes longer than running it.
    Statement TakePrepared(const std::string& sql) {
        const auto found = std::ranges::find(prepared_, sql, &Prepared::sql);
        if (found == prepared_.end()) return nullptr;
        Statement statement = std::move(found->statement);
        prepared_.erase(found);
        return statement;
    }

    void Keep(const std::string& sql, Statement statement) {
        if (sql.size() > kLongestKept) return;
        // Without this it would hold its lock on the file.
        sqlite3_reset(statement.get());
        if (prepared_.size() == kMostKept) prepared_.pop_front();
        prepared_.push_back({sql, std::move(statement)});
    }

    Statement PrepareFirst(const char* text, const char*& rest, const std::string& sql) {
        FailWhereAsked("prepare");
        sqlite3_stmt* raw = nullptr;
        const int code = sqlite3_prepare_v2(database_.get(), text, -1, &raw, &rest);
        Statement statement(raw);
        if (code != SQLITE_OK) Throw(sql);
        return statement;
    }

    /// Whether the text holds anything but comments, blanks and semicolons.
    bool HoldsMore(const char* text) {
        while (*text) {
            sqlite3_stmt* raw = nullptr;
            const int code = sqlite3_prepare_v2(database_.get(), text, -1, &raw, &text);
            const Statement statement(raw);
            if (code != SQLITE_OK || statement) return true;
        }
        return false;
    }

    std::unique_ptr<Rows> Fetch(sqlite3_stmt* statement, const std::string& sql) {
        FailWhereAsked("step");
        int code = sqlite3_step(statement);
        // A statement that was kept learns only here that its tables have been changed.
        const int columns = sqlite3_column_count(statement);
        auto rows = std::make_unique<RowArena>(columns);
        for (; code == SQLITE_ROW; code = sqlite3_step(statement)) {
            for (int column = 0; column < columns; ++column) {
                const auto* text =
                    reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
                const int length = sqlite3_column_bytes(statement, column);
                if (text)
                    rows->Add({text, static_cast<std::size_t>(length)});
                else
                    rows->AddNull();
            }
        }
        if (code != SQLITE_DONE) Throw(sql);
        return rows;
    }

    int Change(const std::string& sql) {
        const GuardScope guard(*this, Guard::kChanging);
        const Statement statement = Prepare(sql);
        FailWhereAsked("step");
        const int before = sqlite3_total_changes(database_.get());
        int code = SQLITE_ROW;
        while (code == SQLITE_ROW)
            code = sqlite3_step(statement.get());
        if (code != SQLITE_DONE) Throw(sql);
        // A statement that changes no rows leaves the count of the one before.
        const bool changed = sqlite3_total_changes(database_.get()) != before;
        return changed ? sqlite3_changes(database_.get()) : 0;
    }

    void Run(const char* sql) {
        FailWhereAsked(sql);
        if (sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) Throw(sql);
    }
    void TryRun(const char* sql) noexcept {
        sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr);
    }

    struct Prepared {
        std::string sql;
        Statement statement;
    };

    Database database_;
    Statement versionQuery_;
    std::string columnsVersion_;
    bool columnsAreFresh_ = false;
    std::map<std::string, dialect::Columns> columns_;
    std::string path_;
    FileIdentity identity_;
    bool frozen_;
    Guard guard_ = Guard::kNone;
    /// None where it is 0.
    std::chrono::milliseconds limit_{0};
    /// When the caller's statement began, and whether it was stopped for taking too long.
    Clock::time_point begun_;
    bool tooLong_ = false;
    Clock::time_point lockedSince_;
    /// The one used last stands last.
    std::deque<Prepared> prepared_;
};

Database OpenFile(const std::string& name, int flags) {
    sqlite3* raw = nullptr;
    const int code = sqlite3_open_v2(name.c_str(), &raw, flags, nullptr);
    Database database(raw);
    if (code != SQLITE_OK) throw CKvException(sqlite3_errstr(code));
    return database;
}

/// Whether a file with a write-ahead log lies in a folder that is closed to us, and nobody has it
/// open: SQLite cannot make the files there that it would share with others.
bool IsFrozen(const std::string& path) {
    std::error_code ignored;
    const fs::path file = fs::canonical(path, ignored);
    if (access(file.parent_path().c_str(), W_OK) == 0) return false;
    if (fs::exists(file.string() + "-wal", ignored)) return false;
    // The mark in the head of the file.
    constexpr std::streamoff kMark = 18;
    constexpr int kHasLog = 2;
    std::ifstream head(file, std::ios::binary);
    return head.seekg(kMark) && head.get() == kHasLog;
}

/// The name by which such a file is read as it stands.
std::string FrozenName(const std::string& path) {
    std::string name = "file:";
    for (const char ch : path) {
        const bool isSign = ch == '%' || ch == '?' || ch == '#';
        name += isSign ? FormatText("%%%02X", static_cast<unsigned char>(ch)) : std::string(1, ch);
    }
    return name + "?immutable=1";
}

std::unique_ptr<Session> OpenPath(const std::string& path) {
    const char* whyNot = "";
    if (IdentityOf(path, &whyNot) == FileIdentity()) throw CKvException(whyNot);
    const bool frozen = IsFrozen(path);
    Database database = frozen ? OpenFile(FrozenName(path), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI)
                               : OpenFile(path, SQLITE_OPEN_READWRITE);
    return std::make_unique<SqliteSession>(std::move(database), path, frozen);
}

}  // namespace

std::unique_ptr<Session> OpenSqlite(const CKvDbInfo& info) {
    const std::string path = ToNative(info.GetServer().substr(kPrefix.size()));
    try {
        return OpenPath(path);
    } catch (const CKvException& failure) {
        throw CKvException("Cannot open the database file \"" + path + "\": " + failure.what());
    }
}

}  // namespace kv::db
