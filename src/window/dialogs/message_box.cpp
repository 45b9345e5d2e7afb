#include "window/dialogs/message_box.h"

#include "window/modal_scope.h"
#include "window/wnd.h"

int AfxMessageBox(const char* text, UINT type, UINT) {
    return kv::RunMessageBox({text ? text : "", "", type, CWnd::GetActiveWindow()});
}
