#include "drawing/new_text_dlg.h"

#include "drawing/new_text_ids.h"
#include "window/controls/combo_box.h"

using namespace kv::new_text;

namespace {

/// Digits that a float has.
constexpr int kHeightDecimals = 4;

struct NumberRange {
    double least;
    double most;
    double step;
};
constexpr NumberRange kHeights{0.0, 1.0, 0.05};
constexpr NumberRange kAngles{-360.0, 360.0, 1.0};

void FillJustifications(CComboBox& combo, std::initializer_list<const char*> words,
                        const CString& selected) {
    for (const char* word : words)
        combo.AddString(word);
    if (!selected.IsEmpty()) combo.SelectString(-1, selected);
}

/// Nothing selected leaves the word as it was.
void TakeJustification(const CComboBox& combo, CString& word) {
    if (combo.GetCurSel() >= 0) combo.GetLBText(combo.GetCurSel(), word);
}

}  // namespace

CKvNewTextDlg::CKvNewTextDlg(CWnd* pParent) : CDialog(kTemplate, pParent) {}

CKvNewTextDlg::~CKvNewTextDlg() {
    if (m_ppHost && *m_ppHost == this) *m_ppHost = nullptr;
}

int CKvNewTextDlg::Create(CWnd* pParent) {
    return CDialog::Create(kTemplate, pParent);
}

void CKvNewTextDlg::SetMoveTo(CPoint point) {
    if (!m_bModeless) return;
    SetWindowPos(nullptr, point.x, point.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ShowWindow(SW_SHOW);
}

void CKvNewTextDlg::SetDone() {
    if (m_bModeless) ShowWindow(SW_HIDE);
}

void CKvNewTextDlg::SetUpdate() {
    if (m_bModeless) SetDlgItemText(kContent, m_strContent);
}

void CKvNewTextDlg::SetColor(KVColor nColor) {
    if (Shows()) {
        m_pColorBtn->SetChange(nColor);
    } else {
        m_nColor = nColor;
    }
}

void CKvNewTextDlg::SetWeight(BYTE nWeight) {
    if (Shows()) {
        m_pWidthBtn->SetLineWidth(nWeight);
    } else {
        m_nWeight = nWeight;
    }
}

void CKvNewTextDlg::SetHeight(float fHeight) {
    if (Shows()) {
        m_pHeightSpin->SetPos(fHeight);
    } else {
        m_fHeight = fHeight;
    }
}

void CKvNewTextDlg::SetAngle(double dAngle) {
    if (Shows()) {
        m_pAngleSpin->SetPos(dAngle);
    } else {
        m_dAngle = dAngle;
    }
}

void CKvNewTextDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, kContent, m_strContent);
}

BOOL CKvNewTextDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    const auto takeOver = [this](auto& edit, int editId, auto& spin, int spinId,
                                 const NumberRange& range) {
        edit = std::make_unique<CNumEdit>();
        edit->SubclassDlgItem(static_cast<UINT>(editId), this);
        spin = std::make_unique<CNumSpinCtrl>();
        spin->SubclassDlgItem(static_cast<UINT>(spinId), this);
        spin->SetBuddy(edit.get());
        spin->SetRange(range.least, range.most);
        spin->SetDelta(range.step);
    };
    takeOver(m_pHeightEdit, kHeight, m_pHeightSpin, kHeightSpin, kHeights);
    m_pHeightEdit->SetPrecision(kHeightDecimals);
    m_pHeightSpin->SetPos(m_fHeight);
    takeOver(m_pAngleEdit, kAngle, m_pAngleSpin, kAngleSpin, kAngles);
    m_pAngleSpin->SetPos(m_dAngle);

    m_pColorBtn = std::make_unique<CKvGuiBasicColorButton>();
    m_pColorBtn->AutoLoad(kColor, this);
    m_pColorBtn->SetChange(m_nColor);
    m_pWidthBtn = std::make_unique<CKvGuiLineWidthButton>();
    m_pWidthBtn->AutoLoad(kWeight, this);
    m_pWidthBtn->SetChange(m_nWeight);

    FillJustifications(Control<CComboBox>(kVertical), {"ABOVE", "ON", "BELOW"}, m_strVertJust);
    FillJustifications(Control<CComboBox>(kHorizontal), {"LEFT", "CENTER", "RIGHT"}, m_strHorzJust);
    if (m_bModeless) ShowWindow(SW_HIDE);
    return TRUE;
}

void CKvNewTextDlg::TakeNumbers() {
    m_nColor = static_cast<KVColor>(m_pColorBtn->GetCWTValue());
    m_nWeight = static_cast<BYTE>(m_pWidthBtn->GetLineWidth());
    m_fHeight = static_cast<float>(m_pHeightSpin->GetPos());
    m_dAngle = m_pAngleSpin->GetPos();
}

void CKvNewTextDlg::OnOK() {
    m_bWaitMode = false;
    m_bOk = true;
    TakeNumbers();
    TakeJustification(Control<CComboBox>(kVertical), m_strVertJust);
    TakeJustification(Control<CComboBox>(kHorizontal), m_strHorzJust);
    // Hidden, a modeless one ends the loop that waits for it.
    CDialog::OnOK();
}

void CKvNewTextDlg::OnCancel() {
    m_bOk = false;
    CDialog::OnCancel();
}

LRESULT CKvNewTextDlg::OnDestroy(WPARAM, LPARAM) {
    m_pColorBtn.reset();
    m_pWidthBtn.reset();
    m_pHeightSpin.reset();
    m_pHeightEdit.reset();
    m_pAngleSpin.reset();
    m_pAngleEdit.reset();
    return Default();
}

void CKvNewTextDlg::PostNcDestroy() {
    if (m_bModeless) delete this;
}

const kv::MessageMap& CKvNewTextDlg::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnMessage<&CKvNewTextDlg::OnDestroy>(WM_DESTROY),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
