#include "window/frames/frame_wnd.h"

#include "support/dialog_fixture.h"
#include "window/frames/control_bar.h"

using enum kv::ControlKind;
using test::Row;
using test::TestTemplate;

namespace {

class FrameWnd : public test::DialogTest {
protected:
    FrameWnd() { frame_.Create("Host", {0, 0, 600, 400}); }

    /// A bar 42 pixels wide and 13 high.
    BOOL CreateBar(CDialogBar& bar, UINT style, UINT id) {
        return bar.Create(&frame_, 200, style, id);
    }
    static CRect Place(const CWnd& bar) { return bar.m_hWnd->Rect(); }

    TestTemplate barTemplate_{{Row(11, kEdit)}, 200, "", 28, 8};
    CFrameWnd frame_;
};

TEST_F(FrameWnd, HasAllItsRoomFreeAheadOfTheFirstBar) {
    EXPECT_EQ(frame_.GetFreeRect(), (CRect{0, 0, 600, 400}));
}

TEST_F(FrameWnd, LaysBarsOutAlongTheEdgesThatTheyDockAt) {
    CDialogBar top;
    CDialogBar bottom;
    CDialogBar left;
    CDialogBar right;
    CreateBar(top, CBRS_TOP, 201);
    CreateBar(bottom, CBRS_BOTTOM, 202);
    CreateBar(left, CBRS_LEFT, 203);
    CreateBar(right, CBRS_RIGHT, 204);
    frame_.RecalcLayout();
    EXPECT_EQ(Place(top), (CRect{0, 0, 600, 13}));
    EXPECT_EQ(Place(bottom), (CRect{0, 387, 600, 400}));
    EXPECT_EQ(Place(left), (CRect{0, 13, 42, 387}));
    EXPECT_EQ(Place(right), (CRect{558, 13, 600, 387}));
    EXPECT_EQ(frame_.GetFreeRect(), (CRect{42, 13, 558, 387}));
}

TEST_F(FrameWnd, GivesAHiddenBarNoRoom) {
    CDialogBar bar;
    CreateBar(bar, CBRS_TOP, 201);
    frame_.ShowControlBar(&bar, FALSE, FALSE);
    EXPECT_FALSE(bar.IsVisible());
    EXPECT_EQ(frame_.GetFreeRect(), (CRect{0, 0, 600, 400}));
    frame_.ShowControlBar(&bar, TRUE, FALSE);
    EXPECT_TRUE(bar.IsVisible());
    EXPECT_EQ(frame_.GetFreeRect(), (CRect{0, 13, 600, 400}));
}

TEST_F(FrameWnd, LaysBarsOutAnewWhenItsSizeChanges) {
    CDialogBar bar;
    CreateBar(bar, CBRS_BOTTOM, 201);
    frame_.MoveWindow(50, 50, 300, 200);
    EXPECT_EQ(Place(bar), (CRect{0, 187, 300, 200}));
    EXPECT_EQ(frame_.GetFreeRect(), (CRect{0, 0, 300, 187}));
}

TEST_F(FrameWnd, DocksABarOnlyAtASideThatBothAllow) {
    CDialogBar bar;
    CreateBar(bar, CBRS_TOP, 201);
    const CRect undocked = Place(bar);
    bar.EnableDocking(CBRS_ALIGN_TOP);
    frame_.EnableDocking(CBRS_ALIGN_LEFT);
    frame_.DockControlBar(&bar);
    EXPECT_EQ(Place(bar), undocked);
    frame_.EnableDocking(CBRS_ALIGN_ANY);
    frame_.DockControlBar(&bar);
    EXPECT_EQ(Place(bar), (CRect{0, 0, 600, 13}));
}

TEST_F(FrameWnd, OfTheApplicationIsFoundUntilTheApplicationGoes) {
    EXPECT_EQ(AfxGetApp(), nullptr);
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
    {
        CWinApp app;
        app.m_pMainWnd = &frame_;
        EXPECT_EQ(AfxGetApp(), &app);
        EXPECT_EQ(AfxGetMainWnd(), &frame_);
    }
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
}

}  // namespace
