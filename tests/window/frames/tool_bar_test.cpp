#include "window/frames/tool_bar.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/dialog_fixture.h"
#include "window/controls/edit.h"
#include "window/frames/frame_wnd.h"

namespace {

constexpr UINT kZoomIn = 40001;
constexpr UINT kZoomOut = 40002;
constexpr UINT kFull = 40003;
constexpr UINT kUnknown = 40004;

constexpr std::string_view kStripRows[] = {"####", "####"};
constexpr kv::PaletteEntry kStripColors[] = {{'#', 0xFF000000}};
constexpr kv::ImageResource kStrip{700, 4, 2, kStripRows, kStripColors};

class Frame : public CFrameWnd {
public:
    std::vector<UINT> carriedOut;
    BOOL full = FALSE;
    BOOL canZoomOut = TRUE;

    void OnZoom(UINT id) { carriedOut.push_back(id); }
    void OnFull() { full = !full; }
    void OnUpdateZoomOut(CCmdUI* update) { update->Enable(canZoomOut); }
    void OnUpdateFull(CCmdUI* update) {
        update->SetCheck(full);
        update->SetText("not shown");
    }

    static const kv::MessageMap& Messages() {
        static const kv::MessageEntry kEntries[] = {
            kv::OnControlRange<&Frame::OnZoom>(CN_COMMAND, kZoomIn, kZoomOut),
            kv::OnClicked<&Frame::OnFull>(kFull),
            kv::OnUpdate<&Frame::OnUpdateZoomOut>(kZoomOut),
            kv::OnUpdate<&Frame::OnUpdateFull>(kFull),
        };
        static const kv::MessageMap kMap{&CFrameWnd::Messages(), kEntries};
        return kMap;
    }
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }
};

class ToolBar : public test::DialogTest {
protected:
    ToolBar() {
        module.images.push_back(&kStrip);
        kv::AddToResourceChain(module);
        frame.Create("Host", {0, 0, 300, 200});
        frame.ShowWindow(SW_SHOW);
        bar.Create(&frame);
        const UINT ids[] = {kZoomIn, kZoomOut, ID_SEPARATOR, kFull, kUnknown};
        bar.SetButtons(ids, 5);
    }
    ~ToolBar() override { kv::RemoveFromResourceChain(module); }

    kv::ToolBarNode& Node() { return static_cast<kv::ToolBarNode&>(*bar.m_hWnd); }
    const kv::ToolButton& Button(UINT id) {
        return Node().Buttons()[static_cast<std::size_t>(bar.CommandToIndex(id))];
    }

    kv::ResourceModule module;
    Frame frame;
    CToolBar bar;
};

TEST_F(ToolBar, ImagesAreTakenFromTheStripInOrder) {
    EXPECT_EQ(bar.GetCount(), 5);
    EXPECT_EQ(Button(kZoomOut).image, 1);
    EXPECT_EQ(Node().Buttons()[2].image, -1);
    EXPECT_EQ(Button(kFull).image, 2);
    EXPECT_EQ(bar.GetItemID(2), ID_SEPARATOR);
    EXPECT_EQ(bar.GetItemID(9), 0u);
    EXPECT_EQ(bar.CommandToIndex(kFull), 3);
    EXPECT_EQ(bar.CommandToIndex(ID_SEPARATOR), -1);
    EXPECT_EQ(bar.CommandToIndex(1), -1);
}

TEST_F(ToolBar, ANegativeNumberOfButtonsIsRefused) {
    EXPECT_FALSE(bar.SetButtons(nullptr, -1));
    EXPECT_EQ(bar.GetCount(), 5);
    EXPECT_TRUE(bar.SetButtons(nullptr, 2));
    EXPECT_EQ(bar.GetCount(), 2);
}

TEST_F(ToolBar, LoadsImagesThatThereAre) {
    EXPECT_FALSE(bar.LoadBitmap(1));
    EXPECT_TRUE(bar.LoadBitmap(700));
    EXPECT_EQ(Node().Bitmap(), 700);
    EXPECT_TRUE(bar.LoadToolBar(700));
    EXPECT_EQ(Node().ImageSize(), (CSize{16, 2}));
    EXPECT_FALSE(bar.LoadToolBar(1));
}

TEST_F(ToolBar, APressedButtonSendsItsCommandToTheFrame) {
    EXPECT_TRUE(kv::input::PressTool(Node(), kZoomOut));
    EXPECT_EQ(frame.carriedOut, (std::vector<UINT>{kZoomOut}));
    EXPECT_FALSE(kv::input::PressTool(Node(), 1));
    EXPECT_FALSE(kv::input::PressTool(Node(), 0));
}

TEST_F(ToolBar, IdleTimeEnablesAndChecksTheButtons) {
    frame.canZoomOut = FALSE;
    frame.full = TRUE;
    kv::WindowSystem::Get().Settle();
    EXPECT_TRUE(Button(kZoomIn).enabled);
    EXPECT_FALSE(Button(kZoomOut).enabled);
    EXPECT_TRUE(Button(kFull).checked);
    EXPECT_EQ(Button(kFull).text, "");
    EXPECT_FALSE(Button(kUnknown).enabled);
    EXPECT_FALSE(kv::input::PressTool(Node(), kZoomOut));
    EXPECT_EQ(frame.carriedOut, std::vector<UINT>{});
}

TEST_F(ToolBar, AnUpdateThatChangesNothingAsksForNoFurtherIdle) {
    kv::WindowSystem::Get().Settle();
    const auto before = kv::WindowSystem::Get().Changes();
    kv::WindowSystem::Get().Settle();
    EXPECT_EQ(kv::WindowSystem::Get().Changes(), before);
}

