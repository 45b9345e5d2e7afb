#pragma once

#include <memory>

#include "base/cstring.h"
#include "controls/num_spin_ctrl.h"
#include "drawing/swatches/line_button.h"
#include "frame/kvcom/color.h"
#include "window/dialogs/dialog.h"

class CComboBox;

/// A byte, as the host's records have it.
using BYTE = unsigned char;

/// The content and look of a text on a map.
///
/// Modal, or modeless: `SetModeLessState(true)`, `Create`, `SetMoveTo`, which shows it. A modeless
/// one is made by `new` and deletes itself when its window is destroyed; OK and Cancel hide it,
/// which ends the desktop's loop for it. While it has its window, `SetColor`, `SetWeight`,
/// `SetHeight` and `SetAngle` change what it shows, and the outcome only by OK.
class KVGUICTL_API CKvNewTextDlg : public CDialog {
public:
    explicit CKvNewTextDlg(CWnd* pParent = nullptr);
    ~CKvNewTextDlg() override;

    using CDialog::Create;
    /// Makes the window, hidden. 0 where that fails.
    int Create(CWnd* pParent);
    void SetModeLessState(bool bModeless) { m_bModeless = bModeless; }
    /// The pointer by which a host holds a modeless one: it becomes null when that deletes itself.
    void SetHostPointer(CKvNewTextDlg** ppDialog) { m_ppHost = ppDialog; }
    /// Puts its top left corner there, on the screen, and shows it; only modeless.
    void SetMoveTo(CPoint point);
    void SetDone();
    /// Shows the content that was set last.
    void SetUpdate();

    void SetWaitMode(bool bWait) { m_bWaitMode = bWait; }
    bool GetWaitMode() const { return m_bWaitMode; }
    /// Whether it was OK that closed it.
    bool GetOkFlag() const { return m_bOk; }

    // What it begins with, and behind OK the outcome.
    CString GetContent() const { return m_strContent; }
    void SetContent(CString strContent) { m_strContent = strContent; }
    KVColor GetColor() const { return m_nColor; }
    void SetColor(KVColor nColor);
    /// Degrees, -360 to 360.
    double GetAngle() const { return m_dAngle; }
    void SetAngle(double dAngle);
    BYTE GetWeight() const { return m_nWeight; }
    void SetWeight(BYTE nWeight);
    /// Inches, 0 to 1.
    float GetHeight() const { return m_fHeight; }
    void SetHeight(float fHeight);
    /// "ABOVE", "ON" or "BELOW".
    CString GetVertJust() const { return m_strVertJust; }
    void SetVertJust(CString strJust) { m_strVertJust = strJust; }
    /// "LEFT", "CENTER" or "RIGHT".
    CString GetHorzJust() const { return m_strHorzJust; }
    void SetHorzJust(CString strJust) { m_strHorzJust = strJust; }

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;
    void OnCancel() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    LRESULT OnDestroy(WPARAM wParam, LPARAM lParam);
    void PostNcDestroy() override;

    std::unique_ptr<CKvGuiBasicColorButton> m_pColorBtn;
    std::unique_ptr<CKvGuiLineWidthButton> m_pWidthBtn;
    std::unique_ptr<CNumEdit> m_pHeightEdit;
    std::unique_ptr<CNumSpinCtrl> m_pHeightSpin;
    std::unique_ptr<CNumEdit> m_pAngleEdit;
    std::unique_ptr<CNumSpinCtrl> m_pAngleSpin;
    bool m_bWaitMode = false;
    bool m_bOk = false;
    bool m_bModeless = false;
    CString m_strContent = " ";
    KVColor m_nColor = KV_COLOR_DEFAULT;
    float m_fHeight = 0.05F;
    BYTE m_nWeight = 0;
    double m_dAngle = 0.0;
    CString m_strVertJust = "ON";
    CString m_strHorzJust = "CENTER";

private:
    /// Whether a setter changes what is shown, and not the outcome.
    bool Shows() const { return m_bModeless && m_pColorBtn; }
    void TakeNumbers();

    CKvNewTextDlg** m_ppHost = nullptr;
};
