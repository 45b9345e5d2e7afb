#include "frame/kvdbkvn/db_abs_data_mgr.h"

#include <memory>
#include <new>
#include <utility>

#include "frame/kvcom/cancelled.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "frame/kvlogs/log.h"
#include "services/kvdbkvn/connection.h"
#include "services/kvdbkvn/dialect/translate.h"
#include "services/kvdbkvn/engines/engine.h"
#include "services/kvdbkvn/engines/statement_wait.h"
#include "services/kvdbkvn/known_translations.h"
#include "services/kvdbkvn/session_pool.h"
#include "window/dialogs/message_box.h"

namespace {

using kv::db::Rows;
using kv::db::Session;
using kv::db::SessionPool;
using kv::db::StatementWait;
using kv::dialect::Kind;
using kv::dialect::Translation;

constexpr int kConnected = 1;
constexpr int kLogLevel = 101;
constexpr const char* kGone = "The server has closed the connection, or the file was replaced";

std::string WordsOf(const CKvException& failure) {
    return failure.GetErrorMessage(false, false);
}

void Log(const std::string& line) {
    CKvLog::Output(line, kLogLevel, false);
}

std::shared_ptr<const Translation> Translate(const std::string& sql, Session& session) {
    // The engines' client libraries take texts that end at a zero.
    if (sql.find('\0') != std::string::npos)
        throw CKvException("Refused: the statement holds a zero byte");
    static kv::db::KnownTranslations known;
    auto translation = known.Of(sql, session);
    for (const std::string& note : translation->notes)
        Log(note);
    if (translation->refusal.empty()) return translation;
    if (!translation->text.empty()) session.Check(translation->text);
    throw CKvException(translation->refusal);
}

/// As on Oracle, a definition and a grant commit what came before them, and themselves.
bool Commits(Kind kind) {
    return kind == Kind::kDefine || kind == Kind::kGrant || kind == Kind::kCommit;
}

bool MayRead(Kind kind) {
    return kind == Kind::kRead || kind == Kind::kUnknown;
}

/// What a person may cancel: the query, and what is asked ahead of it. How its engine tells of that
/// is its own.
std::unique_ptr<Rows> QueryWhileSomebodyWaits(const std::string& sql, Session& session) {
    const StatementWait wait(sql);
    if (wait.Cancelled()) throw CKvCancelled();
    std::unique_ptr<Rows> rows;
    try {
        const auto translation = Translate(sql, session);
        if (!MayRead(translation->kind)) throw CKvException(kv::db::kOnlyReads);
        rows = session.Query(translation->text);
    } catch (const CKvException&) {
        if (!wait.Cancelled()) throw;
    }
    if (wait.Cancelled()) throw CKvCancelled();
    return rows;
}

}  // namespace

/// What copies of a manager share. Destroyed with a connection open it undoes what was not
/// committed, as a process that dies does.
struct CKvDbAbsDataMgr::State {
    CKvDbInfo info;
    /// Null while not connected, and after the server was lost until the next statement.
    std::unique_ptr<Session> session;
    bool connected = false;
    /// Whether the open transaction holds changes.
    bool changed = false;
    std::unique_ptr<Rows> rows;

    State() = default;
    State(const State&) = delete;
    State& operator=(const State&) = delete;
    ~State() { GiveBack(); }

    void Connect() {
        info = kv::db::ConnectionInForce();
        session = SessionPool::Instance().Borrow(info);
        connected = true;
    }

    void GiveBack() noexcept {
        if (session) SessionPool::Instance().GiveBack(info, std::move(session));
        session.reset();
        connected = false;
        changed = false;
    }

    /// Whichever way it ends, no change is pending then.
    void Commit() {
        if (!changed) return;
        if (!session->IsAlive()) ThrowLost(kGone);
        changed = false;
        session->Commit();
    }

    /// The session is given back ahead of the message, whose window may ask the database, too.
    void CommitOrTell() {
        try {
            Commit();
        } catch (const CKvException& failure) {
            GiveBack();
            AfxMessageBox(failure.GetErrorMessage(true, true).c_str(), 0, 0);
        } catch (const std::bad_alloc&) {
            GiveBack();
            AfxMessageBox("The changes are undone: there is not enough memory to commit them", 0,
                          0);
        }
    }

    void Rollback() noexcept {
        if (session && !session->Rollback()) session.reset();
        changed = false;
    }

