#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/cstring.h"
#include "drawing/line_option.h"
#include "drawing/swatches/line_button.h"
#include "frame/kvcom/color.h"
#include "frame/kvcom/disp_point.h"
#include "window/dialogs/dialog.h"

/// A byte, as the host's records have it.
using BYTE = unsigned char;

/// The look of a polyline or polygon, and its vertices as rows of text.
///
/// Modal, or modeless: then `Create` makes the window, `MoveTo` shows it and `Done` hides it. OK
/// can be pressed only while the host waits (`SetWaitMode`). An object that is to be changed is
/// told by `SetModifyMode(true)` with its flags and `SetUserInputPts` ahead of the start; the
/// flags of polygon and filling are shown only so.
class KVGUICTL_API CKvNewLineCtrlDlg : public CDialog {
public:
    explicit CKvNewLineCtrlDlg(CWnd* pParent = nullptr);

    using CDialog::Create;
    /// Makes the window, hidden. 0 where that fails.
    int Create(CWnd* pParent);
    /// Puts its top left corner there, on the screen, and shows it.
    void MoveTo(CPoint point);
    void Done();

    // What it begins with, and behind OK the outcome.
    KVColor GetLineColor() const { return m_nLineColor; }
    void SetLineColor(KVColor nColor) { m_nLineColor = nColor; }
    KVColor GetFillColor() const { return m_nFillColor; }
    void SetFillColor(KVColor nColor) { m_nFillColor = nColor; }
    BYTE GetWidth() const { return m_nWidth; }
    void SetWidth(BYTE nWidth) { m_nWidth = nWidth; }
    BYTE GetType() const { return m_nType; }
    void SetType(BYTE nType) { m_nType = nType; }
    E_KV_LINE_OPTION GetOptionFlag() const { return m_option; }
    void SetOptionFlag(E_KV_LINE_OPTION option) { m_option = option; }
    void SetPolygonFlag(bool bPolygon) { m_option.bPolygon = bPolygon; }
    void SetFilledFlag(bool bFilled) { m_option.bFilled = bFilled; }
    void SetModifyMode(bool bModify) { m_option.bModify = bModify; }
    void SetWaitMode(bool bWait);
    bool GetWaitMode() const { return m_option.bWait; }

    /// Adds the accepted vertices to `vecOut`, which is emptied first if `bClear` and there are
    /// any. Returns how many there are.
    int GetUserInputPts(std::vector<CKvDispPoint>& vecOut, bool bClear);
    void SetUserInputPts(std::vector<CKvDispPoint> vecPts);

    /// The vertices come from the builder, whose rows are added, or from the mouse.
    void OnRadioByKeyboard();
    void OnRadioByMouse();

    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnCheckPolygon();
    void OnCheckFillPolygon();
    void OnButtonModifyVertices();
    void OnCheckRubberBan();
    LRESULT OnDestroy(WPARAM wParam, LPARAM lParam);

    CWnd* m_pParent = nullptr;
    std::unique_ptr<CKvGuiLineWidthButton> m_pWidthBtn;
    std::unique_ptr<CKvGuiBasicColorButton> m_pColorBtn;
    std::unique_ptr<CKvGuiLineTypeButton> m_pTypeBtn;
    std::unique_ptr<CKvGuiBasicColorButton> m_pFillColorBtn;
    bool m_bChanged = false;
    KVColor m_nLineColor = KV_COLOR_DEFAULT;
    KVColor m_nFillColor = KV_COLOR_DEFAULT;
    BYTE m_nWidth = 0;
    BYTE m_nType = 0;
    std::vector<std::string> m_vecVertices;
    /// From the builder, and not accepted yet.
    std::vector<std::string> m_vecStaged;
    E_KV_LINE_OPTION m_option;

private:
    bool IsChecked(int id) const { return IsDlgButtonChecked(id) != BST_UNCHECKED; }
    void Enable(int id, bool enable) { Control<CWnd>(id).EnableWindow(enable); }
    void ShowModified();
    bool LookChanged() const;
    void TakeLook();

    bool m_bModeless = false;
};
