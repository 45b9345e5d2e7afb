#include "controls/tool_bar.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "frame/kvcom/profile.h"
#include "support/dialog_fixture.h"
#include "support/temp_folder.h"
#include "window/frames/frame_wnd.h"

namespace {

constexpr UINT kZoomIn = 40001;
constexpr UINT kZoomOut = 40002;
constexpr UINT kButtons[] = {kZoomIn, ID_SEPARATOR, kZoomOut};
constexpr const char* kLabels[] = {"Zoom in to the map", nullptr, "Out"};

constexpr std::string_view kStripRows[] = {"####", "####"};
constexpr kv::PaletteEntry kStripColors[] = {{'#', 0xFF000000}};
constexpr kv::ImageResource kStrip{700, 4, 2, kStripRows, kStripColors};

class TestBar : public CKvToolBar {
public:
    using CKvToolBar::Bar;
    using CKvToolBar::m_bVisible;
};

class KvToolBar : public test::DialogTest {
protected:
    KvToolBar() {
        setenv("KVGUICTL_PROFILE", folder.Native("profile.ini").c_str(), 1);
        module.images.push_back(&kStrip);
        kv::AddToResourceChain(module);
        frame.Create("Host", {0, 0, 400, 200});
        frame.ShowWindow(SW_SHOW);
    }
    ~KvToolBar() override { kv::RemoveFromResourceChain(module); }

    void Create() { ASSERT_TRUE(bar.CreateBar(&frame, 59001, 700, kButtons, 3, "Zoom")); }
    const kv::ToolBarNode& Node() { return *bar.Bar(); }

