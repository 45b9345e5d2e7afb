#pragma once

#include <memory>
#include <vector>

#include "drawing/swatches/swatch.h"
#include "window/dialogs/dialog.h"

namespace kv::swatches {

/// A small modal dialog whose cells are swatches. It stands on the rectangle of the swatch that
/// opened it. A click of a cell, or Enter or Space on it, ends the dialog with the cell's id; the
/// arrows move among the cells, and Escape leaves.
class KVGUICTL_API PaletteDlg : public CDialog {
public:
    /// The value whose cell has the focus at the start.
    void SetValue(int value) { m_nValue = value; }
    /// What was picked.
    int GetValue() const { return m_nValue; }

    BOOL OnInitDialog() override;
    void OnOK() override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    /// `swatch` is in the coordinates of the screen.
    PaletteDlg(UINT templateId, const RECT& swatch, CWnd* parent);

    /// Takes over the control of that id as a cell.
    void AddCell(int id, int value, std::unique_ptr<Swatch> cell);
    /// How many cells stand in a row; one of itself.
    void SetAcross(int across) { m_nAcross = across; }
    /// Other windows than the cells among which the arrows move.
    void SetGrid(std::vector<CWnd*> grid, int across);
    virtual void MakeCells() = 0;
    /// Moves the dialog away from the swatch's top left corner.
    virtual void Place() {}

    const RECT& SwatchRect() const { return m_rcSwatch; }
    /// Below the swatch, and no further right than the screen goes.
    CRect BelowSwatch() const;
    /// The same; where that passes the bottom of the screen, as wide as the screen.
    CRect BelowSwatchOrWide() const;
    /// The screen that the swatch is on.
    CRect ScreenRect() const;
    void FocusValue();

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    int m_nValue = -1;

private:
    struct Cell {
        int value;
        std::unique_ptr<Swatch> swatch;
    };

    const Cell* FocusedCell() const;
    bool IsCell(int id) const;
    bool MoveFocus(int key);

    RECT m_rcSwatch;
    std::vector<Cell> m_cells;
    std::vector<CWnd*> m_grid;
    int m_nAcross = 1;
};

/// What a palette registers: runs it on the value of a swatch.
template <typename Palette>
int OpenOn(const CRect& swatch, CWnd* parent, int& value) {
    Palette palette(swatch, parent);
    palette.SetValue(value);
    const int result = palette.DoModal();
    value = palette.GetValue();
    return result;
}

}  // namespace kv::swatches
