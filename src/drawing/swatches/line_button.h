#pragma once

#include "drawing/swatches/color_button.h"

/// A swatch of a line width, a bar one pixel higher than the width's index; of any other kind than
/// that one, of a text style, its word.
class KVGUICTL_API CKvGuiLineWidthButton : public CColorButton {
public:
    CKvGuiLineWidthButton() { m_eDlgType = E_DIALOG_LINE_WIDTH; }
    void SetLineWidth(const int& nWidth) { SetChange(nWidth); }
    int GetLineWidth() const { return m_nValue; }

protected:
    std::string ValueInWords() const override;
    void DrawValue(CDC& context, const CRect& rect) const override;
};

/// A swatch of a line type, its dashes; the index 5 is the blank type.
class KVGUICTL_API CKvGuiLineTypeButton : public CColorButton {
public:
    CKvGuiLineTypeButton() { m_eDlgType = E_DIALOG_LINE_TYPE; }
    void SetLineType(const int& nType) { SetChange(nType); }
    int GetLineType() const { return m_nValue; }

protected:
    std::string ValueInWords() const override;
    void DrawValue(CDC& context, const CRect& rect) const override;
};

namespace kv::swatches {

/// The word of a text style, 0 to 3; empty for any other.
KVGUICTL_API std::string TextStyleWord(int style);
inline constexpr int kTextStyles = 4;

}  // namespace kv::swatches
