#include <algorithm>
#include <utility>

#include "window/controls/list_box_node.h"
#include "window/desktop.h"
#include "window/list_view/list_view_node.h"
#include "window/window_system.h"

// Places, scrolling and looks of a list view.

namespace kv {

namespace {

constexpr int kHeaderHeight = 17;
constexpr int kCheckBoxWidth = 16;
/// One step to the right of a list without images.
constexpr int kIndentWidth = 16;
/// What a text needs on both sides together, so that it is not cut.
constexpr int kRoomAroundText = 12;

// Kinds of scrolling, in the low word of WM_VSCROLL.
constexpr int kLineUp = 0;
constexpr int kLineDown = 1;
constexpr int kPageUp = 2;
constexpr int kPageDown = 3;
constexpr int kThumbPosition = 4;
constexpr int kThumbTrack = 5;
constexpr int kTop = 6;
constexpr int kBottom = 7;

int TextWidth(const std::string& text) {
    Desktop& desktop = WindowSystem::Get().GetDesktop();
    return desktop.TextExtent(text, desktop.DefaultFont()).cx;
}

/// The row of headings.
class HeaderNode : public Node {
public:
    HeaderNode() : Node(NodeClass::kOther, 0, WS_CHILD) {}

    LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != HDM_GETITEMCOUNT) return Node::Process(message, wParam, lParam);
        return static_cast<LRESULT>(static_cast<ListViewNode*>(Parent())->Columns().size());
    }
};

}  // namespace

int ListViewNode::HeaderHeight() const {
    return HasStyle(LVS_NOCOLUMNHEADER) ? 0 : kHeaderHeight;
}

const Raster* ListViewNode::ShownImage(int row, int column) const {
    const bool shows = column == 0 || (extendedStyle_ & LVS_EX_SUBITEMIMAGES);
    return smallImages_ && shows ? smallImages_->At(CellImage(row, column)) : nullptr;
}

/// All rows keep room for an image in the first column, so that their texts stand in line.
int ListViewNode::ImageWidth(int column) const {
    return smallImages_ && column == 0 ? smallImages_->Size().cx : 0;
}

int ListViewNode::IndentWidth(int row) const {
    const int step = smallImages_ ? smallImages_->Size().cx : kIndentWidth;
    return Has(row) ? std::max(Row(row).indent, 0) * step : 0;
}

int ListViewNode::RowHeight() const {
    constexpr int kSpaceBelowImage = 1;
    const int image = smallImages_ ? smallImages_->Size().cy + kSpaceBelowImage : 0;
    return std::max(kListRowHeight, image);
}

LRESULT ListViewNode::SetImages(int kind, ImageList* images) {
    if (kind != LVSIL_NORMAL && kind != LVSIL_SMALL) return 0;
    auto& present = kind == LVSIL_SMALL ? smallImages_ : normalImages_;
    const auto former = std::exchange(present, images ? images->shared_from_this() : nullptr);
    Tell(Change::kImage);
    // One that nobody else has goes with this call.
    return former.use_count() > 1 ? reinterpret_cast<LRESULT>(former.get()) : 0;
}

LRESULT ListViewNode::Images(int kind) const {
    const ImageList* list = kind == LVSIL_SMALL    ? smallImages_.get()
                            : kind == LVSIL_NORMAL ? normalImages_.get()
                                                   : nullptr;
    return reinterpret_cast<LRESULT>(list);
}

int ListViewNode::RowsOnPage() const {
    return std::max(1, (Rect().Height() - HeaderHeight()) / RowHeight());
}

void ListViewNode::SetTop(int row) {
    top_ = std::clamp(row, 0, std::max(0, Count() - RowsOnPage()));
}

bool ListViewNode::EnsureVisible(int row) {
    if (!Has(row)) return false;
    wanted_ = row;
    if (row < top_) SetTop(row);
    if (row >= top_ + RowsOnPage()) SetTop(row - RowsOnPage() + 1);
    Tell(Change::kPosition);
    return true;
}

void ListViewNode::Scroll(int code, int position) {
    const int former = top_;
    switch (code) {
        case kLineUp:
            SetTop(top_ - 1);
            break;
        case kLineDown:
            SetTop(top_ + 1);
            break;
        case kPageUp:
            SetTop(top_ - RowsOnPage());
            break;
        case kPageDown:
            SetTop(top_ + RowsOnPage());
            break;
        case kThumbPosition:
        case kThumbTrack:
            SetTop(position);
            break;
        case kTop:
            SetTop(0);
            break;
        case kBottom:
            SetTop(Count());
            break;
        default:
            break;
    }
    if (top_ == former) return;
    // What is shown has moved to where these rows are.
    wanted_ = top_ < former ? top_ : std::min(Count(), top_ + RowsOnPage()) - 1;
    Tell(Change::kPosition);
}

