#pragma once

#include "window/controls/button.h"
#include "window/dialogs/dialog.h"

/// Asks whether areas are listed by their names or in the user's own order, which it lets them
/// change. The object remembers the answer: who wants it kept keeps the object.
class KVGUICTL_API COrderDlg : public CDialog {
public:
    explicit COrderDlg(CWnd* parent = nullptr);

    /// Whether the user's own order is wanted; true until OK said otherwise.
    bool GetbCustom() const { return m_bCustom; }

    BOOL OnInitDialog() override;
    void OnOK() override;
    void DoDataExchange(CDataExchange* exchange) override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnRadioCustom();
    void OnRadioAreaname();
    void OnBtnCustomize();

    CButton m_btnCustomize;
    bool m_bCustom = true;
};
