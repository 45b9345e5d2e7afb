#include "pickers/db_combo_box.h"

#include "frame/kvcom/cancelled.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/tell_failure.h"
#include "frame/kvlogs/log.h"

namespace {

/// What is typed in the box stays.
void AskAnew(CKvDbComboBox& box) {
    const std::string typed = box.WindowText();
    box.V_InitializeCombo();
    if (box.WindowText() != typed) box.SetWindowText(typed.c_str());
}

}  // namespace

BOOL CKvDbComboBox::OnCmdMsg(UINT id, int code, void* extra, void* info) {
    switch (code) {
        case CBN_SELCHANGE:
        case CBN_KILLFOCUS:
            V_SelChanged(true);
            break;
        case EN_CHANGE:
            V_SelChanged(false);
            break;
        case CBN_DROPDOWN:
            if (kv::db::SaysCancelled(*this)) AskAnew(*this);
            break;
        default:
            break;
    }
    return CComboBoxExx::OnCmdMsg(id, code, extra, info);
}

bool CKvDbComboBox::FillFromQuery(const std::string& sql, bool bClear) {
    if (bClear) ResetContent();
    kv::db::ShowAskedAnew(*this);
    CKvDbAbsDataMgr manager(1);
    bool filled = false;
    try {
        manager.Connect();
        manager.Select(sql);
        const int rows = manager.NumberOfRows();
        for (int row = 0; row < rows; ++row)
            AddString(manager.GetItem(row, 0));
        filled = true;
    } catch (const CKvCancelled&) {
        kv::db::ShowCancelled(*this);
    } catch (const CKvException& e) {
        CKvLog::Output(e.GetErrorMessage(true, true), 101, false);
    }
    manager.FreeData();
    manager.Disconnect();
    return filled;
}
