#pragma once

#include <string>

#include "window/controls/bitmap_button.h"
#include "window/message_handlers.h"
#include "window/named.h"

namespace kv::swatches {

/// A small button that shows one attribute of what is drawn on a map. One that opens a palette does
/// so by a click, by Space or Enter, and by its label's mnemonic; once a value was picked it takes
/// it and sends its parent a command with its own id. A cell of a palette is a plain button.
class KVGUICTL_API Swatch : public CBitmapButton, public Named {
public:
    /// Takes a value and shows it.
    void SetChange(int nValue);

    void DrawItem(DRAWITEMSTRUCT* item) override;
    std::string SpokenName() const override;

    static const MessageMap& Messages();
    const MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    virtual bool OpensPalette() const = 0;
    /// The number that its palette is registered by.
    virtual int PaletteNumber() const = 0;
    virtual int Value() const = 0;
    virtual void Hold(int value) = 0;
    virtual std::string ValueInWords() const = 0;
    /// Within the whole rectangle of the button.
    virtual void DrawValue(CDC& context, const CRect& rect) const = 0;

    void PreSubclassWindow() override;
    void OnMouseMove(UINT nFlags, CPoint point);
    virtual void OnLButtonDown(UINT nFlags, CPoint point);
    void OnSetFocus(CWnd* pOldWnd);

private:
    bool OnClicked();
    void Open();
    void ShowWords();
};

/// What lies within the frame, `kInset` pixels from the edge on each side.
inline constexpr int kInset = 3;
CRect Inside(const CRect& rect);

/// Lines and signs are black in every look: where buttons are dark, this puts paper under them.
void DrawPaper(CDC& context, const CRect& rect);

/// Marks the holder of the focus within its frame.
void DrawFocusRing(CDC& context, const CRect& rect);

}  // namespace kv::swatches
