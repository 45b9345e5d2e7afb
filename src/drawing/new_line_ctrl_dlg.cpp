#include "drawing/new_line_ctrl_dlg.h"

#include "base/text.h"
#include "drawing/new_line_ctrl_ids.h"
#include "drawing/row_scan.h"
#include "drawing/vertice_builder.h"

using namespace kv::new_line_ctrl;

CKvNewLineCtrlDlg::CKvNewLineCtrlDlg(CWnd* pParent) : CDialog(kTemplate, pParent) {}

int CKvNewLineCtrlDlg::Create(CWnd* pParent) {
    m_pParent = pParent;
    m_bModeless = true;
    return CDialog::Create(kTemplate, pParent);
}

void CKvNewLineCtrlDlg::MoveTo(CPoint point) {
    SetWindowPos(nullptr, point.x, point.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ShowWindow(SW_SHOW);
}

void CKvNewLineCtrlDlg::Done() {
    ShowWindow(SW_HIDE);
}

BOOL CKvNewLineCtrlDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    const auto make = [this](auto& button, int id, int value) {
        button = std::make_unique<typename std::decay_t<decltype(button)>::element_type>();
        button->AutoLoad(static_cast<UINT>(id), this);
        button->SetChange(value);
    };
    make(m_pWidthBtn, kWidth, m_nWidth);
    make(m_pColorBtn, kColor, m_nLineColor);
    make(m_pTypeBtn, kType, m_nType);
    make(m_pFillColorBtn, kFillColor, m_nFillColor);

    Enable(kFill, false);
    Enable(kFillColor, false);
    Enable(kClose, !m_option.bModify);
    Enable(kVertices, true);
    SetDlgItemText(kRubberBand, "Rubber Band");
    CheckDlgButton(kRubberBand, m_option.bRubberBand);
    Enable(kRubberBand, m_option.bRubberBand);
    Enable(IDOK, m_option.bWait);
    m_bChanged = m_option.bModify;
    if (m_option.bModify) ShowModified();
    if (m_bModeless) ShowWindow(SW_HIDE);
    return TRUE;
}

void CKvNewLineCtrlDlg::ShowModified() {
    SetDlgItemText(kVertices, "Modify Vertices");
    CheckDlgButton(kClose, m_option.bPolygon);
    CheckDlgButton(kFill, m_option.bFilled);
    Enable(kClose, true);
    Enable(kFill, m_option.bPolygon);
    Enable(kFillColor, m_option.bFilled);
    Enable(kRubberBand, false);
    m_option.bModify = 0;
}

void CKvNewLineCtrlDlg::SetWaitMode(bool bWait) {
    m_option.bWait = bWait;
    Enable(IDOK, bWait);
}

void CKvNewLineCtrlDlg::OnCheckPolygon() {
    const bool closed = IsChecked(kClose);
    if (!closed) CheckDlgButton(kFill, BST_UNCHECKED);
    Enable(kFill, closed);
    OnCheckFillPolygon();
}

void CKvNewLineCtrlDlg::OnCheckFillPolygon() {
    Enable(kFillColor, IsChecked(kFill));
}

void CKvNewLineCtrlDlg::OnCheckRubberBan() {
    m_option.bRubberBand = IsChecked(kRubberBand);
}

void CKvNewLineCtrlDlg::OnButtonModifyVertices() {
    CKvGuiVerticeBuilder builder(this);
    if (m_bChanged) {
        builder.SetModifyMode(true);
        builder.SetVertices(m_vecStaged);
        m_option.bModify = 0;
    } else {
        builder.SetModifyMode(false);
        m_option.bByMouse = 0;
        m_option.bByKeyboard = 1;
    }
    builder.SetProjection(m_option.nProjection);
    builder.SetImperialUnit(m_option.bImperial);
    if (builder.DoModal() != IDOK) return;
    m_option.bModify = builder.GetModifyMode();
    m_option.bNewVertices = builder.GetModifyVertices();
    if (!m_option.bNewVertices) return;
    m_vecStaged.clear();
    builder.GetVertices(m_vecStaged);
}

