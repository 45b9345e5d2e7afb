#include "qualifiers/pipe_product_dlg.h"

#include "qualifiers/pipe_ids.h"
#include "window/message_handlers.h"

using namespace kv::pipe_product;

namespace {

constexpr kv::CheckMember kCombined[] = {{13024, "G/O"}, {13025, "O/W"}};
constexpr kv::CheckMember kOil[] = {
    {13028, "BLKO"}, {13029, "BO/L"}, {13030, "BO/S"}, {13031, "COND"}, {13032, "OIL"}};
constexpr kv::CheckMember kGas[] = {{13035, "BG/S"}, {13036, "BLKG"}, {13037, "G/C"},
                                    {13038, "GAS"},  {13039, "LPRO"}, {29287, "BLGH"}};
constexpr kv::CheckMember kOther[] = {
    {13042, "ACID"}, {13043, "AIR"},  {13044, "CHEM"}, {13045, "DIES"}, {13046, "FLG"},
    {13047, "H2O"},  {13048, "INU"},  {13049, "LGER"}, {13050, "LIFT"}, {13051, "METH"},
    {13052, "NGER"}, {13053, "SERV"}, {13059, "SPLY"}, {13054, "SPRE"}, {13055, "SULF"},
    {13056, "TEST"}, {13057, "TOW"},  {13058, "UMB"},
};
/// From single boxes supply gas comes ahead of the utility line.
constexpr kv::CheckMember kOtherFromSingles[] = {
    {13042, "ACID"}, {13043, "AIR"},  {13044, "CHEM"}, {13045, "DIES"}, {13046, "FLG"},
    {13047, "H2O"},  {13048, "INU"},  {13049, "LGER"}, {13050, "LIFT"}, {13051, "METH"},
    {13052, "NGER"}, {13059, "SPLY"}, {13053, "SERV"}, {13054, "SPRE"}, {13055, "SULF"},
    {13056, "TEST"}, {13057, "TOW"},  {13058, "UMB"},
};

enum Group : int { kCombinedGroup, kOilGroup, kGasGroup, kOtherGroup };

constexpr kv::CheckGroup kGroups[] = {
    {kAllCombined, kCombined},
    {kAllOil, kOil},
    {kAllGas, kGas},
    {kAllOther, kOther, {}, kOtherFromSingles},
};
constexpr int kSaveOrder[] = {kCombinedGroup, kGasGroup, kOilGroup, kOtherGroup};

}  // namespace

CKvGuiPipeProductDlg::CKvGuiPipeProductDlg(CWnd* parent)
    : CheckListDialog(kTemplate, parent, kGroups, kSaveOrder) {}

CKvGuiPipeProductDlg::CKvGuiPipeProductDlg(CComboBox* combo, std::vector<std::string>& values,
                                           bool readOnly, CWnd* parent)
    : CheckListDialog(kTemplate, parent, kGroups, kSaveOrder, combo, values, readOnly) {}

void CKvGuiPipeProductDlg::SaveCombServ() {
    SaveGroup(kCombinedGroup);
}
void CKvGuiPipeProductDlg::SaveGasRel() {
    SaveGroup(kGasGroup);
}
void CKvGuiPipeProductDlg::SaveOilRel() {
    SaveGroup(kOilGroup);
}
void CKvGuiPipeProductDlg::SaveOtherServ() {
    SaveGroup(kOtherGroup);
}

void CKvGuiPipeProductDlg::OnCheckPpCombServAll() {
    TakeAllBox(kCombinedGroup);
}
void CKvGuiPipeProductDlg::OnCheckPpOilRelAll() {
    TakeAllBox(kOilGroup);
}
void CKvGuiPipeProductDlg::OnCheckPpGasRelAll() {
    TakeAllBox(kGasGroup);
}
void CKvGuiPipeProductDlg::OnCheckPpOtherServAll() {
    TakeAllBox(kOtherGroup);
}

void CKvGuiPipeProductDlg::OnCombServ() {
    UpdateAllBox(kCombinedGroup);
}
void CKvGuiPipeProductDlg::OnOilRel() {
    UpdateAllBox(kOilGroup);
}
void CKvGuiPipeProductDlg::OnGasRel() {
    UpdateAllBox(kGasGroup);
}
void CKvGuiPipeProductDlg::OnOtherServ() {
    UpdateAllBox(kOtherGroup);
}

const kv::MessageMap& CKvGuiPipeProductDlg::Messages() {
    using Self = CKvGuiPipeProductDlg;
    static constexpr kv::CheckHandlers kHandlers[] = {
        {kv::OnClicked<&Self::OnCheckPpCombServAll>, kv::OnClicked<&Self::OnCombServ>},
        {kv::OnClicked<&Self::OnCheckPpOilRelAll>, kv::OnClicked<&Self::OnOilRel>},
        {kv::OnClicked<&Self::OnCheckPpGasRelAll>, kv::OnClicked<&Self::OnGasRel>},
        {kv::OnClicked<&Self::OnCheckPpOtherServAll>, kv::OnClicked<&Self::OnOtherServ>},
    };
    static const auto kEntries = kv::CheckEntries(kGroups, kHandlers);
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