    /// Puts the caller's own text beside the words of a failure.
    template <typename Operation>
    auto Run(const std::string& sql, const Operation& operation) {
        kv::db::TraceStatement(sql);
        try {
            return RunOnLiveSession(operation);
        } catch (const CKvCancelled&) {
            throw;
        } catch (const CKvException& failure) {
            throw CKvException(WordsOf(failure), sql);
        }
    }

    /// A server that was stopped and started again, or a file that was replaced, costs nothing
    /// where nothing was changed: there is a new session then. A statement that may have run is not
    /// run again.
    template <typename Operation>
    auto RunOnLiveSession(const Operation& operation) {
        if (!connected) throw CKvException("There is no connection to a database");
        if (session && !session->IsAlive()) LoseSession(kGone);
        if (!session) session = SessionPool::Instance().Borrow(info);
        try {
            return operation(*session);
        } catch (const CKvException& failure) {
            if (!session || session->IsAlive()) throw;
            const bool hasNotRun = session->WasGoneAhead();
            LoseSession(WordsOf(failure));
            if (!hasNotRun) throw;
        }
        session = SessionPool::Instance().Borrow(info);
        return operation(*session);
    }

    void LoseSession(const std::string& why) {
        session.reset();
        SessionPool::Instance().Forget(info);
        if (changed) ThrowLost(why);
    }

    /// Statements to come must not be committed without those that are lost.
    [[noreturn]] void ThrowLost(const std::string& why) {
        GiveBack();
        throw CKvException(why +
                           "; the connection is closed, and what it had not committed is undone");
    }

    int Select(const std::string& sql) {
        rows.reset();
        rows = Run(sql, [&](Session& s) { return QueryWhileSomebodyWaits(sql, s); });
        return rows->Count();
    }

    int Change(const std::string& sql) {
        return Run(sql, [&](Session& s) {
            const auto translation = Translate(sql, s);
            const bool commits = Commits(translation->kind);
            if (commits) Commit();
            if (translation->text.empty() || translation->kind == Kind::kCommit) return 0;
            const int count = s.Execute(translation->text);
            changed = true;
            if (commits) Commit();
            return count;
        });
    }
};

CKvDbAbsDataMgr::CKvDbAbsDataMgr(enuConnectType) : m_pState(std::make_shared<State>()) {}
CKvDbAbsDataMgr::CKvDbAbsDataMgr(const CKvDbAbsDataMgr&) = default;
CKvDbAbsDataMgr& CKvDbAbsDataMgr::operator=(const CKvDbAbsDataMgr&) = default;
CKvDbAbsDataMgr::~CKvDbAbsDataMgr() = default;

int CKvDbAbsDataMgr::Connect() {
    Disconnect();
    m_pState->Connect();
    return kConnected;
}

bool CKvDbAbsDataMgr::IsConnected() const {
    return m_pState->connected;
}

int CKvDbAbsDataMgr::Select(const std::string& sql) {
    return m_pState->Select(sql);
}

int CKvDbAbsDataMgr::NumberOfRows() const {
    return m_pState->rows ? m_pState->rows->Count() : 0;
}

const char* CKvDbAbsDataMgr::GetItem(int row, int column) const {
    const Rows* rows = m_pState->rows.get();
    const bool inside =
        rows && row >= 0 && row < rows->Count() && column >= 0 && column < rows->Columns();
    return inside ? rows->Cell(row, column) : "";
}

void CKvDbAbsDataMgr::FreeData() {
    m_pState->rows.reset();
}

void CKvDbAbsDataMgr::Disconnect() {
    const std::shared_ptr<State> state = m_pState;
    try {
        state->CommitOrTell();
    } catch (const std::bad_alloc&) {
        // Without memory for a message nobody can be told.
    }
    state->GiveBack();
}

void CKvDbAbsDataMgr::Commit() {
    m_pState->Commit();
}

void CKvDbAbsDataMgr::Rollback() {
    m_pState->Rollback();
}

int CKvDbAbsDataMgr::Insert(const std::string& sql) {
    return m_pState->Change(sql);
}

int CKvDbAbsDataMgr::Delete(const std::string& sql) {
    return m_pState->Change(sql);
}

bool CKvDbAbsDataMgr::ExecuteDDL(std::string sql) {
    m_pState->Change(sql);
    return true;
}

bool CKvDbAbsDataMgr::ExecuteDML(std::string sql) {
    m_pState->Change(sql);
    return true;
}

void CKvDbAbsDataMgr::SetDbInfo(CKvDbInfo& info) {
    kv::db::SetConnectionInForce(info);
}
