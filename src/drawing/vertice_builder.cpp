#include "drawing/vertice_builder.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "base/text.h"
#include "drawing/counting.h"
#include "drawing/row_scan.h"
#include "drawing/vertex_row.h"
#include "drawing/vertice_builder_ids.h"
#include "frame/kvcom/util_lldrv.h"
#include "window/controls/button.h"
#include "window/window_system.h"

using namespace kv::vertice_builder;
using kv::vertices::Pair;

namespace {

constexpr int kXyControls[] = {kXLabel, kYLabel, kX, kY};
constexpr int kLatLonControls[] = {kDegreeLabel, kMinuteLabel, kSecondLabel, kLatLabel,  kLatDegree,
                                   kLatMinute,   kLatSecond,   kLonLabel,    kLonDegree, kLonMinute,
                                   kLonSecond,   kFormat,      kDecimal,     kDms};
constexpr int kBoxes[] = {kX,         kY,         kLatDegree, kLatMinute,
                          kLatSecond, kLonDegree, kLonMinute, kLonSecond};

constexpr const char* kNoNumber = "0.00";
constexpr const char* kNoMinutes = "0";

bool HasPoint(const std::string& text) {
    return text.find('.') != std::string::npos;
}

}  // namespace

CKvGuiVerticeBuilder::CKvGuiVerticeBuilder(CWnd* pParent) : CDialog(kTemplate, pParent) {}

// Rows in and out.

void CKvGuiVerticeBuilder::SetVertices(std::vector<std::string> vecRows) {
    if (vecRows.empty()) return;
    m_vecVertices.clear();
    for (std::string& row : vecRows) {
        std::string canonical;
        DecodePts(row, canonical, true);
        m_vecVertices.push_back(canonical);
    }
}

void CKvGuiVerticeBuilder::GetVertices(std::vector<std::string>& vecOut) const {
    vecOut.insert(vecOut.end(), m_vecVertices.begin(), m_vecVertices.end());
}

void CKvGuiVerticeBuilder::OnButtonAccept() {
    m_vecVertices.clear();
    const int count = m_listXY.GetCount();
    for (int i = 0; i < count; ++i) {
        std::string row = kv::ToUpper(RowText(i));
        std::string vertex;
        // One that cannot be decoded is told, and leaves an empty row.
        if (!m_bXYMode) DecodePts(row, vertex, false);
        m_vecVertices.push_back(m_bXYMode ? row : vertex);
    }
    CDialog::OnOK();
}

// Conversion.

void CKvGuiVerticeBuilder::ConvertXYtoLatLon(double dX, double dY, double& dLat, double& dLon) {
    CKvUtilLLdrv::XYdrv(dX, dY, &dLat, &dLon, m_nProjection, m_bImperialUnit ? 0 : 1, 1, 100.0F,
                        0.0F, 0.0F);
}

void CKvGuiVerticeBuilder::ConvertLatLontoXY(double dLat, double dLon, double& dX, double& dY) {
    CKvUtilLLdrv::LLdrv(dLat, dLon, &dX, &dY, m_nProjection, m_bImperialUnit ? 0 : 1, 1, 100.0F,
                        0.0F, 0.0F);
}

bool CKvGuiVerticeBuilder::DecodePts(std::string& strIn, std::string& strOut, bool bXY) {
    constexpr double kMostLatitude = 90.0;
    constexpr double kMostLongitude = 180.0;
    strIn = kv::vertices::Normalised(strIn);
    Pair pair;
    if (bXY) {
        pair = kv::vertices::ScanPair(strIn);
    } else {
        const Pair angles = kv::vertices::ScanLatLon(strIn);
        const auto refuse = [this](const std::string& words) {
            const kv::drawing::Counting moves(m_nMovesFocus);
            AfxMessageBox(words.c_str());
            return false;
        };
        if (!(std::abs(angles.first) <= kMostLatitude)) {
            return refuse(kv::FormatText("Lat %f is out of range [-90.00..+90.00]", angles.first));
        }
        if (!(std::abs(angles.second) <= kMostLongitude)) {
            return refuse(
                kv::FormatText("Long %f is out of range [-180.00..+180.00]", angles.second));
        }
        ConvertLatLontoXY(angles.first, angles.second, pair.first, pair.second);
    }
    strOut = kv::vertices::PairRow(pair);
    return true;
}

