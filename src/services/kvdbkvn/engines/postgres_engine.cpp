#include <libpq-fe.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cstring>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/text.h"
#include "services/kvdbkvn/engines/bordered_session.h"
#include "services/kvdbkvn/engines/column_types.h"
#include "services/kvdbkvn/engines/engine_module.h"
#include "services/kvdbkvn/engines/postgres_statements.h"
#include "services/kvdbkvn/engines/statement_words.h"

namespace kv::db {
namespace {

/// What holds unless the URL says otherwise: a host that does not answer, or no longer answers, is
/// given up within seconds, since a user waits.
constexpr std::pair<const char*, const char*> kDefaults[] = {
    {"fallback_application_name", "KVGuiCtl"},
    {"connect_timeout", "10"},
    {"keepalives_idle", "30"},
    {"tcp_user_timeout", "30000"},
};

/// How often the windows live while a query runs, and how long a server may take to answer that it
/// has stopped one.
constexpr std::chrono::milliseconds kBetweenQuestions{20};
constexpr std::chrono::seconds kMostToStop{2};
constexpr std::chrono::milliseconds kMostToConnect{1000};

/// What a server that follows another refuses a change with.
constexpr const char* kStandby =
    "Refused: the server that answers is a standby, which only reads until it takes over";

constexpr const char* kSetUp[] = {
    kPostgresSearchPath,
    kPostgresPlainBackslashes,
    "set datestyle to 'ISO'",
};

struct Clear {
    void operator()(PGresult* result) const { PQclear(result); }
    void operator()(PGconn* connection) const { PQfinish(connection); }
    void operator()(PGcancel* cancel) const { PQfreeCancel(cancel); }
    void operator()(PQconninfoOption* options) const { PQconninfoFree(options); }
};
using Result = std::unique_ptr<PGresult, Clear>;
using Connection = std::unique_ptr<PGconn, Clear>;

/// Whether the host at the other end of a socket takes another connection in time.
bool TakesConnections(int connected) {
    sockaddr_storage host{};
    socklen_t length = sizeof host;
    auto* address = reinterpret_cast<sockaddr*>(&host);
    if (getpeername(connected, address, &length) != 0) return false;
    if (host.ss_family == AF_UNIX) return true;
    const int probe = socket(host.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (probe < 0) return false;
    bool taken = connect(probe, address, length) == 0;
    pollfd ready{probe, POLLOUT, 0};
    if (!taken && errno == EINPROGRESS)
        taken = poll(&ready, 1, static_cast<int>(kMostToConnect.count())) > 0 &&
                (ready.revents & (POLLERR | POLLHUP)) == 0;
    close(probe);
    return taken;
}

class PostgresRows final : public Rows {
public:
    explicit PostgresRows(Result result) : result_(std::move(result)) {}
    int Count() const override { return PQntuples(result_.get()); }
    int Columns() const override { return PQnfields(result_.get()); }
    const char* Cell(int row, int column) const override {
        return PQgetvalue(result_.get(), row, column);
    }

private:
    Result result_;
};

/// The server now expects rows to be copied, or sends them so, which nobody here does.
bool IsCopy(const Result& result) {
    const ExecStatusType status = PQresultStatus(result.get());
    return status == PGRES_COPY_IN || status == PGRES_COPY_OUT || status == PGRES_COPY_BOTH;
}

bool Succeeded(const Result& result) {
    const ExecStatusType status = PQresultStatus(result.get());
    return status == PGRES_COMMAND_OK || status == PGRES_TUPLES_OK;
}

/// One command of a batch: a statement to be run or to be prepared, or a look at the one that was
/// prepared.
struct Command {
    enum class Kind { kRun, kPrepare, kDescribePrepared } kind;
    std::string sql = {};
};

Command Run(std::string sql) {
    return {Command::Kind::kRun, std::move(sql)};
}

class PostgresSession final {
public:
    using IsOver = ModuleSession::IsOver;

    explicit PostgresSession(Connection connection) : connection_(std::move(connection)) {}

    /// Settles what the statements rely on. False, with the reason, when the server will not.
    bool SetUp(std::string& failure) {
        PQsetNoticeProcessor(
            connection_.get(), [](void*, const char*) {}, nullptr);
        if (PQenterPipelineMode(connection_.get()) != 1) return Fail(failure);
        std::vector<Command> commands;
        for (const char* sql : kSetUp)
            commands.push_back(Run(sql));
        // Such a server keeps bytes as they come and converts none.
        const char* encoding = PQparameterStatus(connection_.get(), "server_encoding");
        if (encoding && std::strcmp(encoding, "SQL_ASCII") == 0)
            commands.push_back(Run("set client_encoding to SQL_ASCII"));
        return RunAll(std::move(commands), failure);
    }

    dialect::Target Target() const { return dialect::Target::kPostgres; }

    void StopQueryWhen(IsOver* isOver) { isOver_ = isOver; }

    bool LimitStatements(std::chrono::milliseconds limit, std::string& failure) {
        return RunAll({Run("set statement_timeout to " + std::to_string(limit.count()))}, failure);
    }

    /// A server that went away has closed the connection; taking in what it sent last tells.
    bool IsAlive() {
        PGconn* connection = connection_.get();
        constexpr int kMostMessages = 8;
        for (int i = 0; i < kMostMessages && PQstatus(connection) == CONNECTION_OK; ++i) {
            pollfd socket{PQsocket(connection), POLLIN, 0};
            if (poll(&socket, 1, 0) <= 0) break;
            if (PQconsumeInput(connection) != 1) return false;
        }
        return PQstatus(connection) == CONNECTION_OK;
    }
    bool WasGoneAhead() const { return false; }

    bool HasSchema(const std::string& name) {
        if (const auto known = schemas_.find(name); known != schemas_.end()) return known->second;
        const std::string lower = ToLower(name);
        char* quoted = PQescapeLiteral(connection_.get(), lower.data(), lower.size());
        if (!quoted) return false;
        const std::string sql = std::string("select 1 from pg_namespace where nspname = ") + quoted;
        PQfreemem(quoted);
        const std::vector<Result> results = Batch({Run(sql)}, isOver_);
        if (!Succeeded(results[0])) return false;
        return schemas_[name] = PQntuples(results[0].get()) > 0;
    }

    const dialect::Columns* ColumnsOf(const std::string& schema, const std::string& table,
                                      std::string& failure) {
        const std::string name = schema + "." + table;
        if (const auto known = columns_.find(name); known != columns_.end()) return &known->second;
        std::vector<Result> results =
            Batch({Run(ColumnsQuery(dialect::Target::kPostgres, schema, table))}, isOver_);
        if (!Succeeded(results[0])) {
            failure = Words(results[0]);
            return nullptr;
        }
        const PostgresRows rows(std::move(results[0]));
        return &(columns_[name] = ColumnsIn(rows, dialect::Target::kPostgres));
    }

    bool Check(const std::string& sql, std::string& failure) {
        const Result described = Describe(sql);
        if (!Succeeded(described)) failure = Words(described);
        return Succeeded(described);
    }

    /// Whether a text gives rows at all is known before it runs, so that none can end the
    /// transaction. Of most that is seen by their words; of others the server is asked.
    std::unique_ptr<Rows> Query(const std::string& sql, std::string& failure) {
        const bool reads = ReadingOf(sql, Quoting::kStandard) == Reading::kReads;
        Result result = reads ? Result() : Describe(sql);
        if (reads || GivesRows(result)) result = RunReading({Run(sql)});
        if (GivesRows(result)) return std::make_unique<PostgresRows>(std::move(result));
        columns_.clear();
        failure = Succeeded(result) ? kOnlyReads : WordsOfReading(result);
        return nullptr;
    }

    int Execute(const std::string& sql, std::string& failure) {
        const bool begins = !inTransaction_;
        if (ToLower(sql).find("schema") != std::string::npos) schemas_.clear();
        if (MayDefine(sql)) columns_.clear();
        std::vector<Command> commands = {Run(begins ? "begin" : "savepoint kv_statement"),
                                         Run(sql)};
        if (!begins) commands.push_back(Run("release savepoint kv_statement"));
        const std::vector<Result> results = Batch(commands);
        NoteTransaction();
        for (const Result& result : results) {
            if (Succeeded(result)) continue;
            failure = WordsOfChange(result);
            columns_.clear();
            UndoStatement(begins);
            return -1;
        }
        return RowsChanged(results[1]);
    }

    bool Commit(std::string& failure) {
        if (!inTransaction_) return true;
        const Result result = EndTransaction("commit");
        const bool answered = Succeeded(result);
        if (answered && std::strcmp(PQcmdStatus(result.get()), "COMMIT") == 0) return true;
        if (answered)
            failure = CommitFailure("the server gave no reason");
        else if (IsAlive())
            failure = CommitFailure(Words(result));
        else
            failure = CommitUnanswered(Words(result));
        EndTransaction("rollback");
        return false;
    }

    bool Rollback() {
        if (inTransaction_) EndTransaction("rollback");
        return PQtransactionStatus(connection_.get()) == PQTRANS_IDLE;
    }

private:
    bool Send(const Command& command) {
        PGconn* connection = connection_.get();
        const char* sql = command.sql.c_str();
        switch (command.kind) {
            case Command::Kind::kRun:
                return PQsendQueryParams(connection, sql, 0, nullptr, nullptr, nullptr, nullptr,
                                         0) == 1;
            case Command::Kind::kPrepare:
                return PQsendPrepare(connection, "", sql, 0, nullptr) == 1;
            case Command::Kind::kDescribePrepared:
                return PQsendDescribePrepared(connection, "") == 1;
        }
        return false;
    }

    /// Returns when the server has sent something, or the connection is lost. Asks meanwhile
    /// whether the query is to stop, and tells the server so; one that does not answer that is
    /// given up.
    void Await(IsOver* isOver) {
        using Clock = std::chrono::steady_clock;
        std::optional<Clock::time_point> stopped;
        while (PQstatus(connection_.get()) == CONNECTION_OK && PQisBusy(connection_.get())) {
            pollfd socket{PQsocket(connection_.get()), POLLIN, 0};
            const int ready = poll(&socket, 1, static_cast<int>(kBetweenQuestions.count()));
            if (ready > 0 && PQconsumeInput(connection_.get()) != 1) return;
            if (!isOver()) continue;
            if (!stopped) {
                stopped = Clock::now();
                StopQuery();
            } else if (Clock::now() - *stopped > kMostToStop) {
                connection_.reset();
            }
        }
    }

    /// Where it fails, the query comes to its own end, or is given up; at once where the host has
    /// gone, since the client library would wait long for it.
    void StopQuery() {
        if (!TakesConnections(PQsocket(connection_.get()))) {
            connection_.reset();
            return;
        }
        const std::unique_ptr<PGcancel, Clear> cancel{PQgetCancel(connection_.get())};
        std::array<char, 256> ignored{};
        if (cancel) PQcancel(cancel.get(), ignored.data(), static_cast<int>(ignored.size()));
    }

    /// Sends the commands at once and waits for all of them, asking `isOver` meanwhile where there
    /// is one. A result each; null for those that did not come to run.
    std::vector<Result> Batch(const std::vector<Command>& commands, IsOver* isOver = nullptr) {
        std::vector<Result> results(commands.size());
        PGconn* connection = connection_.get();
        for (const Command& command : commands)
            if (!Send(command)) return results;
        if (PQpipelineSync(connection) != 1) return results;
        for (Result& result : results) {
            if (isOver) Await(isOver);
            if (!connection_) return results;
            result.reset(PQgetResult(connection));
            if (IsCopy(result)) {
                connection_.reset();
                return results;
            }
            while (Result more{PQgetResult(connection)}) {
            }
        }
        while (Result more{PQgetResult(connection)})
            if (PQresultStatus(more.get()) == PGRES_PIPELINE_SYNC) break;
        return results;
    }

    /// False, with the words of the first that failed.
    bool RunAll(std::vector<Command> commands, std::string& failure) {
        const std::vector<Result> results = Batch(commands, isOver_);
        for (const Result& result : results) {
            if (Succeeded(result)) continue;
            failure = Words(result);
            return false;
        }
        return true;
    }

    Result Describe(const std::string& sql) {
        return RunReading({{Command::Kind::kPrepare, sql}, {Command::Kind::kDescribePrepared}});
    }

    static bool GivesRows(const Result& result) {
        return Succeeded(result) && PQnfields(result.get()) > 0;
    }

    /// Runs commands inside a read-only part of the transaction, or a read-only transaction of its
    /// own, which is undone afterwards: what a function in a text sets or locks ends with it. All
    /// of it is sent at once. The result of the last command, or of the first that failed.
    Result RunReading(const std::vector<Command>& commands) {
        const std::vector<Command> begin =
            inTransaction_ ? std::vector{Run("savepoint kv_read"), Run("set transaction read only")}
                           : std::vector{Run("begin read only")};
        const std::vector<Command> end =
            inTransaction_ ? std::vector{Run("rollback to savepoint kv_read"),
                                         Run("release savepoint kv_read")}
                           : std::vector{Run("rollback"), Run(kPostgresGiveUpLocks)};
        std::vector<Command> all = begin;
        all.insert(all.end(), commands.begin(), commands.end());
        const std::size_t last = all.size() - 1;
        all.insert(all.end(), end.begin(), end.end());
        std::vector<Result> results = Batch(all, isOver_);
        const auto failed = std::ranges::find_if_not(results, Succeeded);
        // Behind a failure the server runs nothing more, and who cancels may have stopped the end.
        if (failed != results.end()) Batch(end);
        NoteTransaction();
        const auto place = static_cast<std::size_t>(failed - results.begin());
        return std::move(results[std::min(place, last)]);
    }

    /// Also gives up the locks that a function in a query took for the session: unlike its other
    /// locks and its settings they outlast the transaction.
    Result EndTransaction(const char* how) {
        std::vector<Result> results = Batch({Run(how), Run(kPostgresGiveUpLocks)});
        NoteTransaction();
        return std::move(results[0]);
    }

    /// A statement may have ended the transaction by itself: then there is nothing left to undo.
    void UndoStatement(bool began) {
        if (!inTransaction_) return;
        if (began)
            EndTransaction("rollback");
        else
            Batch(
                {Run("rollback to savepoint kv_statement"), Run("release savepoint kv_statement")});
        NoteTransaction();
    }

    void NoteTransaction() {
        const PGTransactionStatusType status = PQtransactionStatus(connection_.get());
        inTransaction_ = status == PQTRANS_INTRANS || status == PQTRANS_INERROR;
    }

    static int RowsChanged(const Result& result) {
        int rows = 0;
        const char* count = PQcmdTuples(result.get());
        if (PQresultStatus(result.get()) == PGRES_COMMAND_OK)
            std::from_chars(count, count + std::strlen(count), rows);
        return rows;
    }

    std::string Words(const Result& result) {
        const auto field = [&](int code) {
            const char* text = PQresultErrorField(result.get(), code);
            return std::string(text ? text : "");
        };
        const std::string message = field(PG_DIAG_MESSAGE_PRIMARY);
        if (IsCopy(result)) return "Refused: rows are not copied over this connection";
        if (message.empty()) return TrimSpace(PQerrorMessage(connection_.get()));
        const std::string detail = field(PG_DIAG_MESSAGE_DETAIL);
        const std::string hint = field(PG_DIAG_MESSAGE_HINT);
        std::string words = message;
        if (!detail.empty()) words += "\n" + detail;
        if (!hint.empty()) words += "\n" + hint;
        return words;
    }

    /// Whether a change was refused since nothing but reading is let through.
    static bool IsRefusedChange(const Result& result) {
        static constexpr std::string_view kReadOnlyTransaction = "25006";
        const char* state = PQresultErrorField(result.get(), PG_DIAG_SQLSTATE);
        return state && state == kReadOnlyTransaction;
    }

    /// What a change is refused with inside of a query that it hides in.
    std::string WordsOfReading(const Result& result) {
        return (IsRefusedChange(result) ? std::string(kOnlyReads) + ": " : "") + Words(result);
    }

    /// The same of a change that the server itself refuses: one that follows another only reads.
    std::string WordsOfChange(const Result& result) {
        const char* standby = PQparameterStatus(connection_.get(), "in_hot_standby");
        const bool onlyReads = standby && std::strcmp(standby, "on") == 0;
        return (IsRefusedChange(result) && onlyReads ? std::string(kStandby) + ": " : "") +
               Words(result);
    }

    bool Fail(std::string& failure) {
        failure = TrimSpace(PQerrorMessage(connection_.get()));
        return false;
    }

    Connection connection_;
    IsOver* isOver_ = nullptr;
    bool inTransaction_ = false;
    /// Asked for with nearly every statement, so they are remembered until something changes.
    std::map<std::string, bool> schemas_;
    /// Likewise; by schema and table.
    std::map<std::string, dialect::Columns> columns_;
};

/// With the scheme in small letters: the client library takes any other for the name of a database
/// on this machine.
std::string UrlOf(const CKvDbInfo& info) {
    const std::string& server = info.GetServer();
    const std::size_t colon = server.find(':');
    return ToLower(server.substr(0, colon)) + server.substr(colon);
}

/// The hosts that a URL names, as the client library's settings tell them: lists of equal length.
class Hosts {
public:
    explicit Hosts(const std::string& url) {
        const std::unique_ptr<PQconninfoOption, Clear> options{
            PQconninfoParse(url.c_str(), nullptr)};
        for (const PQconninfoOption* each = options.get(); each && each->keyword; ++each) {
            for (auto& [keyword, values] : lists_)
                if (keyword == each->keyword && each->val) values = Split(each->val, ',');
        }
    }

    bool AreSeveral() const { return Count() > 1; }

    /// The settings, beginning with the host of that place, in turn.
    std::vector<std::pair<std::string, std::string>> From(std::size_t first) const {
        std::vector<std::pair<std::string, std::string>> settings;
        for (const auto& [keyword, values] : lists_) {
            // A single port is that of all hosts.
            if (values.size() != Count()) continue;
            std::vector<std::string> turned = values;
            std::rotate(turned.begin(), turned.begin() + static_cast<std::ptrdiff_t>(first),
                        turned.end());
            std::string joined;
            for (const std::string& value : turned)
                joined += (&value == turned.data() ? "" : ",") + value;
            settings.emplace_back(keyword, joined);
        }
        return settings;
    }

    /// The place of the one that a connection came to.
    std::size_t PlaceOf(PGconn* connection) const {
        const std::string host = PQhost(connection);
        const std::string port = PQport(connection);
        for (std::size_t at = 0; at < Count(); ++at) {
            const std::string& name = Of(kHost, at).empty() ? Of(kAddress, at) : Of(kHost, at);
            const std::string& its = Of(kPort, at);
            if (name == host && (its.empty() || its == port)) return at;
        }
        return 0;
    }

private:
    enum List { kHost, kAddress, kPort };

    std::size_t Count() const {
        return std::max(lists_[kHost].second.size(), lists_[kAddress].second.size());
    }
    const std::string& Of(List list, std::size_t at) const {
        static const std::string none;
        const std::vector<std::string>& values = lists_[list].second;
        return at < values.size() ? values[at] : none;
    }

    std::array<std::pair<std::string, std::vector<std::string>>, 3> lists_{
        {{"host", {}}, {"hostaddr", {}}, {"port", {}}}};
};

/// Which of several hosts has answered last, by their URL. It is asked first from then on, so that
/// one that is dead costs its time-out once.
std::map<std::string, std::size_t>& LastHosts() {
    static std::map<std::string, std::size_t> hosts;
    return hosts;
}

/// User and password of the record go ahead of those in the URL.
Connection Connect(const CKvDbInfo& info) {
    std::vector<const char*> keywords;
    std::vector<const char*> values;
    const auto add = [&](const char* keyword, const char* value) {
        if (!*value) return;
        keywords.push_back(keyword);
        values.push_back(value);
    };
    for (const auto& [keyword, value] : kDefaults)
        add(keyword, value);
    const std::string url = UrlOf(info);
    add("dbname", url.c_str());
    const Hosts hosts(url);
    std::vector<std::pair<std::string, std::string>> turned;
    if (hosts.AreSeveral()) turned = hosts.From(LastHosts()[url]);
    for (const auto& [keyword, value] : turned)
        add(keyword.c_str(), value.c_str());
    add("user", info.GetUser().c_str());
    add("password", info.GetPassword().c_str());
    add("client_encoding", "UTF8");
    keywords.push_back(nullptr);
    values.push_back(nullptr);
    constexpr int kReadUrl = 1;
    Connection connection(PQconnectdbParams(keywords.data(), values.data(), kReadUrl));
    if (hosts.AreSeveral() && PQstatus(connection.get()) == CONNECTION_OK)
        LastHosts()[url] = hosts.PlaceOf(connection.get());
    return connection;
}

}  // namespace
}  // namespace kv::db

extern "C" KVGUICTL_API kv::db::ModuleSession* KVGuiCtlOpenSession(const CKvDbInfo& info,
                                                                   std::string& failure) {
    kv::db::Connection connection = kv::db::Connect(info);
    if (PQstatus(connection.get()) != CONNECTION_OK) {
        failure =
            "Cannot connect to PostgreSQL: " + kv::TrimSpace(PQerrorMessage(connection.get()));
        return nullptr;
    }
    auto session = std::make_unique<kv::db::PostgresSession>(std::move(connection));
    if (!session->SetUp(failure)) return nullptr;
    return new kv::db::BorderedSession(std::move(session));
}
