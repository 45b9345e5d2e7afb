#pragma once

#include "drawing/swatches/swatch.h"

namespace kv::swatches {

/// A swatch of a symbol: its image, by its id in the chain of resources.
class KVGUICTL_API SymbolButton : public Swatch {
public:
    /// Whether it opens its palette; a cell is not active.
    bool m_bActive = true;
    int m_nSymbolId = 0;

protected:
    SymbolButton(int palette, CPoint imagePlace) : m_nPalette(palette), m_imagePlace(imagePlace) {}

    bool OpensPalette() const override { return m_bActive; }
    int PaletteNumber() const override { return m_nPalette; }
    int Value() const override { return m_nSymbolId; }
    void Hold(int value) override { m_nSymbolId = value; }
    std::string ValueInWords() const override;
    void DrawValue(CDC& context, const CRect& rect) const override;

private:
    int m_nPalette;
    CPoint m_imagePlace;
};

}  // namespace kv::swatches

/// A swatch of a sign that a number stands in.
class KVGUICTL_API CKvGuiLineNumSymbolButton : public kv::swatches::SymbolButton {
public:
    CKvGuiLineNumSymbolButton();
};

/// A swatch of the sign of a point, such as a well.
class KVGUICTL_API CKvGuiPointSymbolButton : public kv::swatches::SymbolButton {
public:
    CKvGuiPointSymbolButton();
};