/// False where the driver has no answer.
bool CKvGuiVerticeBuilder::ConvertRow(Mode mode, const std::string& row, std::string& out) {
    const std::string text = kv::vertices::Normalised(row);
    Pair to;
    switch (mode) {
        case Mode::kToLatLon: {
            const Pair from = kv::vertices::ScanPair(text);
            ConvertXYtoLatLon(from.first, from.second, to.first, to.second);
            out = m_bDegDeg ? kv::vertices::PairRow(to) : kv::vertices::DmsRow(to);
            return std::isfinite(to.first) && std::isfinite(to.second);
        }
        case Mode::kToXy: {
            const Pair from =
                m_bDegDeg ? kv::vertices::ScanPair(text) : kv::vertices::ScanDms(text);
            ConvertLatLontoXY(from.first, from.second, to.first, to.second);
            out = kv::vertices::PairRow(to);
            return to.first != CKvUtilLLdrv::kNoXY || to.second != CKvUtilLLdrv::kNoXY;
        }
        case Mode::kToDms:
            out = kv::vertices::DmsRow(kv::vertices::ScanPair(text));
            return true;
        default:
            out = kv::vertices::PairRow(kv::vertices::ScanDms(text));
            return true;
    }
}

void CKvGuiVerticeBuilder::ConvertStringXYtoLatLon(std::string strIn, std::string& strOut) {
    ConvertRow(Mode::kToLatLon, strIn, strOut);
}

void CKvGuiVerticeBuilder::ConvertStringLatLontoXY(std::string strIn, std::string& strOut) {
    ConvertRow(Mode::kToXy, strIn, strOut);
}

void CKvGuiVerticeBuilder::ConvertStringDegDegtoDMS(std::string strIn, std::string& strOut) {
    ConvertRow(Mode::kToDms, strIn, strOut);
}

void CKvGuiVerticeBuilder::ConvertStringDMStoDegDeg(std::string strIn, std::string& strOut) {
    ConvertRow(Mode::kToDecimal, strIn, strOut);
}

/// The rows of the list in another form. False, told, where one has none: they would all become
/// equal, and vanish.
bool CKvGuiVerticeBuilder::Convert(Mode mode, std::vector<std::string>& rows) {
    const int count = m_listXY.GetCount();
    for (int i = 0; i < count; ++i) {
        const std::string row = RowText(i);
        std::string converted;
        if (!ConvertRow(mode, row, converted)) {
            const std::string words =
                "The projection has no answer for the row\n" + row + "\nNo row is converted.";
            const kv::drawing::Counting moves(m_nMovesFocus);
            AfxMessageBox(words.c_str());
            return false;
        }
        rows.push_back(converted);
    }
    return true;
}

void CKvGuiVerticeBuilder::PutRows(const std::vector<std::string>& rows) {
    if (rows.empty()) return;
    const int selected = std::max(m_listXY.GetCurSel(), 0);
    m_listXY.ResetContent();
    for (const std::string& row : rows)
        AddIfNew(row);
    m_listXY.SetCurSel(selected);
    UpdateEditArea();
}

void CKvGuiVerticeBuilder::UpdateList(int nMode) {
    std::vector<std::string> rows;
    if (Convert(static_cast<Mode>(nMode), rows)) PutRows(rows);
}

// The rows.

std::string CKvGuiVerticeBuilder::RowText(int row) const {
    CString text;
    m_listXY.GetText(row, text);
    return text.str();
}

bool CKvGuiVerticeBuilder::HasRow(const std::string& text) const {
    return m_listXY.FindStringExact(-1, text.c_str()) != LB_ERR;
}

