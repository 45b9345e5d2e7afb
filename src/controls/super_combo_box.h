#pragma once

#include "window/controls/combo_box.h"
#include "window/controls/edit.h"
#include "window/controls/list_box.h"
#include "window/drawing/gdi_objects.h"
#include "window/message_handlers.h"

/// A combo box that reports to its parent: each scrolling by the message WM_USER, each notification
/// of its edit or list by WM_USER + 1.
class KVGUICTL_API CSuperComboBox : public CComboBox {
public:
    /// The combo's own edit and list, attached when their colours are first asked for.
    CEdit m_edit;
    CListBox m_listbox;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    void OnDestroy();
    LRESULT OnVScroll(WPARAM wParam, LPARAM lParam);
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};