bool CKvNewLineCtrlDlg::LookChanged() const {
    return IsChecked(kClose) != static_cast<bool>(m_option.bPolygon) ||
           IsChecked(kFill) != static_cast<bool>(m_option.bFilled) ||
           m_pWidthBtn->GetLineWidth() != m_nWidth || m_pTypeBtn->GetLineType() != m_nType ||
           m_pColorBtn->GetCWTValue() != m_nLineColor ||
           m_pFillColorBtn->GetCWTValue() != m_nFillColor;
}

void CKvNewLineCtrlDlg::TakeLook() {
    m_nWidth = static_cast<BYTE>(m_pWidthBtn->GetLineWidth());
    m_nType = static_cast<BYTE>(m_pTypeBtn->GetLineType());
    m_nLineColor = static_cast<KVColor>(m_pColorBtn->GetCWTValue());
    m_nFillColor = static_cast<KVColor>(m_pFillColorBtn->GetCWTValue());
    m_option.bPolygon = IsChecked(kClose);
    m_option.bFilled = IsChecked(kFill);
}

void CKvNewLineCtrlDlg::OnOK() {
    const bool look = LookChanged();
    const bool vertices = m_option.bNewVertices;
    m_bChanged = look || vertices;
    m_option.bModify = m_bChanged;
    if (look) TakeLook();
    if (vertices) {
        m_vecVertices = m_vecStaged;
        m_vecStaged.clear();
    }
    CDialog::OnOK();
}

void CKvNewLineCtrlDlg::OnCancel() {
    m_bChanged = false;
    m_option.bModify = 0;
    CDialog::OnCancel();
}

int CKvNewLineCtrlDlg::GetUserInputPts(std::vector<CKvDispPoint>& vecOut, bool bClear) {
    if (bClear && !m_vecVertices.empty()) vecOut.clear();
    for (const std::string& row : m_vecVertices) {
        const std::size_t comma = row.find(',');
        kv::vertices::RowScan scan(row);
        const double x = scan.Double();
        if (comma != std::string::npos && comma > 0) scan.Char();
        vecOut.emplace_back(x, scan.Double(), 0.0);
    }
    return static_cast<int>(m_vecVertices.size());
}

void CKvNewLineCtrlDlg::SetUserInputPts(std::vector<CKvDispPoint> vecPts) {
    m_vecVertices.clear();
    for (const CKvDispPoint& point : vecPts)
        m_vecVertices.push_back(kv::FormatText("%f , %f", point.GetX(), point.GetY()));
    m_vecStaged = m_vecVertices;
}

void CKvNewLineCtrlDlg::OnRadioByKeyboard() {
    m_option.bByKeyboard = 1;
    m_option.bByMouse = 0;
    CKvGuiVerticeBuilder builder(this);
    if (builder.DoModal() == IDOK) builder.GetVertices(m_vecVertices);
}

void CKvNewLineCtrlDlg::OnRadioByMouse() {
    m_option.bByMouse = 1;
    m_option.bByKeyboard = 0;
}

LRESULT CKvNewLineCtrlDlg::OnDestroy(WPARAM, LPARAM) {
    m_pWidthBtn.reset();
    m_pColorBtn.reset();
    m_pTypeBtn.reset();
    m_pFillColorBtn.reset();
    return Default();
}

const kv::MessageMap& CKvNewLineCtrlDlg::Messages() {
    using Self = CKvNewLineCtrlDlg;
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&Self::OnCheckPolygon>(kClose),
        kv::OnClicked<&Self::OnCheckFillPolygon>(kFill),
        kv::OnClicked<&Self::OnButtonModifyVertices>(kVertices),
        kv::OnClicked<&Self::OnCheckRubberBan>(kRubberBand),
        kv::OnMessage<&Self::OnDestroy>(WM_DESTROY),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