bool CKvGuiVerticeBuilder::AddIfNew(const std::string& text) {
    if (HasRow(text)) return false;
    m_listXY.AddString(text.c_str());
    return true;
}

void CKvGuiVerticeBuilder::Changed() {
    m_bModifyMode = true;
    m_bModifyVertices = true;
}

std::string CKvGuiVerticeBuilder::AddedRow() const {
    if (m_bXYMode) return kv::FormatText("%.2f   ,   %.2f", m_dX, m_dY);
    const bool decimalLat = HasPoint(m_editLatDegree.WindowText());
    const bool decimalLon = HasPoint(m_editLonDegree.WindowText());
    const auto dms = [](double degree, double minute, double second) {
        return kv::FormatText("%d %d %.6f", kv::ToInt(degree), kv::ToInt(minute), second);
    };
    const std::string latitude = decimalLat ? kv::FormatText("%.6f", m_dLatDegree)
                                            : dms(m_dLatDegree, m_dLatMinute, m_dLatSecond);
    const std::string longitude = decimalLon ? kv::FormatText("%.6f", m_dLonDegree)
                                             : dms(m_dLonDegree, m_dLonMinute, m_dLonSecond);
    return latitude + (decimalLat ? " ,   " : "  ,   ") + longitude;
}

void CKvGuiVerticeBuilder::OnButtonAddPt() {
    if (!ReadBoxes()) return;
    const std::string row = AddedRow();
    if (!HasRow(row)) {
        const int selected = m_listXY.GetCurSel();
        if (m_bEditing && selected >= 0) {
            m_listXY.DeleteString(static_cast<UINT>(selected));
            m_listXY.InsertString(selected, row.c_str());
            m_bEditing = false;
        } else {
            m_listXY.AddString(row.c_str());
        }
        Changed();
    }
    OnSelchangeLISTXYPos();
}

/// Other decimals than those of an added row, and none at all for a longitude alone that is
/// decimal.
std::string CKvGuiVerticeBuilder::InsertedRow() const {
    if (m_bXYMode) return kv::FormatText("%f   ,   %f", m_dX, m_dY);
    const bool decimalLat = HasPoint(m_editLatDegree.WindowText());
    const bool decimalLon = HasPoint(m_editLonDegree.WindowText());
    if (decimalLon && !decimalLat) return {};
    const auto angle = [](bool decimal, double degree, double minute, double second) {
        const std::string head =
            decimal ? kv::FormatText("%.2f", degree) : std::to_string(kv::ToInt(degree));
        return head + kv::FormatText(" %d %.2f", kv::ToInt(minute), second);
    };
    return angle(decimalLat, m_dLatDegree, m_dLatMinute, m_dLatSecond) + "  ,   " +
           angle(decimalLon, m_dLonDegree, m_dLonMinute, m_dLonSecond);
}

void CKvGuiVerticeBuilder::OnButtonInsertPt() {
    const int selected = m_listXY.GetCurSel();
    if (selected < 0) {
        const kv::drawing::Counting moves(m_nMovesFocus);
        AfxMessageBox("Must highlight a row for insert");
        return;
    }
    if (!ReadBoxes()) return;
    const std::string row = InsertedRow();
    if (!HasRow(row)) {
        m_listXY.InsertString(selected, row.c_str());
        EnableButton(kAccept, TRUE);
        Changed();
    }
    ResetXYContent();
    MoveFocusTo(m_editX, false);
    OnSelchangeLISTXYPos();
    SetHightLight(&m_editX);
    EnableButton(kAdd, FALSE);
    EnableButton(kInsert, FALSE);
}

void CKvGuiVerticeBuilder::OnButtonEditPt() {
    if (m_listXY.GetCurSel() < 0) return;
    if (m_bEditing) {
        OnButtonAddPt();
    } else {
        MoveFocusTo(m_bXYMode ? m_editX : m_editLatDegree, true);
    }
    // What an added row has cleared is set again.
    m_bEditing = !m_bEditing;
    ShowButtonStatus();
}

