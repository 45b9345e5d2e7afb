#include "blocks/dyn_blk_ext_dlg.h"

#include <utility>

CKvGuiDynBlkExtDlg::CKvGuiDynBlkExtDlg(std::string abeTable, std::string areaColumn1,
                                       std::string blockColumn1, std::string areaColumn2,
                                       std::string blockColumn2, bool single)
    : CKvGuiBlkExtDlg(nullptr),
      m_sAbeTable(std::move(abeTable)),
      m_first{std::move(areaColumn1), std::move(blockColumn1)},
      m_second{std::move(areaColumn2), std::move(blockColumn2)},
      m_bSingle(single) {}
