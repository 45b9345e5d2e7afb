#include "frame/common_frame_work.h"

#include <gtest/gtest.h>

#include <memory>

#include "window/acting/headless_desktop.h"
#include "window/frames/frame_wnd.h"
#include "window/window_system.h"

/// A host's own classes.
class CNorvadonPCDoc : public CDocument {};
class CNorvadonPCTreeView {};

namespace {

/// A frame that works in another one, or on a document.
class HostFrame : public CFrameWnd {
public:
    CFrameWnd* inner = nullptr;
    CDocument* document = nullptr;
    bool idle = false;

    CFrameWnd* GetActiveFrame() override {
        if (idle) return nullptr;
        return inner ? inner : this;
    }
    CDocument* GetActiveDocument() override { return document; }
};

CNorvadonPCTreeView g_tree;

class CommonFrameWorkTest : public testing::Test {
protected:
    CommonFrameWorkTest() {
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        app.m_pMainWnd = &frame;
    }
    ~CommonFrameWorkTest() override { CommonFrameWork::SetHost(nullptr, nullptr); }

    static void SetHost() {
        CommonFrameWork::SetHost(
            [](CDocument* document) { return dynamic_cast<CNorvadonPCDoc*>(document); },
            [] { return &g_tree; });
    }

    kv::HeadlessDesktop desktop_;
    CWinApp app;
    HostFrame frame;
    HostFrame inner;
    CNorvadonPCDoc own;
    CDocument foreign;
};

TEST_F(CommonFrameWorkTest, TheActiveDocumentIsThatOfTheActiveFrame) {
    frame.document = &foreign;
    EXPECT_EQ(CommonFrameWork::GetKvActiveDocumentPtr(), &foreign);
    frame.inner = &inner;
    EXPECT_EQ(CommonFrameWork::GetKvActiveDocumentPtr(), nullptr);
    inner.document = &own;
    EXPECT_EQ(CommonFrameWork::GetKvActiveDocumentPtr(), &own);
}

TEST_F(CommonFrameWorkTest, ThereIsNoneBehindAMissingLink) {
    SetHost();
    frame.document = &own;
    frame.idle = true;
    EXPECT_EQ(CommonFrameWork::GetKvActiveDocumentPtr(), nullptr);
    EXPECT_EQ(CommonFrameWork::GetKvActiveNorvadonPCDocPtr(), nullptr);
    CWnd window;
    app.m_pMainWnd = &window;
    EXPECT_EQ(CommonFrameWork::GetKvActiveDocumentPtr(), nullptr);
    app.m_pMainWnd = nullptr;
    EXPECT_EQ(CommonFrameWork::GetKvActiveDocumentPtr(), nullptr);
    EXPECT_EQ(CommonFrameWork::GetKvActiveNorvadonPCDocPtr(), nullptr);
}

TEST_F(CommonFrameWorkTest, TheHostsOwnDocumentIsOneOfItsClass) {
    frame.document = &own;
    EXPECT_EQ(CommonFrameWork::GetKvActiveNorvadonPCDocPtr(), nullptr);
    SetHost();
    EXPECT_EQ(CommonFrameWork::GetKvActiveNorvadonPCDocPtr(), &own);
    frame.document = &foreign;
    EXPECT_EQ(CommonFrameWork::GetKvActiveDocumentPtr(), &foreign);
    EXPECT_EQ(CommonFrameWork::GetKvActiveNorvadonPCDocPtr(), nullptr);
    frame.document = nullptr;
    EXPECT_EQ(CommonFrameWork::GetKvActiveNorvadonPCDocPtr(), nullptr);
}

TEST_F(CommonFrameWorkTest, TheTreeViewIsTheHosts) {
    EXPECT_EQ(CommonFrameWork::GetKvTreeViewPtr(), nullptr);
    SetHost();
    EXPECT_EQ(CommonFrameWork::GetKvTreeViewPtr(), &g_tree);
}

}  // namespace
