#pragma once

#include <string>

#include "window/controls/static_text.h"
#include "window/drawing/gdi_objects.h"
#include "window/message_handlers.h"

/// A label that paints its own text, in a font and a colour of its own, centred about its left
/// edge.
class KVGUICTL_API CKvStatic : public CStatic {
public:
    CKvStatic();

    /// Paints the text. Called while the label is being painted; at other times nothing is drawn.
    void DrawLabel(const std::string& sText);
    void SetColor(COLORREF crColor);

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    LRESULT OnCreate(WPARAM wParam, LPARAM lParam);
    void OnPaint();
    void OnShowWindow(BOOL bShow, UINT nStatus);

    CFont m_font;
    COLORREF m_crColor = 0;
};
