#include "window/controls/button.h"

#include "window/controls/button_node.h"
#include "window/node_factory.h"

namespace {

const kv::RegisterControl<kv::ButtonNode, CButton> kRegistered{kv::NodeClass::kButton};

}  // namespace

BOOL CButton::Create(LPCTSTR text, DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CreateNode(kv::NodeClass::kButton, text, style, rect, parent, static_cast<int>(id));
}

int CButton::GetCheck() const {
    return static_cast<int>(SendMessage(BM_GETCHECK));
}

void CButton::SetCheck(int check) {
    SendMessage(BM_SETCHECK, static_cast<WPARAM>(check));
}

UINT CButton::GetState() const {
    return static_cast<UINT>(SendMessage(BM_GETSTATE));
}

void CButton::SetState(BOOL pushed) {
    SendMessage(BM_SETSTATE, static_cast<WPARAM>(pushed));
}

void CButton::SetButtonStyle(UINT style, BOOL redraw) {
    SendMessage(BM_SETSTYLE, style, redraw);
}

UINT CButton::GetButtonStyle() const {
    return GetStyle() & BS_TYPEMASK;
}

UINT CButton::SetIcon(UINT imageId) {
    return static_cast<UINT>(SendMessage(BM_SETIMAGE, IMAGE_ICON, imageId));
}

UINT CButton::GetIcon() const {
    return static_cast<UINT>(SendMessage(BM_GETIMAGE, IMAGE_ICON));
}

UINT CButton::SetBitmap(UINT imageId) {
    return static_cast<UINT>(SendMessage(BM_SETIMAGE, IMAGE_BITMAP, imageId));
}

UINT CButton::GetBitmap() const {
    return static_cast<UINT>(SendMessage(BM_GETIMAGE, IMAGE_BITMAP));
}
