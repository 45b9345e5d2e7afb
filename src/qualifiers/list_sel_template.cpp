// The multiple-selection dialog, and the three that share its controls.

#include "qualifiers/list_sel_ids.h"
#include "window/resources.h"

namespace kv::list_sel {

namespace {

using enum ControlKind;

constexpr ControlRow kGeneral[] = {
    {kFindLabel, kLabel, "Find:", {7, 9, 24, 8}},
    {kFind, kEdit, "", {33, 7, 137, 12}},
    {kSearch, kDefaultButton, "Search...", {174, 6, 50, 14}},
    {kSearchMode, kRadio, "Search...", {236, 8, 50, 10}, kFirstOfGroup},
    {kInsertMode, kRadio, "Insert...", {290, 8, 46, 10}},
    {IDC_STATIC, kLabel, "Search records that", {7, 27, 76, 8}},
    {kContain, kRadio, "Contain", {87, 26, 42, 10}, kFirstOfGroup},
    {kStartWith, kRadio, "Start with", {133, 26, 48, 10}},
    {kEndWith, kRadio, "End with", {185, 26, 46, 10}},
    {IDC_STATIC, kLabel, "Available", {7, 44, 60, 8}},
    {kAvailable, kMultiList, "", {7, 54, 140, 150}, kFirstOfGroup},
    {kAdd, kPushButton, "Add ->", {151, 74, 50, 14}},
    {kRemove, kPushButton, "<- Remove", {151, 92, 50, 14}},
    {kImport, kPushButton, "Import...", {151, 118, 50, 14}},
    {kExport, kPushButton, "Export...", {151, 136, 50, 14}},
    {kListFileCheck, kCheckBox, "", {151, 163, 10, 10}},
    {kListFileButton, kPushButton, "File...", {163, 161, 38, 14}},
    {IDC_STATIC, kLabel, "Selected", {205, 44, 60, 8}},
    {kSelected, kMultiList, "", {205, 54, 140, 150}},
    {IDOK, kPushButton, "OK", {187, 211, 50, 14}},
    {kClear, kPushButton, "Clear", {241, 211, 50, 14}},
    {IDCANCEL, kPushButton, "Cancel", {295, 211, 50, 14}},
};

constexpr ControlRow kLease[] = {
    {kFindLabel, kLabel, "Find:", {7, 9, 24, 8}},
    {kFind, kEdit, "", {33, 7, 137, 12}},
    {kSearch, kDefaultButton, "Search...", {174, 6, 50, 14}},
    {kSearchMode, kRadio, "Search...", {236, 8, 50, 10}, kFirstOfGroup},
    {kInsertMode, kRadio, "Insert...", {290, 8, 46, 10}},
    {IDC_STATIC, kLabel, "Search records that", {7, 27, 76, 8}},
    {kContain, kRadio, "Contain", {87, 26, 42, 10}, kFirstOfGroup},
    {kStartWith, kRadio, "Start with", {133, 26, 48, 10}},
    {kEndWith, kRadio, "End with", {185, 26, 46, 10}},
    {IDC_STATIC, kLabel, "Lease Dataset", {7, 43, 76, 8}},
    {kFederal, kCheckBox, "Federal", {87, 42, 42, 10}, kFirstOfGroup},
    {kLouisiana, kCheckBox, "Louisiana State", {133, 42, 70, 10}},
    {kTexas, kCheckBox, "Texas State", {207, 42, 60, 10}},
    {IDC_STATIC, kLabel, "Available", {7, 60, 60, 8}},
    {kAvailable, kMultiList, "", {7, 70, 140, 150}, kFirstOfGroup},
    {kAdd, kPushButton, "Add ->", {151, 90, 50, 14}},
    {kRemove, kPushButton, "<- Remove", {151, 108, 50, 14}},
    {kImport, kPushButton, "Import...", {151, 134, 50, 14}},
    {kExport, kPushButton, "Export...", {151, 152, 50, 14}},
    {kListFileCheck, kCheckBox, "", {151, 179, 10, 10}},
    {kListFileButton, kPushButton, "File...", {163, 177, 38, 14}},
    {IDC_STATIC, kLabel, "Selected", {205, 60, 60, 8}},
    {kSelected, kMultiList, "", {205, 70, 140, 150}},
    {IDOK, kPushButton, "OK", {187, 227, 50, 14}},
    {kClear, kPushButton, "Clear", {241, 227, 50, 14}},
    {IDCANCEL, kPushButton, "Cancel", {295, 227, 50, 14}},
};

constexpr ControlRow kLesseeMatch[] = {
    {kFindLabel, kLabel, "Find:", {7, 9, 24, 8}},
    {kFind, kEdit, "", {33, 7, 137, 12}},
    {kSearch, kDefaultButton, "Search...", {174, 6, 50, 14}},
    {kSearchMode, kRadio, "Search...", {236, 8, 50, 10}, kFirstOfGroup},
    {kInsertMode, kRadio, "Insert...", {290, 8, 46, 10}},
    {IDC_STATIC, kLabel, "Search records that", {7, 27, 76, 8}},
    {kContain, kRadio, "Contain", {87, 26, 42, 10}, kFirstOfGroup},
    {kStartWith, kRadio, "Start with", {133, 26, 48, 10}},
    {kEndWith, kRadio, "End with", {185, 26, 46, 10}},
    {IDC_STATIC, kLabel, "Available", {7, 44, 60, 8}},
    {kAvailable, kMultiList, "", {7, 54, 140, 150}, kFirstOfGroup | kSortedList},
    {kAdd, kPushButton, "Add ->", {151, 74, 50, 14}},
    {kRemove, kPushButton, "<- Remove", {151, 92, 50, 14}},
    {kImport, kPushButton, "Import...", {151, 118, 50, 14}},
    {kExport, kPushButton, "Export...", {151, 136, 50, 14}},
    {IDC_STATIC, kLabel, "Selected", {205, 44, 60, 8}},
    {kSelected, kMultiList, "", {205, 54, 140, 150}, kSortedList},
    {kLesseeOptions, kGroupBox, "Lessee Options", {7, 208, 338, 48}, kFirstOfGroup},
    {kHighest, kRadio, "Highest Percentage Lessee", {15, 221, 116, 10}, kFirstOfGroup},
    {kAny, kRadio, "Any Percent Lessee", {15, 237, 88, 10}},
    {kOr, kRadio, "OR", {107, 237, 24, 10}, kFirstOfGroup | kDisabled},
    {kAnd, kRadio, "AND", {137, 237, 28, 10}, kDisabled},
    {kSpecifyPercent, kCheckBox, "Specify Percentage", {177, 237, 82, 10}, kFirstOfGroup | kDisabled},
    {kMinLabel, kLabel, "Min", {263, 223, 14, 8}, kDisabled},
    {kMin, kDropDown, "", {263, 235, 34, 12}, kDisabled},
    {kMaxLabel, kLabel, "Max", {303, 223, 16, 8}, kDisabled},
    {kMax, kDropDown, "", {303, 235, 34, 12}, kDisabled},
    {IDOK, kPushButton, "OK", {187, 263, 50, 14}, kFirstOfGroup},
    {kClear, kPushButton, "Clear", {241, 263, 50, 14}},
    {IDCANCEL, kPushButton, "Cancel", {295, 263, 50, 14}},
};

constexpr ControlRow kCompanyMatch[] = {
    {kFindLabel, kLabel, "Find:", {7, 9, 24, 8}},
    {kFind, kEdit, "", {33, 7, 137, 12}},
    {kSearch, kDefaultButton, "Search...", {174, 6, 50, 14}},
    {kSearchMode, kRadio, "Search...", {236, 8, 50, 10}, kFirstOfGroup},
    {kInsertMode, kRadio, "Insert...", {290, 8, 46, 10}},
    {IDC_STATIC, kLabel, "Search records that", {7, 27, 76, 8}},
    {kContain, kRadio, "Contain", {87, 26, 42, 10}, kFirstOfGroup},
    {kStartWith, kRadio, "Start with", {133, 26, 48, 10}},
    {kEndWith, kRadio, "End with", {185, 26, 46, 10}},
    {IDC_STATIC, kLabel, "Available", {7, 44, 60, 8}},
    {kAvailable, kMultiList, "", {7, 54, 140, 150}, kFirstOfGroup | kSortedList},
    {kAdd, kPushButton, "Add ->", {151, 74, 50, 14}},
    {kRemove, kPushButton, "<- Remove", {151, 92, 50, 14}},
    {kImport, kPushButton, "Import...", {151, 118, 50, 14}},
    {kExport, kPushButton, "Export...", {151, 136, 50, 14}},
    {IDC_STATIC, kLabel, "Selected", {205, 44, 60, 8}},
    {kSelected, kMultiList, "", {205, 54, 140, 150}, kSortedList},
    {kCompanyTypes, kGroupBox, "Company Types", {7, 208, 338, 32}, kFirstOfGroup},
    {kOperator, kCheckBox, "Operator", {15, 222, 48, 10}, kFirstOfGroup},
    {kLessee, kCheckBox, "Lessee", {69, 222, 42, 10}},
    {kBid, kCheckBox, "Bid", {117, 222, 28, 10}},
    {kOperatingRights, kCheckBox, "Operating Rights", {151, 222, 74, 10}},
    {kDesignatedOperator, kCheckBox, "Designated Operator", {231, 222, 90, 10}},
    {IDOK, kPushButton, "OK", {187, 247, 50, 14}, kFirstOfGroup},
    {kClear, kPushButton, "Clear", {241, 247, 50, 14}},
    {IDCANCEL, kPushButton, "Cancel", {295, 247, 50, 14}},
};

constexpr DialogTemplate kGeneralDialog{kTemplate, "Multiple Selections Dialog", 352, 232, kGeneral};
constexpr DialogTemplate kLeaseDialog{kLeaseTemplate, "Lease Match", 352, 248, kLease};
constexpr DialogTemplate kLesseeDialog{kLesseeTemplate, "Lessee Match", 352, 284, kLesseeMatch};
constexpr DialogTemplate kCompanyDialog{kCompanyTemplate, "Company Match Dialog", 352, 268,
                                        kCompanyMatch};

const RegisterTemplate kRegistered[] = {
    RegisterTemplate(kGeneralDialog),
    RegisterTemplate(kLeaseDialog),
    RegisterTemplate(kLesseeDialog),
    RegisterTemplate(kCompanyDialog),
};

}  // namespace

}  // namespace kv::list_sel
