#include "kvload/store_sqlite.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "sampledata/sqlite_file.h"

namespace kvload {
namespace {

namespace fs = std::filesystem;
using kv::sample::Row;
using kv::sample::Table;

constexpr int kPatience = 5'000;  // milliseconds

struct Close {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Close>;

/// Waits until a file, or which names a folder has, is on the disk. 0, or the machine's code of the
/// failure.
int Sync(const fs::path& path) {
    const int opened = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (opened < 0) return errno;
    const int code = fsync(opened) == 0 ? 0 : errno;
    close(opened);
    return code;
}

std::string ReasonOf(int code) {
    return std::generic_category().message(code);
}

class SqliteStore final : public Store {
public:
    /// A database that is not there is filled beside its place, which it takes at the commit.
    SqliteStore(fs::path target, Purpose purpose)
        : Store(""), target_(std::move(target)), isNew_(!fs::exists(target_)) {
        if (isNew_ && purpose == Purpose::kCheck)
            throw std::runtime_error("There is no database " + target_.string());
        file_ = isNew_ ? fs::path(target_.string() + "." + std::to_string(getpid()) + ".part")
                       : target_;
        sqlite3* opened = nullptr;
        // A file that may only be read is opened so; all others leave nothing beside them.
        const int code =
            sqlite3_open_v2(file_.c_str(), &opened,
                            SQLITE_OPEN_READWRITE | (isNew_ ? SQLITE_OPEN_CREATE : 0), nullptr);
        database_.reset(opened);
        Check(code);
        sqlite3_busy_timeout(opened, kPatience);
        // What is made anew and breaks off is thrown away whole.
        if (isNew_) Run("pragma journal_mode = off; pragma synchronous = off");
        Run(purpose == Purpose::kCheck ? "pragma query_only = on; begin" : "begin immediate");
        // Tells a file that is no database, which opening does not.
        Query("select count(*) from sqlite_master");
    }

    ~SqliteStore() override {
        insert_.reset();
        database_.reset();
        if (!isNew_) return;
        std::error_code ignored;
        fs::remove(file_, ignored);
        kv::sample::RemoveWhatLiesBeside(file_);
    }

    std::vector<Row> Query(const std::string& sql) override {
        const Statement statement = Prepare(sql);
        std::vector<Row> rows;
        int code;
        while ((code = sqlite3_step(statement.get())) == SQLITE_ROW) {
            Row& row = rows.emplace_back();
            for (int i = 0; i < sqlite3_column_count(statement.get()); ++i) {
                const auto* text =
                    reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), i));
                row.emplace_back(text ? text : "");
            }
        }
        if (code != SQLITE_DONE) Check(code);
        return rows;
    }

    void Run(const std::string& sql) override {
        Check(sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr));
    }

    bool Has(const Table& table) override {
        return !Query(std::string("select 1 from sqlite_master where name = '") + table.name + "'")
                    .empty();
    }

    void Create(const Table& table) override {
        Run(kv::sample::CreateTable(table, Owner(), kv::sample::SqliteType));
    }

    void Add(const Row& row) override {
        for (size_t i = 0; i < row.size(); ++i) {
            const int at = static_cast<int>(i) + 1;
            Check(row[i].empty()
                      ? sqlite3_bind_null(insert_.get(), at)
                      : sqlite3_bind_text(insert_.get(), at, row[i].data(),
                                          static_cast<int>(row[i].size()), SQLITE_STATIC));
        }
        const int code = sqlite3_step(insert_.get());
        if (code != SQLITE_DONE) Check(code);
        Check(sqlite3_reset(insert_.get()));
    }

    void Commit() override {
        Run("analyze");
        Run("commit");
        if (!isNew_) return;
        // Who reads it then holds up nobody who writes.
        if (Query("pragma journal_mode = wal") != std::vector<Row>{{"wal"}})
            throw std::runtime_error("The database cannot have a write-ahead log");
        if (sqlite3_close(database_.release()) != SQLITE_OK)
            throw std::runtime_error("The database does not close");
        if (fs::exists(target_))
            throw std::runtime_error(target_.string() + " has been made by someone else meanwhile");
        if (const int code = Sync(file_))
            throw std::runtime_error(target_.string() + ": " + ReasonOf(code));
        if (!kv::sample::RemoveWhatLiesBeside(target_)) {
            throw std::runtime_error("The log of a database that was at " + target_.string() +
                                     " cannot be removed");
        }
        fs::rename(file_, target_);
        isNew_ = false;
        const fs::path folder = target_.parent_path();
        const int code = Sync(folder.empty() ? "." : folder);
        // Not every file system can sync a folder.
        if (code != 0 && code != EINVAL)
            throw CommitUnanswered(target_.string() +
                                   " is made, but may not outlast a power cut: " + ReasonOf(code));
    }

private:
    bool MayDropIndexes(const Table&) override { return true; }
    void BeginRows() override {
        std::string names, places;
        for (const kv::sample::Column& column : Filled().columns) {
            names.append(names.empty() ? "" : ", ").append(column.name);
            places.append(places.empty() ? "?" : ", ?");
        }
        insert_ = Prepare(std::string("insert into ") + Filled().name + " (" + names +
                          ") values (" + places + ")");
    }
    void EndRows() override { insert_.reset(); }

    Statement Prepare(const std::string& sql) const {
        sqlite3_stmt* prepared = nullptr;
        const int code = sqlite3_prepare_v2(database_.get(), sql.c_str(), -1, &prepared, nullptr);
        Statement statement(prepared);
        Check(code);
        return statement;
    }

    void Check(int code) const {
        if (code != SQLITE_OK)
            throw std::runtime_error(target_.string() + ": " + sqlite3_errmsg(database_.get()));
    }

    fs::path target_;
    bool isNew_;
    fs::path file_;
    std::unique_ptr<sqlite3, Close> database_;
    Statement insert_;
};

}  // namespace

std::unique_ptr<Store> OpenSqliteStore(const fs::path& path, Purpose purpose) {
    return std::make_unique<SqliteStore>(path, purpose);
}

}  // namespace kvload