    test::TempFolder folder;
    kv::ResourceModule module;
    CFrameWnd frame;
    TestBar bar;
};

TEST_F(KvToolBar, CreateBarMakesAVisibleBarAtTheTop) {
    Create();
    EXPECT_TRUE(bar.IsVisible());
    EXPECT_EQ(bar.GetBarStyle(), CBRS_TOP | CBRS_TOOLTIPS | CBRS_FLYBY | CBRS_SIZE_DYNAMIC);
    EXPECT_EQ(bar.GetDockStyle(), CBRS_ALIGN_ANY);
    EXPECT_EQ(bar.WindowText(), "Zoom");
    EXPECT_EQ(bar.GetDlgCtrlID(), 59001);
    EXPECT_EQ(bar.GetCount(), 3);
    EXPECT_EQ(Node().Bitmap(), 700);
    EXPECT_FALSE(bar.GetStyle() & TBSTYLE_FLAT);
}

TEST_F(KvToolBar, CreateBarExMakesAFlatOneUnderTheStandardId) {
    ASSERT_TRUE(bar.CreateBarEx(&frame, 59001, 700, kButtons, 3, "Zoom"));
    EXPECT_TRUE(bar.GetStyle() & TBSTYLE_FLAT);
    EXPECT_EQ(bar.GetDlgCtrlID(), static_cast<int>(AFX_IDW_TOOLBAR));
    EXPECT_EQ(bar.WindowText(), "Zoom");
    EXPECT_EQ(bar.GetCount(), 3);
    EXPECT_EQ(Node().ImageSize().cy, 2);
}

TEST_F(KvToolBar, WithoutItsImagesThereIsNoBar) {
    EXPECT_FALSE(bar.CreateBar(&frame, 59001, 1, kButtons, 3, "Zoom"));
    EXPECT_EQ(bar.m_hWnd, nullptr);
    EXPECT_FALSE(bar.CreateBarEx(&frame, 59001, 1, kButtons, 3, "Zoom"));
    EXPECT_EQ(bar.m_hWnd, nullptr);
    EXPECT_FALSE(bar.CreateBar(&frame, 59001, 700, kButtons, -1, "Zoom"));
    EXPECT_TRUE(frame.m_hWnd->Children().empty());
}

TEST_F(KvToolBar, ASecondCreateFails) {
    Create();
    EXPECT_FALSE(bar.CreateBar(&frame, 59002, 700, kButtons, 3, "Other"));
    EXPECT_EQ(bar.WindowText(), "Zoom");
}

TEST_F(KvToolBar, RemembersWhetherItIsVisible) {
    Create();
    int visible = -1;
    EXPECT_FALSE(bar.LoadSettings("Host", &visible));
    EXPECT_EQ(visible, 0);
    EXPECT_TRUE(bar.SaveSettings("Host", nullptr));
    EXPECT_EQ(kv::profile::GetInt("Host-Summary", "Zoom-Visible", -1), 1);
    EXPECT_FALSE(bar.LoadSettings("Host", &visible));
    EXPECT_EQ(visible, 1);
    bar.ShowWindow(SW_HIDE);
    EXPECT_TRUE(bar.SaveSettings("Host", nullptr));
    bar.LoadSettings("Host", &visible);
    EXPECT_EQ(visible, 0);
    EXPECT_FALSE(bar.LoadSettings("Another host", &visible));
    EXPECT_EQ(visible, 0);
}

TEST_F(KvToolBar, SaveSettingsSaysWhenItCouldNotStore) {
    Create();
    bar.SetWindowText("a=b");
    EXPECT_FALSE(bar.SaveSettings("Host", nullptr));
}

TEST_F(KvToolBar, SetVisibleIsKeptAndShowsNothing) {
    Create();
    bar.SetVisible(7);
    EXPECT_EQ(bar.m_bVisible, 7);
    bar.SetVisible(0);
    EXPECT_TRUE(bar.IsVisible());
}

TEST_F(KvToolBar, LabelsMakeAllButtonsAsLargeAsTheLargest) {
    Create();
    bar.SetLabel(3, kButtons, kLabels, 1);
    EXPECT_EQ(bar.GetButtonText(0), "Zoom in to the map");
    EXPECT_EQ(bar.GetButtonText(1), "");
    EXPECT_EQ(bar.GetButtonText(2), "Out");
    EXPECT_EQ(Node().ImageSize(), (CSize{16, 16}));
    EXPECT_EQ(Node().ButtonSize(), bar.GetNaturalSize(0));
    EXPECT_GT(Node().ButtonSize().cx, 60);
    EXPECT_TRUE(Node().ShowsText());
    EXPECT_EQ(bar.m_hWnd->Rect(), (CRect{0, 0, 400, Node().ButtonSize().cy}));
}

TEST_F(KvToolBar, WithoutLabelsTheButtonsAreSmallAgain) {
    Create();
    bar.SetLabel(3, kButtons, kLabels, 1);
    bar.SetLabel(3, kButtons, kLabels, 0);
    EXPECT_EQ(Node().ButtonSize(), (CSize{23, 22}));
    EXPECT_EQ(Node().ImageSize(), (CSize{16, 16}));
    EXPECT_FALSE(Node().ShowsText());
    EXPECT_EQ(bar.m_hWnd->Rect().Height(), 22);
}

TEST_F(KvToolBar, LabelsOfUnknownButtonsAreLeftOut) {
    Create();
    const UINT unknown[] = {1};
    bar.SetLabel(1, unknown, kLabels, 1);
    EXPECT_EQ(bar.GetButtonText(0), "");
}

TEST_F(KvToolBar, KeepsItsRowsWhenItIsResized) {
    Create();
    frame.MoveWindow(0, 0, 40, 200);
    frame.RecalcLayout();
    EXPECT_EQ(bar.GetRows(), 2);
    bar.ResizeClientRect();
    EXPECT_EQ(bar.GetRows(), 2);
    EXPECT_EQ(bar.m_hWnd->Rect(), (CRect{0, 0, 40, 44}));
    EXPECT_EQ(frame.GetFreeRect().top, 44);
}

TEST_F(KvToolBar, OnNoWindowNothingHappens) {
    bar.ResizeClientRect();
    bar.SetLabel(3, kButtons, kLabels, 1);
    EXPECT_EQ(bar.GetCount(), 0);
}

}  // namespace