void CKvGuiVerticeBuilder::OnButtonDeletePt() {
    const int selected = m_listXY.GetCurSel();
    if (selected >= 0) {
        m_listXY.DeleteString(static_cast<UINT>(selected));
        EnableButton(kAccept, TRUE);
        Changed();
    } else {
        const kv::drawing::Counting moves(m_nMovesFocus);
        AfxMessageBox("Nothing selected");
    }
    EnableButton(kSave, HasRows());
}

void CKvGuiVerticeBuilder::MoveRow(int by) {
    const int from = m_listXY.GetCurSel();
    const int to = from + by;
    if (from < 0 || to < 0 || to >= m_listXY.GetCount()) return;
    const std::string row = RowText(from);
    m_listXY.DeleteString(static_cast<UINT>(from));
    m_listXY.InsertString(to, row.c_str());
    m_listXY.SetCurSel(to);
    OnSelchangeLISTXYPos();
    EnableButton(kAccept, TRUE);
    Changed();
}

void CKvGuiVerticeBuilder::OnButtonMoveupPt() {
    MoveRow(-1);
}

void CKvGuiVerticeBuilder::OnButtonMovedownPt() {
    MoveRow(1);
}

void CKvGuiVerticeBuilder::OnButtonClosePolyPt() {
    if (!HasRows()) return;
    m_listXY.AddString(RowText(0).c_str());
    EnableButton(kAccept, TRUE);
}

void CKvGuiVerticeBuilder::OnSelchangeLISTXYPos() {
    m_bModifyMode = false;
    m_bEditing = false;
    ShowButtonStatus();
    UpdateEditArea();
}

// What is shown.

void CKvGuiVerticeBuilder::EnableButton(int nId, int bEnable) {
    Control<CWnd>(nId).EnableWindow(bEnable);
}

void CKvGuiVerticeBuilder::EnableMinutesAndSeconds(bool latitude, bool longitude) {
    EnableButton(kLatMinute, latitude);
    EnableButton(kLatSecond, latitude);
    EnableButton(kLonMinute, longitude);
    EnableButton(kLonSecond, longitude);
}

void CKvGuiVerticeBuilder::ShowButtonStatus() {
    for (const int id : {kAccept, kAdd, kInsert, kMoveDown, kMoveUp, kDelete})
        EnableButton(id, FALSE);
    EnableMinutesAndSeconds(false, false);
    const int count = m_listXY.GetCount();
    const int selected = m_listXY.GetCurSel();
    if (count > 0) {
        for (const int id : {kSave, kAccept, kAdd, kInsert, kDelete})
            EnableButton(id, TRUE);
        if (selected >= 0) {
            EnableButton(kMoveDown, selected < count - 1);
            EnableButton(kMoveUp, selected > 0);
        }
    }
    if (!m_bEditing) {
        EnableButton(kEditRow, TRUE);
        SetDlgItemText(kEditRow, "Edit");
    } else if (selected >= 0) {
        SetDlgItemText(kEditRow, "Apply");
        for (const int id : {kAdd, kInsert, kMoveDown, kMoveUp, kDelete})
            EnableButton(id, FALSE);
    }
    EnableButton(kLoad, TRUE);
}

void CKvGuiVerticeBuilder::UpdateEditArea() {
    const int selected = m_listXY.GetCurSel();
    if (selected < 0) return;
    const std::string row = RowText(selected);
    if (m_bXYMode) {
        kv::vertices::RowScan scan(row);
        m_editX.SetWindowText(scan.Token().c_str());
        scan.Char();
        m_editY.SetWindowText(scan.Token().c_str());
        return;
    }
    ShowAngles(row);
}

