#pragma once

#include <string>
#include <vector>

#include "frame/kvdbkvn/database_fault.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "frame/module.h"
#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/dialog_fixture.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"

namespace test {

/// Dialogs on a small SQLite file of the test's own, with an ear on the statements that they send.
class StatementTest : public DialogTest {
protected:
    explicit StatementTest(const std::string& tables) {
        InitControlDll();
        RunOnSqliteFile(path, tables);
        UseFile();
        Listen(true);
    }
    ~StatementTest() override {
        kv::db::SetDatabaseFault(nullptr);
        Listen(false);
        kv::db::SessionPool::Instance().Clear();
    }

    void UseFile() { ConnectTo(CKvDbInfo("", "", Server().c_str())); }
    std::string Server() const { return "sqlite:" + path; }
    void Listen(bool on) {
        kv::db::SetStatementTrace(nullptr);
        if (on)
            kv::db::SetStatementTrace(
                [this](const std::string& sql) { statements.push_back(sql); });
    }
    /// The rows of a query that nobody listens to: cells separated by "|", rows by blanks.
    std::string Rows(const std::string& sql, int columns) {
        Listen(false);
        CKvDbAbsDataMgr manager(1);
        manager.Connect();
        manager.Select(sql);
        const std::string rows = RowsOf(manager, columns);
        manager.FreeData();
        manager.Disconnect();
        Listen(true);
        return rows;
    }
    void Change(const std::string& sql) const { RunOnSqliteFile(path, sql); }

    /// Lets the call number `failing` from now on fail, none for 0, and counts all of them.
    void FailAt(int failing) {
        calls = 0;
        kv::db::SetDatabaseFault([this, failing](std::string_view) { return ++calls == failing; });
    }

    TempFolder folder;
    std::string path = folder.Native("kv.db");
    std::vector<std::string> statements;
    int calls = 0;
};

}  // namespace test
