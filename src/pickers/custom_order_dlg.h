#pragma once

#include <string>
#include <vector>

#include "base/cstring.h"
#include "window/controls/button.h"
#include "window/controls/list_box.h"
#include "window/dialogs/dialog.h"

/// Edits the user's own order of areas, which the table `nvd2000_area_order` of the application's
/// owner holds: `areaname`, and its positions `seq` in this order and `defseq` in the default one,
/// both from 1.
///
/// OK rewrites the rows of those positions that hold another area than before, all or none, and
/// leaves the dialog open where that failed. An order that could not be read at the start can be
/// looked at as far as it came, but not changed.
class KVGUICTL_API CCustomOrderDlg : public CDialog {
public:
    explicit CCustomOrderDlg(CWnd* parent = nullptr);

    BOOL OnInitDialog() override;
    void OnOK() override;
    void DoDataExchange(CDataExchange* exchange) override;

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    void OnSelchangeListArea();
    // These do nothing without a current row.
    void OnBtnTop();
    void OnBtnMoveup();
    void OnBtnMovedown();
    void OnBtnDown();  ///< to the bottom
    /// Shows the default order; it is stored by OK.
    void OnBtnReset();

    CButton m_btnTop;
    CButton m_btnReset;
    CButton m_btnMoveUp;
    CButton m_btnMoveDown;
    CButton m_btnBottom;
    CString m_sArea;  ///< the current row

private:
    CListBox& Areas() const;
    void ShowAreas(const std::vector<std::string>& areas);
    void MoveTo(int to);
    void EnableMove(CButton& button, bool enable);
    bool WriteOrder();

    bool m_bRead = false;
};
