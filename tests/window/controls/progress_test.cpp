#include "window/controls/progress_ctrl.h"

#include <gtest/gtest.h>

#include "support/dialog_fixture.h"
#include "window/frames/frame_wnd.h"

namespace {

class Progress : public test::DialogTest {
protected:
    Progress() {
        host.Create("Host");
        bar.Create(WS_CHILD | WS_VISIBLE, {0, 0, 100, 12}, &host, 1);
    }
    const kv::ProgressNode& Node() { return static_cast<const kv::ProgressNode&>(*bar.m_hWnd); }

    CFrameWnd host;
    CProgressCtrl bar;
};

TEST_F(Progress, BeginsWithAHundredAndStepsOfTen) {
    int lower = -1;
    int upper = -1;
    bar.GetRange(lower, upper);
    EXPECT_EQ(lower, 0);
    EXPECT_EQ(upper, 100);
    EXPECT_EQ(bar.StepIt(), 0);
    EXPECT_EQ(bar.GetPos(), 10);
    EXPECT_EQ(bar.SetStep(3), 10);
    EXPECT_EQ(bar.SetStep(3), 3);
}

TEST_F(Progress, KeepsPositionsInTheRange) {
    bar.SetRange(10, 20);
    EXPECT_EQ(bar.GetPos(), 10);
    EXPECT_EQ(bar.SetPos(99), 10);
    EXPECT_EQ(bar.GetPos(), 20);
    EXPECT_EQ(bar.OffsetPos(-5), 20);
    EXPECT_EQ(bar.GetPos(), 15);
    bar.SetPos(-99);
    EXPECT_EQ(bar.GetPos(), 10);
}

TEST_F(Progress, TakesARangeInOneNumberAndAnswersTheFormerOne) {
    bar.SetPos(80);
    EXPECT_EQ(bar.SendMessage(PBM_SETRANGE, 0, MAKELPARAM(10, 60000)), MAKELPARAM(0, 100));
    int lower = -1;
    int upper = -1;
    bar.GetRange(lower, upper);
    EXPECT_EQ(lower, 10);
    EXPECT_EQ(upper, 60000);
    EXPECT_EQ(bar.GetPos(), 80);
    EXPECT_EQ(bar.SendMessage(PBM_SETRANGE, 0, MAKELPARAM(0, 50)), MAKELPARAM(10, 60000));
    EXPECT_EQ(bar.GetPos(), 50);
    EXPECT_EQ(bar.SendMessage(PBM_SETRANGE32, 7, 9), MAKELPARAM(0, 50));
    EXPECT_EQ(bar.SendMessage(PBM_SETRANGE32, 7, 9), MAKELPARAM(7, 9));
}

TEST_F(Progress, APositionBeyondANewRangeIsBroughtIntoIt) {
    bar.SetPos(80);
    bar.SetRange32(0, 50);
    EXPECT_EQ(bar.GetPos(), 50);
}

TEST_F(Progress, BeginsAnewPastItsEnd) {
    bar.SetStep(30);
    bar.SetPos(90);
    EXPECT_EQ(bar.StepIt(), 90);
    EXPECT_EQ(bar.GetPos(), 20);
}

TEST_F(Progress, ReachesItsEndExactly) {
    bar.SetStep(20);
    for (int step = 0; step < 5; ++step)
        bar.StepIt();
    EXPECT_EQ(bar.GetPos(), 100);
}

TEST_F(Progress, HugeStepsAndRangesDoNotOverflow) {
    bar.SetRange32(-2000000000, 2000000000);
    bar.SetPos(2000000000);
    bar.OffsetPos(2000000000);
    EXPECT_EQ(bar.GetPos(), 2000000000);
    bar.SetStep(2000000000);
    bar.StepIt();
    EXPECT_EQ(bar.GetPos(), 0);
}

TEST_F(Progress, ARangeTurnedRoundAndAnEmptyOneDoNoHarm) {
    bar.SetRange(50, 10);
    bar.SetPos(30);
    EXPECT_EQ(bar.GetPos(), 30);
    bar.SetRange(7, 7);
    EXPECT_EQ(bar.GetPos(), 7);
    bar.StepIt();
    EXPECT_EQ(bar.GetPos(), 7);
}

TEST_F(Progress, TellsItsViewOnlyOfChanges) {
    struct Counter : kv::View {
        explicit Counter(int& changes) : changes_(changes) {}
        void Changed(kv::Change) override { ++changes_; }
        void RowsInserted(int, int) override {}
        void RowsRemoved(int, int) override {}
        int& changes_;
    };
    int changes = 0;
    bar.m_hWnd->SetView(std::make_unique<Counter>(changes));
    bar.SetPos(0);
    bar.SetRange(0, 100);
    EXPECT_EQ(changes, 0);
    bar.SetPos(1);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(Node().Position(), 1);
}

}  // namespace
