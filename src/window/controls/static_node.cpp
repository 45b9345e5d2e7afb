#include "window/controls/static_node.h"

namespace kv {

LRESULT StaticNode::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case STM_GETIMAGE:
            return image_;
        case STM_SETIMAGE: {
            const LPARAM former = image_;
            image_ = lParam;
            if (image_ != former) Tell(Change::kImage);
            return former;
        }
        default:
            return Node::Process(message, wParam, lParam);
    }
}

}  // namespace kv