/// Where the image of a cell begins, from the cell's left edge.
int ListViewNode::ImageStart(int row, int column) const {
    if (column != 0) return 0;
    return IndentWidth(row) + (Row(row).state & LVIS_STATEIMAGEMASK ? kCheckBoxWidth : 0);
}

int ListViewNode::TextStart(int row, int column) const {
    const Raster* image = ShownImage(row, column);
    return ImageStart(row, column) + std::max(ImageWidth(column), image ? image->Width() : 0);
}

int ListViewNode::WidthOfCells(int column) const {
    int widest = 0;
    for (int row = 0; row < Count(); ++row) {
        widest = std::max(widest, TextStart(row, column) + TextWidth(CellText(row, column)));
    }
    return widest + kRoomAroundText;
}

/// The last column takes what the others leave.
int ListViewNode::WidthOfHeading(int column) const {
    const int own = columns_[static_cast<std::size_t>(column)].width;
    const int left = Rect().Width() - (ApproximateSize(0).cx - own);
    const int heading =
        TextWidth(columns_[static_cast<std::size_t>(column)].text) + kRoomAroundText;
    return column == columnOrder_.back() ? std::max(heading, left) : heading;
}

CRect ListViewNode::CellRect(int row, int column, int part) const {
    const int count = static_cast<int>(columns_.size());
    if (!Has(row) || column < 0 || (column >= count && column > 0)) return {};
    const int y = HeaderHeight() + (row - top_) * RowHeight();
    CRect cell{0, y, 0, y + RowHeight()};
    int total = 0;
    for (const int each : columnOrder_) {
        const int width = columns_[static_cast<std::size_t>(each)].width;
        if (each == column) {
            cell.left = total;
            cell.right = total + width;
        }
        total += width;
    }
    if (column == 0 && part == LVIR_BOUNDS) return {0, cell.top, total, cell.bottom};
    const int icon = cell.left + ImageStart(row, column);
    const int label = cell.left + TextStart(row, column);
    if (part == LVIR_ICON) return {icon, cell.top, std::min(label, cell.right), cell.bottom};
    if (part == LVIR_LABEL) cell.left = std::min(label, cell.right);
    return cell;
}

LVHITTESTINFO ListViewNode::HitTest(CPoint at) const {
    LVHITTESTINFO hit;
    hit.pt = at;
    if (at.x < 0) hit.flags |= LVHT_TOLEFT;
    if (at.x >= Rect().Width()) hit.flags |= LVHT_TORIGHT;
    if (at.y < 0) hit.flags |= LVHT_ABOVE;
    if (at.y >= Rect().Height()) hit.flags |= LVHT_BELOW;
    if (hit.flags) return hit;
    hit.flags = LVHT_NOWHERE;
    const int row = at.y < HeaderHeight() ? -1 : top_ + (at.y - HeaderHeight()) / RowHeight();
    if (!Has(row)) return hit;
    for (const int column : columnOrder_) {
        // Column 0 with its bounds is the whole row.
        const CRect icon = CellRect(row, column, LVIR_ICON);
        const CRect label = CellRect(row, column, LVIR_LABEL);
        const CRect whole{icon.left, icon.top, label.right, icon.bottom};
        const int checkBox =
            column == 0 && Row(row).state & LVIS_STATEIMAGEMASK ? kCheckBoxWidth : 0;
        if (at.x < whole.left - checkBox || at.x >= whole.right) continue;
        hit.iItem = row;
        hit.iSubItem = column;
        hit.flags = at.x < whole.left   ? LVHT_ONITEMSTATEICON
                    : icon.PtInRect(at) ? LVHT_ONITEMICON
                                        : LVHT_ONITEMLABEL;
        return hit;
    }
    return hit;
}

CSize ListViewNode::ApproximateSize(int rows) const {
    int width = 0;
    for (const ListColumn& column : columns_)
        width += column.width;
    return {width, HeaderHeight() + (rows < 0 ? Count() : rows) * RowHeight()};
}

Node* ListViewNode::Header() {
    if (HasStyle(LVS_NOCOLUMNHEADER)) return nullptr;
    auto header = header_.lock();
    if (!header || header->Destroyed()) {
        header = std::make_shared<HeaderNode>();
        header_ = header;
        AddChild(header);
    }
    return header.get();
}

LRESULT ListViewNode::SetWorkAreas(int count, const CRect* areas) {
    if (count < 0 || count > LV_MAX_WORKAREAS || (count > 0 && !areas)) return 0;
    workAreas_.assign(areas, areas + count);
    return 0;
}

