#include "pickers/custom_order_dlg.h"

#include <cstddef>
#include <map>

#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/sql_literal.h"
#include "frame/kvdbkvn/table_owner.h"
#include "frame/kvdbkvn/tell_failure.h"
#include "pickers/custom_order_dlg_ids.h"

using namespace kv::custom_order_dlg;

namespace {

/// Where each area stands, from 0.
using Positions = std::map<std::string, int>;

/// In the stored order and in the default one, as they were read last.
Positions s_mapSeq;
Positions s_mapDefSeq;

Positions PositionsOf(const std::vector<std::string>& areas) {
    Positions positions;
    for (std::size_t i = 0; i < areas.size(); ++i)
        positions[areas[i]] = static_cast<int>(i);
    return positions;
}

/// -1 for an area that was not there.
int PositionIn(const Positions& positions, const std::string& area) {
    const auto found = positions.find(area);
    return found == positions.end() ? -1 : found->second;
}

std::string Table() {
    return CKvTableOwner().GetTableOwner().str() + ".nvd2000_area_order";
}

std::vector<std::string> AreasBy(const char* column, CKvDbAbsDataMgr& manager) {
    manager.Select("select areaname from " + Table() + " order by " + column);
    std::vector<std::string> areas;
    for (int row = 0; row < manager.NumberOfRows(); ++row)
        areas.emplace_back(manager.GetItem(row, 0));
    return areas;
}

void Close(CKvDbAbsDataMgr& manager) {
    manager.FreeData();
    manager.Disconnect();
}

/// Lets `ask` read over a connection. False when that failed, which is shown.
template <typename Ask>
bool Read(const Ask& ask) {
    CKvDbAbsDataMgr manager(1);
    bool read = false;
    try {
        manager.Connect();
        ask(manager);
        read = true;
    } catch (const CKvException& failure) {
        kv::db::TellFailure(failure);
    }
    Close(manager);
    return read;
}

/// Gives the position to the area. One that not exactly one area had would lose one, or keep a
/// second.
void WriteArea(const std::string& area, int position, CKvDbAbsDataMgr& manager) {
    const std::string seq = std::to_string(position + 1);
    if (manager.Delete("delete from " + Table() + " where seq = " + seq) != 1) {
        throw CKvException("\"" + area + "\" cannot have the position " + seq +
                           ": not one area, but none or several have it in the table " + Table());
    }
    manager.Insert("insert into " + Table() + " values (" + kv::db::SqlLiteral(area) + ", " + seq +
                   "," + std::to_string(PositionIn(s_mapDefSeq, area) + 1) + ")");
}

}  // namespace

CCustomOrderDlg::CCustomOrderDlg(CWnd* parent) : CDialog(kTemplate, parent) {}

void CCustomOrderDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, kTop, m_btnTop);
    DDX_Control(exchange, kReset, m_btnReset);
    DDX_Control(exchange, kMoveUp, m_btnMoveUp);
    DDX_Control(exchange, kMoveDown, m_btnMoveDown);
    DDX_Control(exchange, kBottom, m_btnBottom);
    DDX_LBString(exchange, kAreas, m_sArea);
}

CListBox& CCustomOrderDlg::Areas() const {
    return Control<CListBox>(kAreas);
}

BOOL CCustomOrderDlg::OnInitDialog() {
    CDialog::OnInitDialog();
    Areas().ResetContent();
    m_bRead = Read([this](CKvDbAbsDataMgr& manager) {
        const std::vector<std::string> areas = AreasBy("seq", manager);
        ShowAreas(areas);
        s_mapSeq = PositionsOf(areas);
        s_mapDefSeq = PositionsOf(AreasBy("defseq", manager));
    });
    OnSelchangeListArea();
    m_btnReset.EnableWindow(m_bRead);
    return TRUE;
}

void CCustomOrderDlg::ShowAreas(const std::vector<std::string>& areas) {
    CListBox& list = Areas();
    list.ResetContent();
    for (const std::string& area : areas)
        list.AddString(area.c_str());
}

void CCustomOrderDlg::EnableMove(CButton& button, bool enable) {
    // Else the focus would go to the next button, and with it a key that is held down.
    if (!enable && GetFocus() == &button) Areas().SetFocus();
    button.EnableWindow(enable);
}

void CCustomOrderDlg::OnSelchangeListArea() {
    UpdateData(TRUE);
    const int row = Areas().GetCurSel();
    const bool canMove = m_bRead && row != LB_ERR;
    for (CButton* button : {&m_btnTop, &m_btnMoveUp})
        EnableMove(*button, canMove && row > 0);
    for (CButton* button : {&m_btnMoveDown, &m_btnBottom})
        EnableMove(*button, canMove && row < Areas().GetCount() - 1);
}

void CCustomOrderDlg::MoveTo(int to) {
    CListBox& list = Areas();
    const int row = list.GetCurSel();
    if (row == LB_ERR || to < 0 || to >= list.GetCount()) return;
    CString area;
    list.GetText(row, area);
    list.DeleteString(static_cast<UINT>(row));
    list.InsertString(to, area);
    list.SetCurSel(to);
    OnSelchangeListArea();
}

void CCustomOrderDlg::OnBtnTop() {
    MoveTo(0);
}

void CCustomOrderDlg::OnBtnMoveup() {
    MoveTo(Areas().GetCurSel() - 1);
}

void CCustomOrderDlg::OnBtnMovedown() {
    MoveTo(Areas().GetCurSel() + 1);
}

void CCustomOrderDlg::OnBtnDown() {
    MoveTo(Areas().GetCount() - 1);
}

void CCustomOrderDlg::OnBtnReset() {
    if (AfxMessageBox("Are you sure you want to reset?", 4, 0) != IDYES) return;
    Read([this](CKvDbAbsDataMgr& manager) {
        const std::vector<std::string> areas = AreasBy("defseq", manager);
        ShowAreas(areas);
        s_mapDefSeq = PositionsOf(areas);
    });
    OnSelchangeListArea();
}

bool CCustomOrderDlg::WriteOrder() {
    CKvDbAbsDataMgr manager(1);
    bool written = true;
    try {
        manager.Connect();
        for (int row = 0; row < Areas().GetCount(); ++row) {
            CString area;
            Areas().GetText(row, area);
            if (PositionIn(s_mapSeq, area.str()) != row) WriteArea(area.str(), row, manager);
        }
        manager.Commit();
    } catch (const CKvException& failure) {
        // Ahead of the box, which may stand for long: others wait for what is locked.
        manager.Rollback();
        written = false;
        kv::db::TellFailure(failure);
    }
    Close(manager);
    return written;
}

void CCustomOrderDlg::OnOK() {
    // The order is work: it stays on the screen until it is stored.
    if (!m_bRead || WriteOrder()) CDialog::OnOK();
}

const kv::MessageMap& CCustomOrderDlg::Messages() {
    using Self = CCustomOrderDlg;
    static const kv::MessageEntry kEntries[] = {
        kv::OnControl<&Self::OnSelchangeListArea>(LBN_SELCHANGE, kAreas),
        kv::OnClicked<&Self::OnBtnTop>(kTop),
        kv::OnClicked<&Self::OnBtnMoveup>(kMoveUp),
        kv::OnClicked<&Self::OnBtnMovedown>(kMoveDown),
        kv::OnClicked<&Self::OnBtnDown>(kBottom),
        kv::OnClicked<&Self::OnBtnReset>(kReset),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
