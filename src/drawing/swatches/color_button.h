#pragma once

#include "drawing/swatches/swatch.h"

/// What a swatch shows, and so which palette it opens.
enum E_DIALOG_TYPE : int {
    E_DIALOG_NONE = 0,
    E_DIALOG_LINE_WIDTH = 1,
    E_DIALOG_LINE_TYPE = 2,
    E_DIALOG_BASIC_COLOR = 3,
    E_DIALOG_TEXT_STYLE = 4,
    E_DIALOG_FULL_COLOR = 5,
};

/// Whether a swatch is a cell of a palette, or opens one.
enum E_EVENT_TYPE : int {
    E_EVENT_CELL = 0,
    E_EVENT_OPEN = 1,
};

/// A swatch of a colour, and what all swatches with a kind derive from. It opens the palette of its
/// kind unless it is a cell.
class KVGUICTL_API CColorButton : public kv::swatches::Swatch {
public:
    static constexpr CRuntimeClass classCColorButton{"CColorButton"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCColorButton; }

    /// Red in the low byte, then green, then blue; black outside the table of colours.
    unsigned long GetColorValue(int nIndex);
    /// The index of the colour, the line width, line type or style; -1 at first.
    int GetCWTValue() const { return m_nValue; }
    void SetDlgType(E_DIALOG_TYPE eType) { m_eDlgType = eType; }
    E_DIALOG_TYPE GetDlgType() const { return m_eDlgType; }
    void SetEventType(E_EVENT_TYPE eType) { m_eEventType = eType; }
    E_EVENT_TYPE GetEventType() const { return m_eEventType; }

protected:
    bool OpensPalette() const override { return m_eEventType != E_EVENT_CELL; }
    int PaletteNumber() const override { return m_eDlgType; }
    int Value() const override { return m_nValue; }
    void Hold(int value) override { m_nValue = value; }
    std::string ValueInWords() const override;
    void DrawValue(CDC& context, const CRect& rect) const override;
    void OnLButtonDown(UINT nFlags, CPoint point) override;

    E_DIALOG_TYPE m_eDlgType = E_DIALOG_NONE;
    E_EVENT_TYPE m_eEventType = E_EVENT_OPEN;
    int m_nValue = -1;
};

/// A colour that is picked from the short palette.
class KVGUICTL_API CKvGuiBasicColorButton : public CColorButton {
public:
    CKvGuiBasicColorButton() { m_eDlgType = E_DIALOG_BASIC_COLOR; }
    /// Opens the palette on a caller's order.
    void SetLButtonDown(unsigned int nFlags, CPoint& pt) { OnLButtonDown(nFlags, pt); }
};

/// A colour that is picked from all of the table.
class KVGUICTL_API CKvGuiFullColorButton : public CColorButton {
public:
    CKvGuiFullColorButton() { m_eDlgType = E_DIALOG_FULL_COLOR; }
};
