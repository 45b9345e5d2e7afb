#include "window/controls/static_text.h"

#include "window/controls/static_node.h"
#include "window/node_factory.h"

namespace {

const kv::RegisterControl<kv::StaticNode, CStatic> kRegistered{kv::NodeClass::kStatic};

}  // namespace

BOOL CStatic::Create(LPCTSTR text, DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CreateNode(kv::NodeClass::kStatic, text, style, rect, parent, static_cast<int>(id));
}

UINT CStatic::SetIcon(UINT imageId) {
    return static_cast<UINT>(SendMessage(STM_SETIMAGE, IMAGE_ICON, imageId));
}

UINT CStatic::GetIcon() const {
    return static_cast<UINT>(SendMessage(STM_GETIMAGE, IMAGE_ICON));
}

UINT CStatic::SetBitmap(UINT imageId) {
    return static_cast<UINT>(SendMessage(STM_SETIMAGE, IMAGE_BITMAP, imageId));
}

UINT CStatic::GetBitmap() const {
    return static_cast<UINT>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP));
}
