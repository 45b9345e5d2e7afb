#include "adaptors/print_inputs.h"
#include "print/print_control.h"
#include "print/print_control_ids.h"

namespace adaptors {

namespace {

constexpr double kInches = 36.0;

/// The paper that the input "printer" gives; an empty record without it.
DEVMODE PaperOf(const Run& run) {
    const Json given = run.Get("printer", Json());
    if (given.is_null()) return {};
    const auto printer = PrinterFrom(given);
    if (!printer) {
        throw BadInput("The input \"printer\" takes " + std::string(kPrinterInWords) +
                           ", and not " + given.dump(),
                       "printer");
    }
    return kv::ToDevMode(*printer);
}

Json OutcomeOf(const CKvGuiPrintControl& dialog) {
    return {{"scale", dialog.GetScale()},
            {"mapScale", CKvGuiPrintControl::m_nMapScale},
            {"mapWidth", dialog.GetPaperWidth(true, false)},
            {"mapHeight", dialog.GetPaperHeight(true, false)},
            {"mapLandscape", CKvGuiPrintControl::m_bLandscape},
            {"paperWidth", dialog.GetPaperWidth(true, true)},
            {"paperHeight", dialog.GetPaperHeight(true, true)},
            {"landscape", dialog.GetLandScapeMode()},
            {"printerSetup", dialog.IsPrinterSetup()},
            {"trueType", dialog.GetTrueTypeFont()},
            {"minimalFontSize", dialog.GetMinimalFontSize()},
            {"color", dialog.GetColorMode()},
            {"blackAndWhite", dialog.GetBWMode()},
            {"gray", dialog.GetGrayMode()}};
}

void RunPrintControl(Run& run) {
    DEVMODE paper = PaperOf(run);
    CKvGuiPrintControl dialog(&paper, nullptr);
    dialog.SetBounds(BoundsOf(run));
    dialog.SetUnit(UnitOf(run));
    if (const int scale = run.Get("scale", 0); scale != 0) dialog.SetScale(scale);
    dialog.SetPrintMode(run.Get("printMode", false));
    dialog.IsCGM(run.Get("cgm", false));
    dialog.SetDefaultPaperWidth(static_cast<float>(run.Get("pageWidth", kInches)));
    dialog.SetDefaultPaperHeight(static_cast<float>(run.Get("pageHeight", kInches)));
    run.result = dialog.DoModal();
    run.outcome = OutcomeOf(dialog);
}

const Register kRegistered({
    "CKvGuiPrintControl",
    "Print and sizing",
    "Print / Preview Dialog",
    "Scale and paper for printing",
    kv::print_control::kTemplate,
    {
        BoundsInput(),
        UnitInput(),
        {"scale", "number", "the map scale to begin with; computed if left out", {}},
        {"printMode", "flag", "whether a minimal font size is asked for", true},
        {"cgm", "flag", "whether the output goes to a CGM file: only then all of the dialog shows",
         true},
        {"printer",
         "printer",
         std::string("a paper of the caller's own: ") + kPrinterInWords +
             "; the machine's printer if left out",
         {}},
        {"pageWidth",
         "number",
         "of the page where there is no printer, in inches; 36 if left out",
         {}},
        {"pageHeight", "number", "the same", {}},
    },
    "scale (print scale), mapScale, mapWidth, mapHeight (inches), mapLandscape, paperWidth, "
    "paperHeight (the map on the page, inches), landscape (of the page), printerSetup (whether "
    "another printer was chosen), trueType, minimalFontSize (points), color, blackAndWhite, gray",
    RunPrintControl,
});

}  // namespace

}  // namespace adaptors
