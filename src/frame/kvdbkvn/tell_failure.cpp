#include "frame/kvdbkvn/tell_failure.h"

#include "frame/kvcom/cancelled.h"
#include "window/controls/combo_box_node.h"
#include "window/dialogs/message_box.h"

namespace kv::db {
namespace {

constexpr const char* kCancelled = "Cancelled";

bool IsCancellation(const CKvException& failure) {
    return dynamic_cast<const CKvCancelled*>(&failure) != nullptr;
}

/// The window of the rows, which tells its tool tip as long as there are none.
Node& RowsOf(Node& list) {
    auto* combo = dynamic_cast<ComboBoxNode*>(&list);
    return combo ? combo->List() : list;
}

}  // namespace

void TellFailure(const CKvException& failure) {
    if (!IsCancellation(failure)) AfxMessageBox(failure.GetErrorMessage(true, true).c_str(), 0, 0);
}

void TellFailure(const CKvException& failure, CWnd& list) {
    TellFailure(failure);
    if (IsCancellation(failure)) ShowCancelled(list);
}

void ShowCancelled(CWnd& list) {
    if (!list.m_hWnd) return;
    const bool isCombo = list.m_hWnd->Class() == NodeClass::kComboBox;
    list.SendMessage(isCombo ? CB_RESETCONTENT : LB_RESETCONTENT);
    RowsOf(*list.m_hWnd).SetToolTip(kCancelled);
}

bool SaysCancelled(const CWnd& list) {
    return list.m_hWnd && RowsOf(*list.m_hWnd).ToolTip() == kCancelled;
}

void ShowAskedAnew(CWnd& list) {
    if (SaysCancelled(list)) RowsOf(*list.m_hWnd).SetToolTip("");
}

}  // namespace kv::db
