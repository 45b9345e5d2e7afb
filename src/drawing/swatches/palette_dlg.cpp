#include "drawing/swatches/palette_dlg.h"

#include <algorithm>

#include "window/dialog_keys.h"
#include "window/screens.h"

namespace kv::swatches {

namespace {

/// Where an arrow leads from a place in the grid, the same place at its edges; -1 for other keys.
int PlaceBehind(int key, int place, int count, int across) {
    switch (key) {
        case VK_LEFT:
            return std::max(place - 1, 0);
        case VK_RIGHT:
            return std::min(place + 1, count - 1);
        case VK_UP:
            return place - across >= 0 ? place - across : place;
        case VK_DOWN:
            return place + across < count ? place + across : place;
        case VK_HOME:
            return 0;
        case VK_END:
            return count - 1;
        default:
            return -1;
    }
}

}  // namespace

PaletteDlg::PaletteDlg(UINT templateId, const RECT& swatch, CWnd* parent)
    : CDialog(templateId, parent), m_rcSwatch(swatch) {}

BOOL PaletteDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    SetWindowPos(nullptr, m_rcSwatch.left, m_rcSwatch.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    MakeCells();
    Place();
    FocusValue();
    // The focus is set, or nothing is to have it.
    return FALSE;
}

void PaletteDlg::AddCell(int id, int value, std::unique_ptr<Swatch> cell) {
    cell->AutoLoad(static_cast<UINT>(id), this);
    m_cells.push_back({value, std::move(cell)});
    m_grid.push_back(m_cells.back().swatch.get());
}

void PaletteDlg::SetGrid(std::vector<CWnd*> grid, int across) {
    m_grid = std::move(grid);
    m_nAcross = across;
}

void PaletteDlg::FocusValue() {
    const auto found = std::ranges::find(m_cells, m_nValue, &Cell::value);
    if (found != m_cells.end()) found->swatch->SetFocus();
}

CRect PaletteDlg::ScreenRect() const {
    return ScreenAround(m_rcSwatch);
}

CRect PaletteDlg::BelowSwatch() const {
    CRect place;
    GetWindowRect(&place);
    place.OffsetRect(m_rcSwatch.left - place.left, m_rcSwatch.bottom - place.top);
    place.OffsetRect(-std::max(0, place.right - ScreenRect().right), 0);
    return place;
}

CRect PaletteDlg::BelowSwatchOrWide() const {
    CRect place = BelowSwatch();
    const CRect screen = ScreenRect();
    if (place.bottom > screen.bottom) place.right = place.left + screen.Width();
    return place;
}

const PaletteDlg::Cell* PaletteDlg::FocusedCell() const {
    const CWnd* focus = GetFocus();
    const auto found = std::ranges::find_if(
        m_cells, [focus](const Cell& each) { return each.swatch.get() == focus; });
    return focus && found != m_cells.end() ? &*found : nullptr;
}

bool PaletteDlg::IsCell(int id) const {
    return std::ranges::any_of(
        m_cells, [id](const Cell& each) { return each.swatch->GetDlgCtrlID() == id; });
}

BOOL PaletteDlg::OnCommand(WPARAM wParam, LPARAM lParam) {
    const Cell* cell = nullptr;
    if (HIWORD(wParam) == BN_CLICKED && IsCell(LOWORD(wParam))) cell = FocusedCell();
    if (!cell) return CDialog::OnCommand(wParam, lParam);
    m_nValue = cell->value;
    EndDialog(cell->swatch->GetDlgCtrlID());
    return TRUE;
}

void PaletteDlg::OnOK() {
    // Enter with no cell in focus picks nothing.
}

BOOL PaletteDlg::PreTranslateMessage(MSG* message) {
    const Modifiers keys = CurrentModifiers();
    const bool plain = !keys.shift && !keys.ctrl && !keys.alt;
    if (message->message == WM_KEYDOWN && plain && MoveFocus(static_cast<int>(message->wParam))) {
        return TRUE;
    }
    return CDialog::PreTranslateMessage(message);
}

bool PaletteDlg::MoveFocus(int key) {
    const auto at = std::ranges::find(m_grid, GetFocus());
    const bool inGrid = at != m_grid.end();
    if (m_grid.empty() || (!inGrid && GetFocus())) return false;
    const int place = PlaceBehind(key, inGrid ? static_cast<int>(at - m_grid.begin()) : 0,
                                  static_cast<int>(m_grid.size()), m_nAcross);
    if (place < 0) return false;
    m_grid[inGrid ? static_cast<std::size_t>(place) : 0]->SetFocus();
    return true;
}

}  // namespace kv::swatches