void CKvGuiVerticeBuilder::ShowAngles(const std::string& row) {
    const auto show = [](std::string_view half, CEdit& degree, CEdit& minute, CEdit& second) {
        kv::vertices::RowScan scan(half);
        const std::string first = scan.Token();
        const std::string minutes = scan.Token();
        const std::string seconds = scan.Token();
        degree.SetWindowText(first.c_str());
        minute.SetWindowText(HasPoint(first) ? kNoMinutes : minutes.c_str());
        second.SetWindowText(HasPoint(first) ? kNoNumber : seconds.c_str());
    };
    const std::size_t comma = std::min(row.find(','), row.size());
    show(std::string_view(row).substr(0, comma), m_editLatDegree, m_editLatMinute, m_editLatSecond);
    show(std::string_view(row).substr(std::min(comma + 1, row.size())), m_editLonDegree,
         m_editLonMinute, m_editLonSecond);
}

void CKvGuiVerticeBuilder::ResetX() {
    m_editX.SetWindowText(kNoNumber);
}

void CKvGuiVerticeBuilder::ResetY() {
    m_editY.SetWindowText(kNoNumber);
}

void CKvGuiVerticeBuilder::ResetXYContent() {
    ResetX();
    ResetY();
}

void CKvGuiVerticeBuilder::ClearEditFields() {
    ResetXYContent();
    for (CEdit* box : {&m_editLatDegree, &m_editLatSecond, &m_editLonDegree, &m_editLonSecond})
        box->SetWindowText(kNoNumber);
    for (CEdit* box : {&m_editLatMinute, &m_editLonMinute})
        box->SetWindowText(kNoMinutes);
    EnableButton(kAdd, FALSE);
    EnableButton(kInsert, FALSE);
    EnableMinutesAndSeconds(false, false);
}

void CKvGuiVerticeBuilder::SetHightLight(CEdit* pEdit) {
    if (pEdit) pEdit->SetSel(0, -1);
}

BOOL CKvGuiVerticeBuilder::OnInitDialog() {
    CDialog::OnInitDialog();
    ClearEditFields();
    OnRadioXyMode();
    m_bDegDeg = true;
    CheckDlgButton(kXyMode, m_bXYMode);
    CheckDlgButton(kDecimal, BST_CHECKED);
    if (m_bModifyMode && !m_vecVertices.empty()) {
        for (const std::string& row : m_vecVertices)
            AddIfNew(row);
        m_bModifyMode = false;
        m_bModifyVertices = false;
    }
    EnableButton(kSave, FALSE);
    ShowButtonStatus();
    // The focus is in the first box.
    return FALSE;
}

// Modes and formats.

void CKvGuiVerticeBuilder::ShowMode() {
    for (const int id : kXyControls)
        Control<CWnd>(id).ShowWindow(m_bXYMode ? SW_SHOW : SW_HIDE);
    for (const int id : kLatLonControls)
        Control<CWnd>(id).ShowWindow(m_bXYMode ? SW_HIDE : SW_SHOW);
    CheckRadioButton(kXyMode, kLatLonMode, m_bXYMode ? kXyMode : kLatLonMode);
}

void CKvGuiVerticeBuilder::OnRadioXyMode() {
    std::vector<std::string> rows;
    const bool converted = Convert(Mode::kToXy, rows);
    m_bXYMode = m_bXYMode || converted;
    ShowMode();
    if (!converted) return;
    MoveFocusTo(m_editX, false);
    PutRows(rows);
    // The box may show another row.
    SetHightLight(&m_editX);
}

void CKvGuiVerticeBuilder::OnRadioLatlonMode() {
    std::vector<std::string> rows;
    const bool converted = Convert(Mode::kToLatLon, rows);
    m_bXYMode = m_bXYMode && !converted;
    ShowMode();
    if (!converted) return;
    MoveFocusTo(m_editLatDegree, false);
    EnableMinutesAndSeconds(!m_bDegDeg, !m_bDegDeg);
    PutRows(rows);
    SetHightLight(&m_editLatDegree);
}

