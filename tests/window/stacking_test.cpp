#include "window/stacking.h"

#include "support/dialog_fixture.h"
#include "window/frames/frame_wnd.h"

using enum kv::ControlKind;
using test::FocusedId;
using test::RecordingDialog;
using test::Row;
using test::TestTemplate;

namespace {

/// How often a view was brought up and told of another place.
struct Counts {
    int raised = 0;
    int moved = 0;
};

class CountingView : public kv::View, public kv::Stacked {
public:
    explicit CountingView(Counts& counts) : counts_(counts) {}
    void Changed(kv::Change change) override {
        if (change == kv::Change::kRect) ++counts_.moved;
    }
    void RowsInserted(int, int) override {}
    void RowsRemoved(int, int) override {}
    void Raise() override { ++counts_.raised; }

private:
    Counts& counts_;
};

class Stacking : public test::DialogTest {
protected:
    Stacking() {
        for (RecordingDialog* each : {&first, &second})
            each->Create(test::kTestTemplate);
        first.m_hWnd->SetView(std::make_unique<CountingView>(counts));
    }
    void BringFirst() { kv::BringToTop(*first.m_hWnd); }
    bool FirstIsOnTop() { return kv::IsOnTop(*first.m_hWnd); }

    TestTemplate template_{{Row(11, kEdit), Row(IDOK, kDefaultButton, "OK")}};
    RecordingDialog first;
    RecordingDialog second;
    Counts counts;
};

TEST_F(Stacking, TheNewestWindowIsOnTop) {
    EXPECT_FALSE(FirstIsOnTop());
    EXPECT_TRUE(kv::IsOnTop(*second.m_hWnd));
}

TEST_F(Stacking, AWindowComesUpAndTheKeyboardStays) {
    const kv::Node* focus = kv::WindowSystem::Get().Focus();
    ASSERT_EQ(focus, second.m_hWnd->FindChild(11));
    BringFirst();
    EXPECT_TRUE(FirstIsOnTop());
    EXPECT_FALSE(kv::IsOnTop(*second.m_hWnd));
    EXPECT_EQ(counts.raised, 1);
    EXPECT_EQ(kv::WindowSystem::Get().Focus(), focus);
    EXPECT_EQ(kv::WindowSystem::Get().ActiveWindow(), second.m_hWnd);
    EXPECT_TRUE(second.ToldOfFocus().empty());
}

TEST_F(Stacking, AViewIsToldOfAnotherPlaceOnce) {
    const CRect place = first.m_hWnd->Rect();
    first.MoveWindow(place);
    EXPECT_EQ(counts.moved, 0);
    first.SetWindowPos(nullptr, place.left + 7, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(counts.moved, 1);
}

TEST_F(Stacking, NothingIsDoneForTheOneOnTop) {
    BringFirst();
    const auto changes = kv::WindowSystem::Get().Changes();
    BringFirst();
    EXPECT_EQ(counts.raised, 1);
    EXPECT_EQ(kv::WindowSystem::Get().Changes(), changes);
}

TEST_F(Stacking, AHiddenWindowStaysHidden) {
    first.ShowWindow(SW_HIDE);
    BringFirst();
    EXPECT_FALSE(first.IsWindowVisible());
    EXPECT_FALSE(FirstIsOnTop());
    EXPECT_EQ(counts.raised, 0);
}

TEST_F(Stacking, AHiddenWindowLiesOverNothing) {
    second.ShowWindow(SW_HIDE);
    EXPECT_TRUE(FirstIsOnTop());
    BringFirst();
    EXPECT_EQ(counts.raised, 0);
    second.ShowWindow(SW_SHOW);
    EXPECT_FALSE(FirstIsOnTop());
}

TEST_F(Stacking, WhoeverGetsTheKeyboardComesUp) {
    BringFirst();
    kv::input::Activate(*second.m_hWnd);
    EXPECT_TRUE(kv::IsOnTop(*second.m_hWnd));
    kv::input::MoveFocus(*first.m_hWnd->FindChild(11));
    EXPECT_TRUE(FirstIsOnTop());
    EXPECT_EQ(counts.raised, 1) << "its view has seen to that itself";
}

TEST_F(Stacking, AWindowThatItOwnsMayLieOverIt) {
    RecordingDialog owned(test::kTestTemplate, &first);
    owned.Create(test::kTestTemplate, &first);
    BringFirst();
    EXPECT_TRUE(FirstIsOnTop());
    EXPECT_TRUE(kv::IsOnTop(*owned.m_hWnd));
    EXPECT_FALSE(kv::IsOnTop(*second.m_hWnd));
    kv::input::Activate(*second.m_hWnd);
    EXPECT_FALSE(kv::IsOnTop(*owned.m_hWnd));
    kv::input::MoveFocus(*first.m_hWnd->FindChild(11));
    EXPECT_TRUE(kv::IsOnTop(*owned.m_hWnd)) << "it comes up with its owner";
}

TEST_F(Stacking, ToolsOfAFrameStayOverItWhenItIsActive) {
    CFrameWnd frame;
    frame.Create("Host");
    frame.ShowWindow(SW_SHOW);
    RecordingDialog tool;
    tool.Create(test::kTestTemplate, &frame);
    kv::input::Activate(*frame.m_hWnd);
    EXPECT_TRUE(kv::IsOnTop(*tool.m_hWnd));
    tool.DestroyWindow();
    EXPECT_TRUE(kv::IsOnTop(*frame.m_hWnd));
    frame.DestroyWindow();
    EXPECT_FALSE(FirstIsOnTop());
    EXPECT_TRUE(kv::IsOnTop(*second.m_hWnd));
}

/// The controls of a window, first to last.
std::vector<int> OrderIn(const CWnd& window) {
    std::vector<int> ids;
    for (const auto& child : window.m_hWnd->Children())
        ids.push_back(child->Id());
    return ids;
}

TEST_F(Stacking, AControlTakesAnotherPlaceInTheOrderOnlyWhereItIsAskedTo) {
    using testing::ElementsAre;
    CWnd& edit = *first.GetDlgItem(11);
    CWnd& ok = *first.GetDlgItem(IDOK);
    ok.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_THAT(OrderIn(first), ElementsAre(11, IDOK));
    EXPECT_TRUE(ok.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
    EXPECT_THAT(OrderIn(first), ElementsAre(IDOK, 11));
    ok.SetWindowPos(&edit, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_THAT(OrderIn(first), ElementsAre(11, IDOK));
    EXPECT_TRUE(first.SetWindowPos(nullptr, 7, 8, 0, 0, SWP_NOSIZE)) << "it stands in no other";
}

}  // namespace
