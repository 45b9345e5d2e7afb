#pragma once

#include "drawing/swatches/line_button.h"
#include "drawing/swatches/palette_ids.h"
#include "drawing/swatches/symbol_button.h"
#include "frame/module.h"
#include "support/dialog_fixture.h"

namespace test {

// The swatches of the host, by their ids.
inline constexpr int kWidth = 101;
inline constexpr int kType = 102;
inline constexpr int kBasic = 103;
inline constexpr int kTextStyle = 104;
inline constexpr int kFull = 105;
inline constexpr int kNumber = 106;
inline constexpr int kPoint = 107;

/// A dialog with a swatch of each kind, behind labels of their own.
class SwatchHost : public RecordingDialog {
public:
    SwatchHost() { style.SetDlgType(E_DIALOG_TEXT_STYLE); }

    BOOL OnInitDialog() override {
        const BOOL answer = RecordingDialog::OnInitDialog();
        Take(kWidth, width, 0);
        Take(kType, type, 0);
        Take(kBasic, basic, 6);
        Take(kTextStyle, style, 0);
        Take(kFull, full, 6);
        Take(kNumber, number, kv::palettes::kFirstNumberImage);
        Take(kPoint, point, kv::palettes::kFirstPointImage);
        return answer;
    }
    void Take(int id, kv::swatches::Swatch& swatch, int value) {
        swatch.AutoLoad(static_cast<UINT>(id), this);
        swatch.SetChange(value);
    }

    CKvGuiLineWidthButton width;
    CKvGuiLineTypeButton type;
    CKvGuiBasicColorButton basic;
    CKvGuiLineWidthButton style;
    CKvGuiFullColorButton full;
    CKvGuiLineNumSymbolButton number;
    CKvGuiPointSymbolButton point;
};

inline kv::ControlRow SwatchRow(int id, int line) {
    return {id, kv::ControlKind::kOwnerDrawButton, "", {60, 10 + 20 * line, 40, 16}};
}
inline kv::ControlRow LabelRow(const char* text, int line) {
    return {IDC_STATIC, kv::ControlKind::kLabel, text, {4, 10 + 20 * line, 50, 8}};
}

class SwatchTest : public DialogTest {
protected:
    SwatchTest() { InitControlDll(); }

    TestTemplate template_{{LabelRow("&Weight:", 0), SwatchRow(kWidth, 0), LabelRow("&Type:", 1),
                            SwatchRow(kType, 1), LabelRow("&Color:", 2), SwatchRow(kBasic, 2),
                            LabelRow("&Style:", 3), SwatchRow(kTextStyle, 3),
                            LabelRow("&Any color:", 4), SwatchRow(kFull, 4),
                            LabelRow("&Number:", 5), SwatchRow(kNumber, 5), LabelRow("&Point:", 6),
                            SwatchRow(kPoint, 6)}};
    SwatchHost host;
};

}  // namespace test