void CKvGuiVerticeBuilder::OnRadioDegdeg() {
    m_bDegDeg = true;
    UpdateList(static_cast<int>(Mode::kToDecimal));
    EnableButton(kInsert, FALSE);
    EnableMinutesAndSeconds(false, false);
}

void CKvGuiVerticeBuilder::OnRadioDms() {
    m_bDegDeg = false;
    UpdateList(static_cast<int>(Mode::kToDms));
    EnableMinutesAndSeconds(true, true);
}

void CKvGuiVerticeBuilder::OverWriteFormat() {
    if (m_bXYMode) return;
    m_listXY.SetCurSel(0);
    const std::string row = RowText(0);
    kv::vertices::RowScan scan(std::string_view(row).substr(0, row.find(',')));
    const bool decimal = HasPoint(scan.Token());
    CheckRadioButton(kDecimal, kDms, decimal ? kDecimal : kDms);
    UpdateEditArea();
}

// The boxes.

void CKvGuiVerticeBuilder::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, kX, m_editX);
    DDX_Control(pDX, kY, m_editY);
    DDX_Control(pDX, kLatDegree, m_editLatDegree);
    DDX_Control(pDX, kLatMinute, m_editLatMinute);
    DDX_Control(pDX, kLatSecond, m_editLatSecond);
    DDX_Control(pDX, kLonDegree, m_editLonDegree);
    DDX_Control(pDX, kLonMinute, m_editLonMinute);
    DDX_Control(pDX, kLonSecond, m_editLonSecond);
    DDX_Control(pDX, kRows, m_listXY);
    // What is hidden blocks nothing.
    const auto exchange = [&](const CEdit& box, double& value) {
        const bool shown = box.m_hWnd && box.m_hWnd->Visible();
        if (shown) DDX_Text(pDX, box.GetDlgCtrlID(), value);
        return shown;
    };
    const auto exchangeWithin = [&](const CEdit& box, double& value, double least, double most) {
        if (exchange(box, value)) DDV_MinMaxDouble(pDX, value, least, most);
    };
    exchange(m_editX, m_dX);
    exchange(m_editY, m_dY);
    exchangeWithin(m_editLatDegree, m_dLatDegree, -90.0, 90.0);
    exchangeWithin(m_editLatMinute, m_dLatMinute, 0.0, 60.0);
    exchangeWithin(m_editLatSecond, m_dLatSecond, 0.0, 3600.0);
    exchangeWithin(m_editLonDegree, m_dLonDegree, -180.0, 180.0);
    exchangeWithin(m_editLonMinute, m_dLonMinute, 0.0, 60.0);
    exchangeWithin(m_editLonSecond, m_dLonSecond, 0.0, 3600.0);
}

bool CKvGuiVerticeBuilder::FocusInBoxes() const {
    const CWnd* focus = GetFocus();
    return std::ranges::any_of(
        kBoxes, [&](int id) { return focus && m_hWnd && focus->m_hWnd == m_hWnd->FindChild(id); });
}

/// Takes the values of the boxes. Exit can be pressed again once they are right, and no more where
/// one that has the focus is not.
bool CKvGuiVerticeBuilder::ReadBoxes() {
    const bool right = UpdateData(TRUE) != FALSE;
    if (right || FocusInBoxes()) EnableButton(IDCANCEL, right);
    return right;
}

bool CKvGuiVerticeBuilder::OnKillfocus() {
    return ReadBoxes() && FocusInBoxes();
}

void CKvGuiVerticeBuilder::MoveFocusTo(CEdit& box, bool highlight) {
    const kv::drawing::Counting moves(m_nMovesFocus);
    box.SetFocus();
    if (highlight) SetHightLight(&box);
}

void CKvGuiVerticeBuilder::OnEditing() {
    if (m_bLatLonEdited) return;
    m_bLatLonEdited = true;
    EnableButton(kAdd, TRUE);
    EnableButton(kInsert, TRUE);
}

void CKvGuiVerticeBuilder::OnChangeEditXPos() {
    EnableButton(kAdd, TRUE);
    EnableButton(kInsert, TRUE);
}

