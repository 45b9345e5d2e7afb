#pragma once

#include <string>
#include <vector>

#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "frame/module.h"
#include "qualifiers/list_sel_ids.h"
#include "support/dialog_fixture.h"
#include "support/qualifier_database.h"
#include "support/temp_folder.h"
#include "window/controls/combo_box.h"
#include "window/controls/edit.h"
#include "window/frames/frame_wnd.h"

/// A caller with a combo box, an edit and a vector of its own, on a small database.
class QualifierTest : public test::DialogTest {
protected:
    QualifierTest() {
        InitControlDll();
        kv::db::SetStatementTrace([this](const std::string& sql) { statements.push_back(sql); });
        UseDatabase("sqlite:" + test::MakeQualifierDatabase(folder.Native("qualifiers.db")));
        frame.Create("Host");
        combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, {0, 0, 120, 120}, &frame, 1);
        edit.Create(WS_CHILD | WS_VISIBLE, {0, 120, 120, 140}, &frame, 2);
    }
    ~QualifierTest() override { kv::db::SetStatementTrace(nullptr); }

    void UseDatabase(const std::string& server) {
        CKvDbInfo info("", "", server.c_str());
        CKvDbAbsDataMgr(1).SetDbInfo(info);
    }

    /// What the caller's control shows, and its vector holds, before the dialog opens.
    void Given(const std::string& text, std::vector<std::string> list = {}) {
        combo.SetWindowText(text.c_str());
        edit.SetWindowText(text.c_str());
        values = std::move(list);
    }

    /// Types into Find and presses the search button.
    static void Search(kv::User& user, const std::string& text) {
        user.Type(kv::list_sel::kFind, text);
        user.Click(kv::list_sel::kSearch);
    }
    /// Types a value in and presses the insert button.
    static void Insert(kv::User& user, const std::string& text) {
        user.Click(kv::list_sel::kInsertMode);
        Search(user, text);
    }

    test::TempFolder folder;
    std::vector<std::string> statements;
    CFrameWnd frame;
    CComboBox combo;
    CEdit edit;
    std::vector<std::string> values;
};
