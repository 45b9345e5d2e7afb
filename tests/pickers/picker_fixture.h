#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "frame/module.h"
#include "pickers/abe_bar.h"
#include "pickers/abe_bar_ids.h"
#include "support/dialog_fixture.h"
#include "support/small_database.h"
#include "support/temp_folder.h"
#include "window/acting/headless_desktop.h"
#include "window/frames/frame_wnd.h"
#include "window/window_system.h"

/// A frame with the bar in it, on a small database, and a user who works on the bar.
class PickerTest : public ::testing::Test {
protected:
    PickerTest() {
        InitControlDll();
        kv::WindowSystem::Get().SetDesktop(&desktop);
        kv::db::SetStatementTrace([this](const std::string& sql) { statements.push_back(sql); });
        UseDatabase("sqlite:" + test::MakeSmallDatabase(folder.Native("small.db")));
        app.m_pMainWnd = &frame;
        frame.Create("Host");
        frame.ShowWindow(SW_SHOW);
    }
    ~PickerTest() override {
        kv::db::SetStatementTrace(nullptr);
        kv::WindowSystem::Get().SetDesktop(nullptr);
    }

    void UseDatabase(const std::string& server) {
        CKvDbInfo info("", "", server.c_str());
        CKvDbAbsDataMgr(1).SetDbInfo(info);
    }

    /// Creates the bar and lets the program come to rest.
    void CreateBar() {
        ASSERT_EQ(bar.Create(&frame, kv::abe_bar::kTemplate, CBRS_TOP, kv::abe_bar::kTemplate), 1);
        kv::WindowSystem::Get().Settle();
        user = std::make_unique<kv::User>(*bar.m_hWnd, [](const std::string& words) {
            std::fprintf(stderr, "%s\n", words.c_str());
            std::abort();
        });
    }

    test::TempFolder folder;
    kv::HeadlessDesktop desktop;
    std::vector<std::string> statements;
    CWinApp app;
    CFrameWnd frame;
    CVZABEBar bar;
    std::unique_ptr<kv::User> user;
};
