#pragma once

#include "base/export.h"
#include "window/node.h"

namespace kv {

/// A label: a text, an icon or a bitmap.
class KVGUICTL_API StaticNode : public Node {
public:
    StaticNode(int id, DWORD style) : Node(NodeClass::kStatic, id, style) {}

    /// Id of the image, 0 for none.
    LPARAM Image() const { return image_; }

    LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;
    int DialogCode() const override { return DLGC_STATIC; }

private:
    LPARAM image_ = 0;
};

}  // namespace kv
