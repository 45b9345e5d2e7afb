// The swatches, one of each kind, in a dialog of the host's own: their palettes open from them.

#include "adaptors/adaptor.h"
#include "drawing/swatches/line_button.h"
#include "drawing/swatches/palette_ids.h"
#include "drawing/swatches/symbol_button.h"
#include "window/dialogs/dialog.h"
#include "window/templates/resources.h"

namespace {

using enum kv::ControlKind;

constexpr int kTemplate = 60001;
constexpr int kWidth = 101;
constexpr int kType = 102;
constexpr int kBasicColor = 103;
constexpr int kStyle = 104;
constexpr int kFullColor = 105;
constexpr int kNumber = 106;
constexpr int kPoint = 107;

constexpr kv::ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "Line width:", {7, 10, 56, 8}},
    {kWidth, kOwnerDrawButton, "", {67, 7, 60, 14}},
    {IDC_STATIC, kLabel, "Line type:", {7, 28, 56, 8}},
    {kType, kOwnerDrawButton, "", {67, 25, 60, 14}},
    {IDC_STATIC, kLabel, "Color:", {7, 46, 56, 8}},
    {kBasicColor, kOwnerDrawButton, "", {67, 43, 60, 14}},
    {IDC_STATIC, kLabel, "Text style:", {7, 64, 56, 8}},
    {kStyle, kOwnerDrawButton, "", {67, 61, 60, 14}},
    {IDC_STATIC, kLabel, "Any color:", {7, 82, 56, 8}},
    {kFullColor, kOwnerDrawButton, "", {67, 79, 60, 14}},
    {IDC_STATIC, kLabel, "Number symbol:", {7, 102, 56, 8}},
    {kNumber, kOwnerDrawButton, "", {67, 97, 26, 16}},
    {IDC_STATIC, kLabel, "Point symbol:", {7, 120, 56, 8}},
    {kPoint, kOwnerDrawButton, "", {67, 117, 17, 12}},
    {IDOK, kDefaultButton, "OK", {23, 137, 50, 14}},
    {IDCANCEL, kPushButton, "Cancel", {77, 137, 50, 14}},
};
constexpr kv::DialogTemplate kDialog{kTemplate, "Swatches", 134, 158, kRows};
const kv::RegisterTemplate kTemplateRegistered(kDialog);

}  // namespace

/// By its own name, since scripts name windows by their classes.
class SwatchesDlg : public CDialog {
public:
    explicit SwatchesDlg(adaptors::Run& run) : CDialog(kTemplate), run_(run) {}

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        style_.SetDlgType(E_DIALOG_TEXT_STYLE);
        for (const auto& [name, id, swatch, standard] : swatches_) {
            swatch->AutoLoad(static_cast<UINT>(id), this);
            swatch->SetChange(run_.Get(name, standard));
        }
        return TRUE;
    }

    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override {
        const bool picked = code == CN_COMMAND && !info && id >= kWidth && id <= kPoint;
        if (picked) picked_.push_back(id);
        return CDialog::OnCmdMsg(id, code, extra, info);
    }

    adaptors::Json State() const {
        return {{"width", width_.GetLineWidth()},      {"type", type_.GetLineType()},
                {"color", color_.GetCWTValue()},       {"style", style_.GetLineWidth()},
                {"anyColor", anyColor_.GetCWTValue()}, {"number", number_.m_nSymbolId},
                {"point", point_.m_nSymbolId},         {"picked", picked_}};
    }

private:
    struct Named {
        const char* name;
        int id;
        kv::swatches::Swatch* swatch;
        int standard;
    };

    adaptors::Run& run_;
    CKvGuiLineWidthButton width_;
    CKvGuiLineTypeButton type_;
    CKvGuiBasicColorButton color_;
    CKvGuiLineWidthButton style_;
    CKvGuiFullColorButton anyColor_;
    CKvGuiLineNumSymbolButton number_;
    CKvGuiPointSymbolButton point_;
    const std::vector<Named> swatches_ = {
        {"width", kWidth, &width_, 0},
        {"type", kType, &type_, 0},
        {"color", kBasicColor, &color_, 6},
        {"style", kStyle, &style_, 0},
        {"anyColor", kFullColor, &anyColor_, 6},
        {"number", kNumber, &number_, kv::palettes::kFirstNumberImage},
        {"point", kPoint, &point_, kv::palettes::kDefaultPointImage},
    };
    std::vector<UINT> picked_;
};

namespace adaptors {

namespace {

void RunSwatches(Run& run) {
    SwatchesDlg dialog(run);
    run.result = dialog.DoModal();
    run.outcome = dialog.State();
}

const Register kRegistered({
    "SwatchesDlg",
    "Drawing tools",
    "Swatches",
    "Swatches and their palettes",
    kTemplate,
    {
        {"width", "number", "line width to begin with, 0 to 9", 2},
        {"type", "number", "line type, 0 to 5", 3},
        {"color", "number", "index of a color, 0 to 255; opens the short palette", nullptr},
        {"style", "number", "text style, 0 to 3", nullptr},
        {"anyColor", "number", "index of a color; opens all of them", nullptr},
        {"number", "number", "image of a sign for numbers, 13047 to 13054", nullptr},
        {"point", "number", "image of a point's sign, 13023 to 13041", nullptr},
    },
    "width, type, color, style, anyColor, number, point (what the swatches hold, by the names of "
    "the "
    "inputs), picked (the ids of the swatches that told of a pick, in order)",
    RunSwatches,
});

}  // namespace

}  // namespace adaptors
