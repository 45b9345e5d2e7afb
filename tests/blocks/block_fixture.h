#pragma once

#include <string>
#include <utility>
#include <vector>

#include "blocks/blk_ext_dlg.h"
#include "blocks/blk_ext_ids.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "frame/module.h"
#include "support/dialog_fixture.h"
#include "support/small_database.h"
#include "support/temp_folder.h"

/// The block selection dialog with what it keeps to itself.
class OpenBlkExtDlg : public CKvGuiBlkExtDlg {
public:
    using CKvGuiBlkExtDlg::AddSelectedExts;
    using CKvGuiBlkExtDlg::CKvGuiBlkExtDlg;
    using CKvGuiBlkExtDlg::ExportNeighborBlockInfo;
    using CKvGuiBlkExtDlg::ExportWithFixedSizes;
    using CKvGuiBlkExtDlg::ExportWithTabDelimiter;
    using CKvGuiBlkExtDlg::ImportNeighborBlockInfo;
    using CKvGuiBlkExtDlg::ImportWithFixedSizes;
    using CKvGuiBlkExtDlg::ImportWithTabDelimiter;
    using CKvGuiBlkExtDlg::m_bFound;
    using CKvGuiBlkExtDlg::m_listSelected;
    using CKvGuiBlkExtDlg::m_nSelectedRows;
    using CKvGuiBlkExtDlg::MinVal;
    using CKvGuiBlkExtDlg::OnButtonExport;
    using CKvGuiBlkExtDlg::ReadImportFile;
};

/// A caller with a selection of its own, on a small database.
class BlockTest : public test::DialogTest {
protected:
    BlockTest() {
        InitControlDll();
        kv::db::SetStatementTrace([this](const std::string& sql) { statements.push_back(sql); });
        UseDatabase("sqlite:" + test::MakeSmallDatabase(folder.Native("blocks.db")));
        SetUp(dialog, "areaname");
    }
    ~BlockTest() override { kv::db::SetStatementTrace(nullptr); }

    void UseDatabase(const std::string& server) {
        CKvDbInfo info("", "", server.c_str());
        CKvDbAbsDataMgr(1).SetDbInfo(info);
    }

    void SetUp(CKvGuiBlkExtDlg& each, const std::string& field) {
        each.SetType(selection, "NORVADON");
        each.SetFieldString(field);
        each.SetTableName("NORVADON.gulf_mexico_connam2");
    }

    void Given(const std::vector<kv::blocks::Place>& entries) {
        selection = {};
        for (const auto& [area, block] : entries) {
            selection.first.push_back(area);
            selection.second.push_back(block);
        }
    }
    /// The caller's entries, each as area and block with a "/" between them.
    std::vector<std::string> Entries() const {
        EXPECT_EQ(selection.first.size(), selection.second.size());
        std::vector<std::string> entries;
        for (std::size_t i = 0; i < selection.first.size(); ++i)
            entries.push_back(selection.first[i] + "/" + selection.second[i]);
        return entries;
    }

    /// Types into Find and presses the search button.
    static void Search(kv::User& user, const std::string& text) {
        user.Type(kv::blk_ext::kFind, text);
        user.Click(kv::blk_ext::kSearch);
    }
    /// Types an area in and presses the insert button.
    static void Insert(kv::User& user, const std::string& text) {
        user.Click(kv::blk_ext::kInsertMode);
        Search(user, text);
    }

    test::TempFolder folder;
    std::vector<std::string> statements;
    kv::blocks::Selection selection;
    OpenBlkExtDlg dialog;
};
