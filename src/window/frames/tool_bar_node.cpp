#include "window/frames/tool_bar_node.h"

#include <algorithm>
#include <utility>

#include "window/window_system.h"

namespace kv {

namespace {

constexpr int kSeparatorWidth = 8;
/// What a button has around its image, and around its text.
constexpr int kImageRoomX = 7;
constexpr int kImageRoomY = 6;
constexpr int kTextRoomX = 8;

CSize TextSize(const std::string& text, const Font& font) {
    Desktop& desktop = WindowSystem::Get().GetDesktop();
    return desktop.TextExtent(text, font.height ? font : desktop.DefaultFont());
}

}  // namespace

void ToolBarNode::SetButtons(std::vector<ToolButton> buttons) {
    buttons_ = std::move(buttons);
    pressed_ = -1;
    Tell(Change::kRows);
}

bool ToolBarNode::SetButton(int index, ToolButton button) {
    if (!Has(index)) return false;
    ToolButton& present = buttons_[static_cast<std::size_t>(index)];
    if (present == button) return true;
    present = std::move(button);
    Tell(Change::kCheck);
    return true;
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

CSize ToolBarNode::NaturalSize(int index) const {
    CSize size{imageSize_.cx + kImageRoomX, imageSize_.cy + kImageRoomY};
    if (!Has(index)) return size;
    const std::string& text = buttons_[static_cast<std::size_t>(index)].text;
    if (text.empty()) return size;
    const CSize extent = TextSize(text, font_);
    size.cx = std::max(size.cx, extent.cx + kTextRoomX);
    size.cy += extent.cy;
    return size;
}

bool ToolBarNode::ShowsText() const {
    return buttonSize_.cy >= imageSize_.cy + kImageRoomY + TextSize("", font_).cy;
}

int ToolBarNode::WidthOf(const ToolButton& button) const {
    return button.id == 0 ? kSeparatorWidth : buttonSize_.cx;
}

/// Calls `visit` with the index and the place of each button in a bar of that width. Returns the
/// number of rows.
template <typename Visit>
int ToolBarNode::LayOut(int width, Visit visit) const {
    int rows = 1;
    int x = 0;
    for (std::size_t index = 0; index < buttons_.size(); ++index) {
        const int own = WidthOf(buttons_[index]);
        if (x > 0 && x + own > width) {
            ++rows;
            x = 0;
        }
        const int y = (rows - 1) * buttonSize_.cy;
        visit(static_cast<int>(index), CRect{x, y, x + own, y + buttonSize_.cy});
        x += own;
    }
    return rows;
}

CRect ToolBarNode::ButtonRect(int index) const {
    CRect found;
    LayOut(Rect().Width() > 0 ? Rect().Width() : MaxSize().cx, [&](int each, const CRect& place) {
        if (each == index) found = place;
    });
    return found;
}

int ToolBarNode::IndexAt(CPoint at) const {
    int found = -1;
    LayOut(Rect().Width() > 0 ? Rect().Width() : MaxSize().cx, [&](int each, const CRect& place) {
        const bool button = buttons_[static_cast<std::size_t>(each)].id != 0;
        if (button && place.PtInRect(at)) found = each;
    });
    return found;
}

int ToolBarNode::RowsAt(int width) const {
    return LayOut(width, [](int, const CRect&) {});
}

int ToolBarNode::Rows() const {
    return Rect().Width() > 0 ? RowsAt(Rect().Width()) : 1;
}

void ToolBarNode::SetRows(int rows) {
    // Fewer rows take more width.
    int least = buttonSize_.cx;
    int most = std::max(least, MaxSize().cx);
    while (least < most) {
        const int middle = least + (most - least) / 2;
        if (RowsAt(middle) <= std::max(rows, 1)) {
            most = middle;
        } else {
            least = middle + 1;
        }
    }
    const CPoint corner = Rect().TopLeft();
    SetRect({corner.x, corner.y, corner.x + least, corner.y + RowsAt(least) * buttonSize_.cy});
}

CSize ToolBarNode::MaxSize() const {
    int width = 0;
    for (const ToolButton& button : buttons_)
        width += WidthOf(button);
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

LRESULT ToolBarNode::Process(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto place = static_cast<std::uintptr_t>(lParam);
    const CPoint at{static_cast<std::int16_t>(LOWORD(place)),
                    static_cast<std::int16_t>(HIWORD(place))};
    switch (message) {
        case WM_SETFONT:
            font_ = wParam ? *reinterpret_cast<const Font*>(wParam) : Font();
            Tell(Change::kColumns);
            return 0;
        case WM_LBUTTONDOWN:
            pressed_ = IndexAt(at);
            return 0;
        case WM_LBUTTONUP: {
            // Let go beside the button it was pressed on, nothing is meant.
            const int pressed = std::exchange(pressed_, -1);
            if (pressed >= 0 && pressed == IndexAt(at)) {
                UserPress(buttons_[static_cast<std::size_t>(pressed)].id);
            }
            return 0;
        }
        default:
            return Node::Process(message, wParam, lParam);
    }
}

}  // namespace kv
