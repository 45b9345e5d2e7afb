// The palettes that hosts open themselves.

#include "adaptors/adaptor.h"
#include "drawing/swatches/clr_dlg.h"
#include "drawing/swatches/color_fill_ctrl_dlg.h"
#include "drawing/swatches/color_fill_ctrl_ids.h"
#include "drawing/swatches/palette_ids.h"
#include "drawing/swatches/symbol_palettes.h"

namespace adaptors {

namespace {

Input PlaceInput() {
    return {"at", "list of two numbers",
            "where on the screen the palette opens, in logical pixels; 100 and 100 by itself",
            nullptr};
}

/// A rectangle of no extent: the palette stands at its corner.
CRect PlaceOf(const Run& run) {
    const auto at = run.Get("at", std::vector<int>{100, 100});
    if (at.size() != 2) throw BadInput("\"at\" takes two numbers", "at");
    return {at[0], at[1], at[0], at[1]};
}

void RunColors(Run& run) {
    CRect place = PlaceOf(run);
    CClrDlg palette(&place, nullptr);
    palette.SetValue(run.Get("color", -1));
    run.result = palette.DoModal();
    run.outcome = {{"color", palette.GetReturnValue()}};
}

template <typename Palette>
void RunSymbols(Run& run) {
    CRect place = PlaceOf(run);
    Palette palette(&place, nullptr);
    palette.SetButtonID(run.Get("symbol", 0U));
    run.result = palette.DoModal();
    run.outcome = {{"symbol", palette.GetReturnValue()}};
}

void RunFill(Run& run) {
    CKvColorFillCtrlDlg dialog;
    dialog.SetFillColor(static_cast<KVColor>(run.Get("color", int{KV_COLOR_DEFAULT})));
    run.result = dialog.DoModal();
    run.outcome = {{"color", int{dialog.GetFillColor()}}};
}

const Register kColorsRegistered({
    "CClrDlg",
    "Drawing tools",
    "Colors",
    "One of the sixteen named colors",
    kv::palettes::kColors,
    {PlaceInput(), {"color", "number", "index of the color to begin with; none by itself", 6}},
    "color (its index); the result is the number of the cell",
    RunColors,
});

const Register kNumbersRegistered({
    "CKvGui3DLineNumSymbolDlg",
    "Drawing tools",
    "Number Symbols",
    "A sign that numbers stand in",
    kv::palettes::kNumberSymbols,
    {PlaceInput(), {"symbol", "number", "image to begin with, 13047 to 13054", 13047}},
    "symbol (its image); the result is the number of the cell",
    RunSymbols<CKvGui3DLineNumSymbolDlg>,
});

const Register kPointsRegistered({
    "CKvGui3DPointSymbolDlg",
    "Drawing tools",
    "Point Symbols",
    "The sign of a well or another point",
    kv::palettes::kPointSymbols,
    {PlaceInput(),
     {"symbol", "number", "image to begin with, 13023 to 13041; any other is an oil well", 13024}},
    "symbol (its image); the result is the number of the cell",
    RunSymbols<CKvGui3DPointSymbolDlg>,
});

const Register kFillRegistered({
    "CKvColorFillCtrlDlg",
    "Drawing tools",
    "Color Fill Options",
    "The color of a filled block",
    kv::color_fill_ctrl::kTemplate,
    {{"color", "number", "index of the color to begin with; 6 by itself", nullptr}},
    "color (its index)",
    RunFill,
});

}  // namespace

}  // namespace adaptors
