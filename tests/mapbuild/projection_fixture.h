#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "frame/module.h"
#include "mapbuild/proj_ctrl.h"
#include "mapbuild/proj_sel_ids.h"
#include "support/dialog_fixture.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"
#include "support/zone_database.h"
#include "window/controls/combo_box.h"

namespace test {

/// What the control keeps to itself.
class ProjCtrl : public CKvGuiProjCtrl {
public:
    using CKvGuiProjCtrl::m_bMapDescHasData;
    using CKvGuiProjCtrl::m_bXYBounded;
    using CKvGuiProjCtrl::m_nMoreCode;
    using CKvGuiProjCtrl::m_nProjection;
    using CKvGuiProjCtrl::m_tMapDesc;
};

/// Dialogs on a small table of zones.
class ProjectionTest : public DialogTest {
protected:
    ProjectionTest() {
        InitControlDll();
        ProjCtrl::m_tMapDesc.clear();
        ProjCtrl::m_bMapDescHasData = false;
        UseDatabase("sqlite:" + zones);
        kv::db::SetStatementTrace([this](const std::string& sql) { statements.push_back(sql); });
    }
    ~ProjectionTest() override { kv::db::SetStatementTrace(nullptr); }

    static void UseDatabase(const std::string& server) {
        CKvDbInfo info("", "", server.c_str());
        CKvDbAbsDataMgr(1).SetDbInfo(info);
    }

    /// The next selection dialog: a person clicks a radio button, picks a row, and presses OK.
    void ExpectPick(int radio, const std::string& row) {
        desktop.ExpectWindow("CKvGuiProjSel", [radio, row](kv::User& user) {
            user.Click(radio);
            user.Select(kv::proj_sel::kList, row);
            user.Click(IDOK);
        });
    }
    /// The zone dialog behind it: a person may type a zone, and presses OK.
    void ExpectZone(const std::string& typed = {}) {
        desktop.ExpectWindow("CKvGuiUTMZoneDlg", [typed](kv::User& user) {
            if (!typed.empty()) user.Type(kv::utm_zone::kZone, typed);
            user.Click(IDOK);
        });
    }
    void ExpectCancelOf(const std::string& window) {
        desktop.ExpectWindow(window, [](kv::User& user) { user.Click(IDCANCEL); });
    }

    TempFolder folder;
    std::string zones = MakeZoneDatabase(folder.Native("zones.db"));
    std::vector<std::string> statements;
};

}  // namespace test
