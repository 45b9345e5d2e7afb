#include "qualifiers/lease_status_dlg.h"

#include "qualifiers/lease_status_ids.h"
#include "window/message_handlers.h"

using namespace kv::lease_status;

namespace {

constexpr kv::CheckMember kActive[] = {
    {12008, "DIR SUS OF OPER"}, {12016, "EXTENDED TERM-OP"}, {12018, "OPERATIONS"},
    {12019, "PRELIMINARY"},     {12020, "PRIMARY DSO"},      {12021, "PRIMARY TERM"},
    {12022, "SUSPENS OF OPER"},
};
constexpr kv::CheckMember kInactive[] = {
    {12009, "CONSOLIDATED"}, {12023, "EXPIRED"},  {12017, "NOT ISSUED"},
    {12024, "FORFEITED"},    {12025, "REJECTED"}, {12026, "RELINQUISHED OR CANCELLED"},
    {12027, "TERMINATED"},
};
constexpr kv::CheckMember kState[] = {
    {12010, "ACTIVE HBP"}, {12028, "ACTIVE 3 YRS"}, {12029, "ACTIVE 5 YRS"}};
/// Checked as a whole the group gives the longer term first.
constexpr kv::CheckMember kStateAsAWhole[] = {
    {12010, "ACTIVE HBP"}, {12029, "ACTIVE 5 YRS"}, {12028, "ACTIVE 3 YRS"}};
constexpr kv::CheckMember kHeld[] = {
    {12030, "SUSPENS OF PROD"}, {12031, "UNIT"}, {12032, "PRODUCING"}};
constexpr kv::CheckMember kSpecial[] = {{12033, "NBL"}, {12034, "NO INFO"}, {12035, "DEFERRED"}};

enum Group : int { kActiveGroup, kInactiveGroup, kStateGroup, kHeldGroup, kSpecialGroup };

constexpr kv::CheckGroup kGroups[] = {
    {kAllActive, kActive}, {kAllInactive, kInactive}, {kAllState, kState, kStateAsAWhole},
    {kAllHeld, kHeld},     {kAllSpecial, kSpecial},
};
constexpr int kSaveOrder[] = {kInactiveGroup, kActiveGroup, kStateGroup, kHeldGroup, kSpecialGroup};

}  // namespace

CKvGuiLeaseStatusDlg::CKvGuiLeaseStatusDlg(CWnd* parent)
    : CheckListDialog(kTemplate, parent, kGroups, kSaveOrder) {}

CKvGuiLeaseStatusDlg::CKvGuiLeaseStatusDlg(CComboBox* combo, std::vector<std::string>& values,
                                           bool readOnly, CWnd* parent)
    : CheckListDialog(kTemplate, parent, kGroups, kSaveOrder, combo, values, readOnly) {}

void CKvGuiLeaseStatusDlg::SaveActives() {
    SaveGroup(kActiveGroup);
}
void CKvGuiLeaseStatusDlg::SaveInactives() {
    SaveGroup(kInactiveGroup);
}
void CKvGuiLeaseStatusDlg::SaveStates() {
    SaveGroup(kStateGroup);
}
void CKvGuiLeaseStatusDlg::SaveHelds() {
    SaveGroup(kHeldGroup);
}
void CKvGuiLeaseStatusDlg::SaveSpecials() {
    SaveGroup(kSpecialGroup);
}

void CKvGuiLeaseStatusDlg::OnCheckActiveAll() {
    TakeAllBox(kActiveGroup);
}
void CKvGuiLeaseStatusDlg::OnCheckInactiveAll() {
    TakeAllBox(kInactiveGroup);
}
void CKvGuiLeaseStatusDlg::OnCheckStateAll() {
    TakeAllBox(kStateGroup);
}
void CKvGuiLeaseStatusDlg::OnCheckHeldAll() {
    TakeAllBox(kHeldGroup);
}
void CKvGuiLeaseStatusDlg::OnCheckSpecialAll() {
    TakeAllBox(kSpecialGroup);
}

void CKvGuiLeaseStatusDlg::OnActive() {
    UpdateAllBox(kActiveGroup);
}
void CKvGuiLeaseStatusDlg::OnInactive() {
    UpdateAllBox(kInactiveGroup);
}
void CKvGuiLeaseStatusDlg::OnState() {
    UpdateAllBox(kStateGroup);
}
void CKvGuiLeaseStatusDlg::OnHold() {
    UpdateAllBox(kHeldGroup);
}
void CKvGuiLeaseStatusDlg::OnSpecial() {
    UpdateAllBox(kSpecialGroup);
}

const kv::MessageMap& CKvGuiLeaseStatusDlg::Messages() {
    using Self = CKvGuiLeaseStatusDlg;
    static constexpr kv::CheckHandlers kHandlers[] = {
        {kv::OnClicked<&Self::OnCheckActiveAll>, kv::OnClicked<&Self::OnActive>},
        {kv::OnClicked<&Self::OnCheckInactiveAll>, kv::OnClicked<&Self::OnInactive>},
        {kv::OnClicked<&Self::OnCheckStateAll>, kv::OnClicked<&Self::OnState>},
        {kv::OnClicked<&Self::OnCheckHeldAll>, kv::OnClicked<&Self::OnHold>},
        {kv::OnClicked<&Self::OnCheckSpecialAll>, kv::OnClicked<&Self::OnSpecial>},
    };
    static const auto kEntries = [] {
        auto entries = kv::CheckEntries(kGroups, kHandlers);
        entries.push_back(kv::OnClicked<&Self::OnButtonClear>(kClear));
        return entries;
    }();
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
