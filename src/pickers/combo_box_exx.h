#pragma once

#include "base/export.h"
#include "window/controls/combo_box.h"
#include "window/drawing/gdi_objects.h"
#include "window/message_handlers.h"

/// A combo box that completes what is typed from its own rows, and has settable colours.
class KVGUICTL_API CComboBoxExx : public CComboBox {
public:
    CComboBoxExx();

    /// Stores the colour when it differs from the present one, and repaints if asked. A disabled
    /// box paints in the system's colours whatever is set.
    void SetBkColor(COLORREF color, BOOL redraw);
    void SetTextColor(COLORREF color, BOOL redraw);

    BOOL PreTranslateMessage(MSG* message) override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnEditUpdate();
    HBRUSH OnCtlColor(CDC* context, CWnd* control, UINT kind);

    bool m_bAutoComplete = true;
    COLORREF m_crBkColor;
    COLORREF m_crTextColor;

private:
    void SetColor(COLORREF& field, COLORREF color, BOOL redraw);

    /// What it began with: a colour that nobody has changed follows the system's.
    COLORREF m_crFirstBkColor;
    COLORREF m_crFirstTextColor;
};
