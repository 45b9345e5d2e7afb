#include "drawing/swatches/color_palette_dlg.h"

#include "base/text.h"
#include "drawing/swatches/color_cells.h"
#include "drawing/swatches/palette_opener.h"
#include "frame/kvcom/color.h"
#include "window/drawing/look.h"

using namespace kv::palettes;

namespace {

// The grid of all colours, in pixels.
constexpr int kPitchX = 30;
constexpr int kPitchY = 37;
constexpr int kCellSize = 25;
constexpr CPoint kLabelFromCell{12, 25};
constexpr int kMargin = 5;
/// What stays free above the bottom of the screen.
constexpr int kFreeBelow = 35;

template <bool fullList>
int Open(const CRect& swatch, CWnd* parent, int& value) {
    CKvColorPaletteDlg palette(swatch, parent, fullList);
    palette.SetValue(value);
    const int result = palette.DoModal();
    value = palette.GetValue();
    return result;
}

const kv::swatches::RegisterPalette kShort(E_DIALOG_BASIC_COLOR, &Open<false>);
const kv::swatches::RegisterPalette kFull(E_DIALOG_FULL_COLOR, &Open<true>);

CRect PlaceOf(const CWnd& dialog, int id) {
    const CWnd* control = dialog.GetDlgItem(id);
    return control ? control->m_hWnd->Rect() : CRect{};
}

}  // namespace

CKvColorPaletteDlg::CKvColorPaletteDlg(const RECT& swatch, CWnd* parent, bool bFullList)
    : PaletteDlg(kColorFillPalette, swatch, parent), m_bFullList(bFullList) {}

BOOL CKvColorPaletteDlg::OnInitDialog() {
    PaletteDlg::OnInitDialog();
    bool onList = false;
    for (int i = 0; i < kShortCells; ++i)
        onList = onList || CKvColor::Get256CrossIndexRGB(i) == m_nValue;
    ShowHeader(onList);
    MakeGrid();
    if (m_bFullList) {
        OnMore();
    } else {
        CenterLabels();
    }
    return FALSE;
}

void CKvColorPaletteDlg::MakeCells() {
    for (int i = 0; i < kShortCells; ++i) {
        const int color = CKvColor::Get256CrossIndexRGB(i);
        AddCell(kFirstShortCell + i, color,
                kv::swatches::MakeCell<CKvGuiFullColorButton>(E_DIALOG_FULL_COLOR, color));
        SetDlgItemText(kFirstShortLabel + i, std::to_string(color + 1).c_str());
    }
    SetAcross(kShortAcross);
}

void CKvColorPaletteDlg::Place() {
    CRect place = BelowSwatch();
    CRect parent = ScreenRect();
    if (const CWnd* window = GetParent()) window->GetWindowRect(&parent);
    if (place.bottom > parent.bottom) {
        place.OffsetRect(0, SwatchRect().top - place.Height() - place.top);
    }
    MoveWindow(place);
}

void CKvColorPaletteDlg::ShowHeader(bool bOnList) {
    const int number = m_nValue + 1;
    SetDlgItemText(kHeader,
                   (bOnList ? kv::FormatText("CURRENT COLOR INDEX IS    %d ", number)
                            : kv::FormatText("CURRENT COLOR   %d   IS NOT ON THIS LIST", number))
                       .c_str());
}

void CKvColorPaletteDlg::CenterLabels() {
    for (int i = 0; i < kShortCells; ++i) {
        const CRect cell = PlaceOf(*this, kFirstShortCell + i);
        CRect label = PlaceOf(*this, kFirstShortLabel + i);
        label.OffsetRect((cell.left + cell.right - label.left - label.right) / 2,
                         cell.bottom - label.top);
        Control<CWnd>(kFirstShortLabel + i).MoveWindow(label);
    }
}

void CKvColorPaletteDlg::MakeGrid() {
    m_grid = std::make_unique<std::array<GridCell, kGridCells>>();
    const COLORREF text = kv::CurrentLook().Color(kv::SystemColor::kButtonText);
    const CPoint origin = PlaceOf(*this, kGridOrigin).TopLeft();
    for (int i = 0; i < kGridCells; ++i) {
        GridCell& cell = (*m_grid)[static_cast<std::size_t>(i)];
        const int left = origin.x + i % kGridAcross * kPitchX;
        const int top = origin.y + i / kGridAcross * kPitchY;
        CRect place{left, top, left + kCellSize, top + kCellSize};
        cell.button.Create("", WS_CHILD | WS_TABSTOP, place, this,
                           static_cast<UINT>(kGridCell + i));
        place.OffsetRect(kLabelFromCell.x, kLabelFromCell.y);
        cell.label.Create(std::to_string(i + 1).c_str(), WS_CHILD, place, this,
                          static_cast<UINT>(kGridLabel + i));
        cell.label.SetColor(text);
    }
}

void CKvColorPaletteDlg::HideShortList() {
    Control<CWnd>(kMore).ShowWindow(SW_HIDE);
    for (int i = 0; i < kShortCells; ++i) {
        Control<CWnd>(kFirstShortCell + i).ShowWindow(SW_HIDE);
        Control<CWnd>(kFirstShortLabel + i).ShowWindow(SW_HIDE);
    }
}

/// Beyond the right edge of the screen it goes to the left of the swatch, or, where there is no
/// room either, stays at the edge.
void CKvColorPaletteDlg::GrowToGrid() {
    const CPoint origin = PlaceOf(*this, kGridOrigin).TopLeft();
    const CRect screen = ScreenRect();
    CRect place;
    GetWindowRect(&place);
    place.right = place.left + origin.x + kGridAcross * kPitchX + kMargin;
    place.bottom = place.top + origin.y + kGridCells / kGridAcross * kPitchY + kMargin;
    place.OffsetRect(0, std::min(0, screen.bottom - kFreeBelow - place.bottom));
    if (place.right > screen.right) {
        const int left = SwatchRect().left - place.Width();
        place.OffsetRect((left >= screen.left ? left : screen.right - place.Width()) - place.left,
                         0);
    }
    MoveWindow(place);
}

void CKvColorPaletteDlg::ShowGrid() {
    std::vector<CWnd*> cells;
    for (GridCell& cell : *m_grid) {
        cell.button.ShowWindow(SW_SHOW);
        cell.label.ShowWindow(SW_SHOW);
        cells.push_back(&cell.button);
    }
    SetGrid(std::move(cells), kGridAcross);
}

void CKvColorPaletteDlg::OnMore() {
    HideShortList();
    GrowToGrid();
    ShowGrid();
    if (m_nValue >= 0 && m_nValue < kGridCells)
        (*m_grid)[static_cast<std::size_t>(m_nValue)].button.SetFocus();
    ShowHeader(true);
}

void CKvColorPaletteDlg::OnGridCell(UINT nId) {
    m_nValue = static_cast<int>(nId) - kGridCell;
    EndDialog(static_cast<int>(nId));
}

const kv::MessageMap& CKvColorPaletteDlg::Messages() {
    using Self = CKvColorPaletteDlg;
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&Self::OnMore>(kMore),
        kv::OnControlRange<&Self::OnGridCell>(BN_CLICKED, kGridCell, kGridCell + kGridCells - 1),
    };
    static const kv::MessageMap kMap{&PaletteDlg::Messages(), kEntries};
    return kMap;
}
