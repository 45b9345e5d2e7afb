#include "qualifiers/pipe_status_dlg.h"

#include "qualifiers/pipe_ids.h"
#include "window/message_handlers.h"

using namespace kv::pipe_status;

namespace {

constexpr kv::CheckMember kActive[] = {{13005, "ACT"}};
/// Three codes carry no slash, though their labels do.
constexpr kv::CheckMember kInactive[] = {
    {13008, "ABN"},  {13009, "A/C"},  {13010, "CNCL"}, {13011, "OUT"},  {13012, "O/C"},
    {13013, "RELQ"}, {13014, "RR"},   {13015, "REM"},  {13016, "PREM"}, {13017, "RA"},
    {13018, "RC"},   {13019, "PROP"}, {13020, "COMB"}, {13021, "PABN"},
};

enum Group : int { kActiveGroup, kInactiveGroup };

constexpr kv::CheckGroup kGroups[] = {{kAllActive, kActive}, {kAllInactive, kInactive}};
constexpr int kSaveOrder[] = {kActiveGroup, kInactiveGroup};

}  // namespace

CKvGuiPipeStatusDlg::CKvGuiPipeStatusDlg(CWnd* parent)
    : CheckListDialog(kTemplate, parent, kGroups, kSaveOrder) {}

CKvGuiPipeStatusDlg::CKvGuiPipeStatusDlg(CComboBox* combo, std::vector<std::string>& values,
                                         bool readOnly, CWnd* parent)
    : CheckListDialog(kTemplate, parent, kGroups, kSaveOrder, combo, values, readOnly) {}

void CKvGuiPipeStatusDlg::SaveActives() {
    SaveGroup(kActiveGroup);
}
void CKvGuiPipeStatusDlg::SaveInactives() {
    SaveGroup(kInactiveGroup);
}

void CKvGuiPipeStatusDlg::OnCheckActiveAll() {
    TakeAllBox(kActiveGroup);
}
void CKvGuiPipeStatusDlg::OnCheckInactiveAll() {
    TakeAllBox(kInactiveGroup);
}

void CKvGuiPipeStatusDlg::OnActive() {
    UpdateAllBox(kActiveGroup);
}
void CKvGuiPipeStatusDlg::OnInActive() {
    UpdateAllBox(kInactiveGroup);
}

const kv::MessageMap& CKvGuiPipeStatusDlg::Messages() {
    using Self = CKvGuiPipeStatusDlg;
    static constexpr kv::CheckHandlers kHandlers[] = {
        {kv::OnClicked<&Self::OnCheckActiveAll>, kv::OnClicked<&Self::OnActive>},
        {kv::OnClicked<&Self::OnCheckInactiveAll>, kv::OnClicked<&Self::OnInActive>},
    };
    static const auto kEntries = kv::CheckEntries(kGroups, kHandlers);
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