void CKvGuiVerticeBuilder::OnChangeEditYPos() {
    OnChangeEditXPos();
}

void CKvGuiVerticeBuilder::OnKillfocusEditXPos() {
    if (LeftByUser()) OnKillfocus();
}

void CKvGuiVerticeBuilder::OnKillfocusEditYPos() {
    if (LeftByUser()) OnKillfocus();
}

void CKvGuiVerticeBuilder::OnKillfocusEditLatMinute() {
    if (LeftByUser()) OnKillfocus();
}

void CKvGuiVerticeBuilder::OnKillfocusEditLonMinute() {
    if (LeftByUser()) OnKillfocus();
}

void CKvGuiVerticeBuilder::OnKillfocusEditLonSecond() {
    if (LeftByUser()) OnKillfocus();
}

void CKvGuiVerticeBuilder::OnKillfocusEditLatSecond() {
    if (LeftByUser()) LeaveLatSecond();
}

void CKvGuiVerticeBuilder::OnKillfocusEditLatDegree() {
    if (LeftByUser()) LeaveLatDegree();
}

void CKvGuiVerticeBuilder::OnKillfocusEditLonDegree() {
    if (LeftByUser()) LeaveLonDegree();
}

void CKvGuiVerticeBuilder::LeaveLatSecond() {
    if (ReadBoxes()) MoveFocusTo(m_editLonDegree, true);
}

void CKvGuiVerticeBuilder::ReselectWithTexts(int row, const std::string& latitude,
                                             const std::string& longitude) {
    m_listXY.SetCurSel(row);
    m_editLatDegree.SetWindowText(latitude.c_str());
    m_editLonDegree.SetWindowText(longitude.c_str());
}

void CKvGuiVerticeBuilder::TakeDecimalLatitude() {
    const std::string latitude = m_editLatDegree.WindowText();
    const std::string longitude = m_editLonDegree.WindowText();
    const int row = m_listXY.GetCurSel();
    MoveFocusTo(m_editLonDegree, false);
    LeaveLatSecond();
    if (!m_bDegDeg) {
        OnRadioDegdeg();
        ReselectWithTexts(row, latitude, longitude);
    }
    CheckRadioButton(kDecimal, kDms, kDecimal);
}

void CKvGuiVerticeBuilder::TakeWholeLatitude() {
    const std::string latitude = m_editLatDegree.WindowText() + ".00";
    const std::string longitude = m_editLonDegree.WindowText();
    const int row = m_listXY.GetCurSel();
    OnRadioDms();
    ReselectWithTexts(row, latitude, longitude);
    MoveFocusTo(m_editLonDegree, false);
    LeaveLatSecond();
}

void CKvGuiVerticeBuilder::LeaveLatDegree() {
    if (!OnKillfocus()) return;
    EnableMinutesAndSeconds(false, false);
    if (HasPoint(m_editLatDegree.WindowText())) {
        TakeDecimalLatitude();
    } else if (m_bDegDeg) {
        TakeWholeLatitude();
    } else {
        EnableMinutesAndSeconds(true, false);
        MoveFocusTo(m_editLatMinute, true);
    }
    EnableButton(kAdd, TRUE);
}

void CKvGuiVerticeBuilder::LeaveLonDegree() {
    if (!OnKillfocus()) return;
    EnableMinutesAndSeconds(false, false);
    const std::string longitude = m_editLonDegree.WindowText();
    if (HasPoint(longitude)) {
        OnButtonAddPt();
    } else if (m_bDegDeg) {
        m_editLonDegree.SetWindowText((longitude + ".00").c_str());
        OnButtonAddPt();
    } else {
        EnableMinutesAndSeconds(false, true);
        MoveFocusTo(m_editLonMinute, true);
    }
    EnableButton(kAdd, TRUE);
}