TEST_F(ToolBar, AButtonIsPressedWhereItIsLetGo) {
    CRect first;
    CRect second;
    bar.GetItemRect(0, &first);
    bar.GetItemRect(1, &second);
    const CPoint onFirst{first.left + 2, first.top + 2};
    const CPoint onSecond{second.left + 2, second.top + 2};
    kv::input::ClickAt(Node(), onSecond);
    EXPECT_EQ(frame.carriedOut, (std::vector<UINT>{kZoomOut}));
    kv::input::Press(Node(), onFirst);
    kv::input::Release(Node(), onSecond);
    EXPECT_EQ(frame.carriedOut.size(), 1u);
    CRect gap;
    bar.GetItemRect(2, &gap);
    kv::input::ClickAt(Node(), {gap.left + 2, gap.top + 2});
    EXPECT_EQ(frame.carriedOut.size(), 1u);
}

TEST_F(ToolBar, PressingAButtonLeavesTheFocus) {
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, {0, 100, 50, 120}, &frame, 5);
    edit.SetFocus();
    kv::input::Click(Node());
    EXPECT_EQ(CWnd::GetFocus(), &edit);
}

TEST_F(ToolBar, WrapsItsButtonsAtItsWidth) {
    EXPECT_EQ(bar.GetMaxSize(), (CSize{4 * 23 + 8, 22}));
    EXPECT_EQ(Node().RowsAt(100), 1);
    EXPECT_EQ(Node().RowsAt(99), 2);
    EXPECT_EQ(Node().RowsAt(1), 5);
    EXPECT_EQ(bar.GetHeightAt(99), 44);
    bar.MoveWindow(0, 0, 60, 44);
    CRect fourth;
    bar.GetItemRect(3, &fourth);
    EXPECT_EQ(fourth.TopLeft(), (CPoint{0, 22}));
    CRect none{1, 1, 1, 1};
    bar.GetItemRect(7, &none);
    EXPECT_EQ(none, CRect{});
}

TEST_F(ToolBar, SetRowsMakesItAsNarrowAsItCanBe) {
    bar.SetRows(1);
    EXPECT_EQ(bar.m_hWnd->Rect().Width(), 100);
    EXPECT_EQ(bar.GetRows(), 1);
    bar.SetRows(2);
    EXPECT_EQ(bar.GetRows(), 2);
    EXPECT_EQ(bar.m_hWnd->Rect().Height(), 44);
    EXPECT_LT(bar.m_hWnd->Rect().Width(), 100);
}

TEST_F(ToolBar, TheFrameGivesItTheHeightOfItsRows) {
    frame.RecalcLayout();
    EXPECT_EQ(bar.m_hWnd->Rect(), (CRect{0, 0, 300, 22}));
    EXPECT_EQ(frame.GetFreeRect(), (CRect{0, 22, 300, 200}));
    frame.MoveWindow(0, 0, 60, 200);
    frame.RecalcLayout();
    EXPECT_EQ(bar.m_hWnd->Rect(), (CRect{0, 0, 60, 44}));
    EXPECT_EQ(frame.GetFreeRect(), (CRect{0, 44, 60, 200}));
}

TEST_F(ToolBar, BarsStandOneBelowTheOther) {
    CToolBar second;
    second.CreateEx(&frame);
    const UINT ids[] = {kFull};
    second.SetButtons(ids, 1);
    frame.RecalcLayout();
    EXPECT_EQ(second.m_hWnd->Rect(), (CRect{0, 22, 300, 44}));
    frame.ShowControlBar(&bar, FALSE, FALSE);
    EXPECT_EQ(second.m_hWnd->Rect(), (CRect{0, 0, 300, 22}));
}

TEST_F(ToolBar, AFlatOneIsFlatInItsWindowAndDocksAsToldByItsBarStyle) {
    CToolBar flat;
    ASSERT_TRUE(flat.CreateEx(&frame));
    EXPECT_TRUE(flat.GetStyle() & TBSTYLE_FLAT);
    EXPECT_EQ(flat.GetBarStyle(), CBRS_TOP);
    EXPECT_EQ(flat.GetDlgCtrlID(), static_cast<int>(AFX_IDW_TOOLBAR));
}

TEST_F(ToolBar, ALabelMakesAButtonsNaturalSizeLarger) {
    EXPECT_EQ(bar.GetNaturalSize(0), (CSize{23, 21}));
    EXPECT_TRUE(bar.SetButtonText(0, "Zoom in to the map"));
    EXPECT_FALSE(bar.SetButtonText(9, "x"));
    EXPECT_EQ(bar.GetButtonText(0), "Zoom in to the map");
    EXPECT_EQ(bar.GetButtonText(9), "");
    const CSize size = bar.GetNaturalSize(0);
    EXPECT_GT(size.cx, 60);
    EXPECT_FALSE(Node().ShowsText());
    bar.SetSizes(size, {16, 15});
    EXPECT_TRUE(Node().ShowsText());
    CRect place;
    bar.GetItemRect(1, &place);
    EXPECT_EQ(place.Size(), size);
}

TEST_F(ToolBar, AHandleOnNoWindowAnswersAsForNoBar) {
    CToolBar none;
    EXPECT_EQ(none.GetCount(), 0);
    EXPECT_FALSE(none.LoadBitmap(700));
    EXPECT_FALSE(none.SetButtons(nullptr, 0));
    EXPECT_EQ(none.CommandToIndex(kFull), -1);
    EXPECT_EQ(none.GetMaxSize(), CSize{});
}

}  // namespace
