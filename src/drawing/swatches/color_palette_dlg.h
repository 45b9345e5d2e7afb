#pragma once

#include <array>
#include <memory>

#include "controls/static.h"
#include "drawing/swatches/kv_color_button.h"
#include "drawing/swatches/palette_dlg.h"
#include "drawing/swatches/palette_ids.h"

/// The palette of colours: forty of them, and behind "More..." all 256. Colours are shown by their
/// numbers, one more than their indices.
class CKvColorPaletteDlg : public kv::swatches::PaletteDlg {
public:
    /// With the full list it opens on all colours.
    CKvColorPaletteDlg(const RECT& swatch, CWnd* parent, bool bFullList);

    BOOL OnInitDialog() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void MakeCells() override;
    void Place() override;
    void OnMore();
    void OnGridCell(UINT nId);

private:
    struct GridCell {
        CKvColorButton button;
        CKvStatic label;
    };

    void MakeGrid();
    void HideShortList();
    void ShowGrid();
    void GrowToGrid();
    void CenterLabels();
    void ShowHeader(bool bOnList);

    bool m_bFullList;
    std::unique_ptr<std::array<GridCell, kv::palettes::kGridCells>> m_grid;
};
