#include "frame/kvdbkvn/tell_failure.h"

#include <gmock/gmock.h>

#include "frame/kvcom/cancelled.h"
#include "support/dialog_fixture.h"
#include "window/controls/combo_box_node.h"

namespace {

using kv::db::SaysCancelled;
using kv::db::ShowAskedAnew;
using kv::db::ShowCancelled;
using kv::db::TellFailure;
using test::Row;
using ::testing::IsEmpty;

constexpr int kList = 11;
constexpr int kCombo = 12;
const CKvException kFailure("no such thing", "select 1");
const char* const kTold = "Database error: no such thing\n\nselect 1";

class TellFailureTest : public test::DialogTest {
protected:
    TellFailureTest() {
        dialog.Create(test::kTestTemplate);
        for (const char* row : {"Green Canyon", "Main Pass"}) {
            List().SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row));
            Combo().SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(row));
        }
    }
    ~TellFailureTest() override { dialog.DestroyWindow(); }

    CWnd& List() { return *dialog.GetDlgItem(kList); }
    CWnd& Combo() { return *dialog.GetDlgItem(kCombo); }
    kv::ListBoxNode& ListNode() { return dynamic_cast<kv::ListBoxNode&>(*List().m_hWnd); }
    kv::ListBoxNode& DroppedNode() {
        return dynamic_cast<kv::ComboBoxNode&>(*Combo().m_hWnd).List();
    }

    test::TestTemplate form{
        {Row(kList, kv::ControlKind::kListBox), Row(kCombo, kv::ControlKind::kDropList)}};
    test::RecordingDialog dialog;
};

TEST_F(TellFailureTest, ABoxShowsTheDatabasesWordsAndTheStatement) {
    desktop.ExpectMessage(kTold);
    TellFailure(kFailure);
}

TEST_F(TellFailureTest, OfACancelledQueryNoBoxTells) {
    TellFailure(CKvCancelled());
    TellFailure(CKvCancelled(), List());
    EXPECT_THAT(desktop.Messages(), IsEmpty());
}

TEST_F(TellFailureTest, AListWhoseQueryWasCancelledIsEmptyAndSaysSo) {
    TellFailure(CKvCancelled(), List());
    EXPECT_EQ(ListNode().Rows().Count(), 0);
    EXPECT_EQ(ListNode().ToolTip(), "Cancelled");
    EXPECT_TRUE(SaysCancelled(List()));
    EXPECT_FALSE(SaysCancelled(Combo()));
}

TEST_F(TellFailureTest, AComboBoxWhoseQueryWasCancelledIsEmptyAndItsListSaysSo) {
    TellFailure(CKvCancelled(), Combo());
    EXPECT_EQ(DroppedNode().Rows().Count(), 0);
    EXPECT_EQ(DroppedNode().ToolTip(), "Cancelled");
    EXPECT_EQ(Combo().m_hWnd->ToolTip(), "");
    EXPECT_TRUE(SaysCancelled(Combo()));
    EXPECT_FALSE(SaysCancelled(List()));
}

TEST_F(TellFailureTest, AListWhoseQueryFailedKeepsItsRowsAndSaysNothing) {
    desktop.ExpectMessage(kTold);
    desktop.ExpectMessage(kTold);
    TellFailure(kFailure, List());
    TellFailure(kFailure, Combo());
    EXPECT_EQ(ListNode().Rows().Count(), 2);
    EXPECT_EQ(DroppedNode().Rows().Count(), 2);
    EXPECT_FALSE(SaysCancelled(List()));
    EXPECT_FALSE(SaysCancelled(Combo()));
}

TEST_F(TellFailureTest, AListThatIsAskedAnewSaysNothingAnyMore) {
    ShowCancelled(List());
    ShowCancelled(Combo());
    ShowAskedAnew(List());
    ShowAskedAnew(Combo());
    EXPECT_EQ(ListNode().ToolTip(), "");
    EXPECT_EQ(DroppedNode().ToolTip(), "");
}

TEST_F(TellFailureTest, AListThatIsAskedAnewKeepsTheToolTipOfAnother) {
    ListNode().SetToolTip("Areas by name");
    ShowAskedAnew(List());
    EXPECT_EQ(ListNode().ToolTip(), "Areas by name");
}

TEST_F(TellFailureTest, AListThatIsNotThereSaysNothing) {
    CWnd none;
    TellFailure(CKvCancelled(), none);
    EXPECT_FALSE(SaysCancelled(none));
    ShowAskedAnew(none);
    EXPECT_FALSE(SaysCancelled(none));
}

}  // namespace