LRESULT ListViewNode::GetWorkAreas(int count, CRect* areas) const {
    const auto most = std::min(workAreas_.size(), static_cast<std::size_t>(std::max(count, 0)));
    if (areas) std::copy_n(workAreas_.begin(), most, areas);
    return 0;
}

LRESULT ListViewNode::ProcessPlaces(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) {
    const auto low = [&] { return LOWORD(wParam); };
    switch (message) {
        case LVM_ENSUREVISIBLE:
            return EnsureVisible(static_cast<int>(wParam));
        case LVM_GETTOPINDEX:
            return top_;
        case LVM_GETCOUNTPERPAGE:
            return RowsOnPage();
        case LVM_HITTEST:
        case LVM_SUBITEMHITTEST: {
            auto* info = reinterpret_cast<LVHITTESTINFO*>(lParam);
            if (!info) return -1;
            const bool cells = message == LVM_SUBITEMHITTEST;
            LVHITTESTINFO hit = HitTest(info->pt);
            // A row as such is what its first column shows, unless the whole of it can be picked.
            if (!cells && hit.iSubItem > 0 && !(extendedStyle_ & LVS_EX_FULLROWSELECT)) {
                hit.iItem = -1;
                hit.flags = LVHT_NOWHERE;
            }
            if (!cells) hit.iSubItem = info->iSubItem;
            *info = hit;
            return hit.iItem;
        }
        case LVM_GETSUBITEMRECT: {
            // Top and left of the rectangle say which part of which column is asked for.
            auto* rect = reinterpret_cast<CRect*>(lParam);
            if (!rect || !Has(static_cast<int>(wParam))) return FALSE;
            *rect = CellRect(static_cast<int>(wParam), rect->top, rect->left);
            return TRUE;
        }
        case LVM_APPROXIMATEVIEWRECT: {
            const CSize size = ApproximateSize(static_cast<int>(wParam));
            return MAKELPARAM(size.cx, size.cy);
        }
        case LVM_GETSTRINGWIDTH:
            return lParam ? TextWidth(TextOf(lParam)) : 0;
        case WM_VSCROLL:
            Scroll(low(), HIWORD(wParam));
            return 0;
        default:
            handled = false;
            return 0;
    }
}

LRESULT ListViewNode::ProcessLook(UINT message, WPARAM wParam, LPARAM lParam, bool& handled) {
    switch (message) {
        case LVM_SETIMAGELIST:
            return SetImages(static_cast<int>(wParam), reinterpret_cast<ImageList*>(lParam));
        case LVM_GETIMAGELIST:
            return Images(static_cast<int>(wParam));
        case LVM_GETHOTITEM:
            return hotItem_;
        case LVM_SETHOTITEM: {
            const int former = hotItem_;
            hotItem_ = Has(static_cast<int>(wParam)) ? static_cast<int>(wParam) : -1;
            return former;
        }
        case LVM_GETHOTCURSOR:
            return reinterpret_cast<LRESULT>(hotCursor_);
        case LVM_SETHOTCURSOR:
            return reinterpret_cast<LRESULT>(
                std::exchange(hotCursor_, reinterpret_cast<HCURSOR>(lParam)));
        case LVM_GETHOVERTIME:
            return static_cast<LRESULT>(hoverTime_);
        case LVM_SETHOVERTIME:
            return static_cast<LRESULT>(std::exchange(hoverTime_, static_cast<DWORD>(lParam)));
        case LVM_SETICONSPACING: {
            const CSize former = iconSpacing_;
            iconSpacing_ = {LOWORD(static_cast<std::uintptr_t>(lParam)),
                            HIWORD(static_cast<std::uintptr_t>(lParam))};
            return MAKELPARAM(former.cx, former.cy);
        }
        case LVM_GETBKIMAGE:
            if (!lParam) return FALSE;
            *reinterpret_cast<LVBKIMAGE*>(lParam) = background_;
            return TRUE;
        case LVM_SETBKIMAGE:
            if (!lParam) return FALSE;
            background_ = *reinterpret_cast<const LVBKIMAGE*>(lParam);
            Tell(Change::kPaint);
            return TRUE;
        case LVM_SETWORKAREAS:
            return SetWorkAreas(static_cast<int>(wParam), reinterpret_cast<const CRect*>(lParam));
        case LVM_GETWORKAREAS:
            return GetWorkAreas(static_cast<int>(wParam), reinterpret_cast<CRect*>(lParam));
        case LVM_GETNUMBEROFWORKAREAS:
            if (auto* count = reinterpret_cast<UINT*>(lParam)) {
                *count = static_cast<UINT>(workAreas_.size());
            }
            return 0;
        default:
            handled = false;
            return 0;
    }
}

}  // namespace kv
