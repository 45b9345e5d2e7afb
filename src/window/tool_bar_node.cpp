#include "window/tool_bar_node.h"

#include <algorithm>

namespace kv {

namespace {

constexpr int kSeparatorWidth = 8;

}  // namespace

void ToolBarNode::SetButtons(std::vector<ToolButton> buttons) {
    buttons_ = std::move(buttons);
    Tell(Change::kRows);
}

void ToolBarNode::SetButton(int index, ToolButton button) {
    ToolButton& present = buttons_[static_cast<std::size_t>(index)];
    const bool same = present.id == button.id && present.image == button.image &&
                      present.text == button.text && present.enabled == button.enabled &&
                      present.checked == button.checked;
    if (same) return;
    present = std::move(button);
    Tell(Change::kCheck);
}

int ToolBarNode::IndexOf(int id) const {
    const auto at = std::find_if(buttons_.begin(), buttons_.end(),
                                 [id](const ToolButton& button) { return button.id == id; });
    return at == buttons_.end() || id == 0 ? -1 : static_cast<int>(at - buttons_.begin());
}

void ToolBarNode::SetSizes(CSize button, CSize image) {
    if (button == buttonSize_ && image == imageSize_) return;
    buttonSize_ = button;
    imageSize_ = image;
    Tell(Change::kColumns);
}

CRect ToolBarNode::ButtonRect(int index) const {
    const int width = Rect().Width() > 0 ? Rect().Width() : MaxSize().cx;
    int x = 0;
    int y = 0;
    for (int each = 0;; ++each) {
        const bool separator = buttons_[static_cast<std::size_t>(each)].id == 0;
        const int own = separator ? kSeparatorWidth : buttonSize_.cx;
        if (x > 0 && x + own > width) {
            x = 0;
            y += buttonSize_.cy;
        }
        if (each == index) return {x, y, x + own, y + buttonSize_.cy};
        x += own;
    }
}

int ToolBarNode::RowsAt(int width) const {
    int rows = 1;
    int x = 0;
    for (const ToolButton& button : buttons_) {
        const int own = button.id == 0 ? kSeparatorWidth : buttonSize_.cx;
        if (x > 0 && x + own > width) {
            ++rows;
            x = 0;
        }
        x += own;
    }
    return rows;
}

CSize ToolBarNode::MaxSize() const {
    int width = 0;
    for (const ToolButton& button : buttons_) {
        width += button.id == 0 ? kSeparatorWidth : buttonSize_.cx;
    }
    return {width, buttonSize_.cy};
}

void ToolBarNode::SetBitmap(int id) {
    if (id == bitmap_) return;
    bitmap_ = id;
    Tell(Change::kImage);
}

bool ToolBarNode::UserPress(int id) {
    const int index = IndexOf(id);
    if (index < 0 || !buttons_[static_cast<std::size_t>(index)].enabled || !ReallyEnabled()) {
        return false;
    }
    if (Parent()) Send(*Parent(), WM_COMMAND, MAKEWPARAM(id, CN_COMMAND), 0);
    return true;
}

}  // namespace kv