/// Enter walks the boxes, and behind the last one adds the point.
void CKvGuiVerticeBuilder::OnOK() {
    const kv::Node* focus = kv::WindowSystem::Get().Focus();
    const int box = focus && focus->Parent() == m_hWnd ? focus->Id() : 0;
    if (!ReadBoxes()) return;
    const auto walk = [this](CEdit& next) {
        MoveFocusTo(next, true);
        EnableButton(kAdd, TRUE);
    };
    switch (box) {
        case kX:
            return walk(m_editY);
        case kLatDegree:
            return LeaveLatDegree();
        case kLatMinute:
            return walk(m_editLatSecond);
        case kLatSecond:
            return walk(m_editLonDegree);
        case kLonDegree:
            return LeaveLonDegree();
        case kLonMinute:
            return walk(m_editLonSecond);
        case kY:
        case kLonSecond:
            return OnButtonAddPt();
        default:
            break;
    }
}

const kv::MessageMap& CKvGuiVerticeBuilder::Messages() {
    using Self = CKvGuiVerticeBuilder;
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&Self::OnButtonAddPt>(kAdd),
        kv::OnClicked<&Self::OnButtonClosePolyPt>(kClose),
        kv::OnClicked<&Self::OnButtonDeletePt>(kDelete),
        kv::OnClicked<&Self::OnButtonAccept>(kAccept),
        kv::OnClicked<&Self::OnButtonInsertPt>(kInsert),
        kv::OnClicked<&Self::OnButtonLoadFile>(kLoad),
        kv::OnClicked<&Self::OnButtonMovedownPt>(kMoveDown),
        kv::OnClicked<&Self::OnButtonMoveupPt>(kMoveUp),
        kv::OnClicked<&Self::OnButtonEditPt>(kEditRow),
        kv::OnClicked<&Self::OnButtonSaveFile>(kSave),
        kv::OnControl<&Self::OnSelchangeLISTXYPos>(LBN_SELCHANGE, kRows),
        kv::OnControl<&Self::OnKillfocusEditXPos>(EN_KILLFOCUS, kX),
        kv::OnControl<&Self::OnKillfocusEditYPos>(EN_KILLFOCUS, kY),
        kv::OnControl<&Self::OnChangeEditXPos>(EN_CHANGE, kX),
        kv::OnControl<&Self::OnChangeEditYPos>(EN_CHANGE, kY),
        kv::OnClicked<&Self::OnRadioXyMode>(kXyMode),
        kv::OnClicked<&Self::OnRadioLatlonMode>(kLatLonMode),
        kv::OnClicked<&Self::OnRadioDegdeg>(kDecimal),
        kv::OnClicked<&Self::OnRadioDms>(kDms),
        kv::OnControl<&Self::OnChangeEditLatDegree>(EN_CHANGE, kLatDegree),
        kv::OnControl<&Self::OnChangeEditLatMinute>(EN_CHANGE, kLatMinute),
        kv::OnControl<&Self::OnChangeEditLatSecond>(EN_CHANGE, kLatSecond),
        kv::OnControl<&Self::OnChangeEditLonDegree>(EN_CHANGE, kLonDegree),
        kv::OnControl<&Self::OnChangeEditLonMinute>(EN_CHANGE, kLonMinute),
        kv::OnControl<&Self::OnChangeEditLonSecond>(EN_CHANGE, kLonSecond),
        kv::OnControl<&Self::OnKillfocusEditLatDegree>(EN_KILLFOCUS, kLatDegree),
        kv::OnControl<&Self::OnKillfocusEditLatMinute>(EN_KILLFOCUS, kLatMinute),
        kv::OnControl<&Self::OnKillfocusEditLatSecond>(EN_KILLFOCUS, kLatSecond),
        kv::OnControl<&Self::OnKillfocusEditLonDegree>(EN_KILLFOCUS, kLonDegree),
        kv::OnControl<&Self::OnKillfocusEditLonMinute>(EN_KILLFOCUS, kLonMinute),
        kv::OnControl<&Self::OnKillfocusEditLonSecond>(EN_KILLFOCUS, kLonSecond),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
