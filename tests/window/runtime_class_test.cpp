#include "window/runtime_class.h"

#include <string>

#include "support/dialog_fixture.h"
#include "window/controls/bitmap_button.h"
#include "window/controls/combo_box.h"
#include "window/controls/edit.h"
#include "window/controls/list_box.h"
#include "window/controls/progress_ctrl.h"
#include "window/controls/spin_button_ctrl.h"
#include "window/controls/static_text.h"
#include "window/dialogs/file_dialog.h"
#include "window/dialogs/print_dialog.h"
#include "window/frames/frame_wnd.h"
#include "window/frames/tool_bar.h"
#include "window/list_view/list_ctrl.h"

namespace {

std::string NameOf(const CWnd& window) {
    return window.GetRuntimeClass()->m_lpszClassName;
}

TEST(RuntimeClass, IsAskedOfAnyWindow) {
    EXPECT_EQ(NameOf(CWnd()), "CWnd");
    EXPECT_EQ(NameOf(CFrameWnd()), "CFrameWnd");
    EXPECT_EQ(NameOf(CControlBar()), "CControlBar");
    EXPECT_EQ(NameOf(CDialogBar()), "CDialogBar");
    EXPECT_EQ(NameOf(CToolBar()), "CToolBar");
    EXPECT_EQ(NameOf(CDialog()), "CDialog");
    EXPECT_EQ(NameOf(CFileDialog(TRUE)), "CFileDialog");
    EXPECT_EQ(NameOf(CPrintDialog(TRUE)), "CPrintDialog");
    EXPECT_EQ(NameOf(CButton()), "CButton");
    EXPECT_EQ(NameOf(CBitmapButton()), "CBitmapButton");
    EXPECT_EQ(NameOf(CComboBox()), "CComboBox");
    EXPECT_EQ(NameOf(CEdit()), "CEdit");
    EXPECT_EQ(NameOf(CListBox()), "CListBox");
    EXPECT_EQ(NameOf(CListCtrl()), "CListCtrl");
    EXPECT_EQ(NameOf(CHeaderCtrl()), "CHeaderCtrl");
    EXPECT_EQ(NameOf(CProgressCtrl()), "CProgressCtrl");
    EXPECT_EQ(NameOf(CSpinButtonCtrl()), "CSpinButtonCtrl");
    EXPECT_EQ(NameOf(CStatic()), "CStatic");
}

TEST(RuntimeClass, OfAClassWithoutARecordIsItsBases) {
    EXPECT_EQ(NameOf(test::RecordingDialog()), "CDialog");
}

TEST(RuntimeClass, OfALookedUpControlFitsIt) {
    const test::TestTemplate dialogTemplate({test::Row(11, kv::ControlKind::kEdit)});
    test::RecordingDialog dialog;
    dialog.Create(test::kTestTemplate);
    EXPECT_EQ(NameOf(*dialog.GetDlgItem(11)), "CEdit");
}

TEST(RuntimeClass, MakesObjectsWhereThatCanBeDone) {
    const auto made = CWnd::classCWnd.CreateObject();
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetRuntimeClass(), &CWnd::classCWnd);
    EXPECT_EQ(CEdit::classCEdit.CreateObject(), nullptr);
}

}  // namespace
