// The multiple-selection dialog, and the three that share its controls.

#include <array>

#include "qualifiers/list_sel_ids.h"
#include "window/templates/resources.h"
#include "window/templates/template_rows.h"

namespace kv::list_sel {

namespace {

using enum ControlKind;

// What all four share, in dialog units. Their heads are the same; the lists begin at a top of their
// own, below what a dialog has between.
constexpr int kWidth = 402;
constexpr int kMargin = 7;
constexpr int kListWidth = 165;
constexpr int kListHeight = 160;
constexpr int kButtonWidth = 50;
constexpr int kButtonHeight = 14;
constexpr int kGap = 4;
constexpr int kMiddle = kMargin + kListWidth + kGap;
constexpr int kRight = kMiddle + kButtonWidth + kGap;
/// From the top of the headings of the lists to their end.
constexpr int kListsHeight = 10 + kListHeight;

constexpr std::array kSearchRows{
    ControlRow{kFindLabel, kLabel, "Find:", {7, 9, 28, 8}},
    ControlRow{kFind, kEdit, "", {39, 7, 180, 12}},
    ControlRow{kSearch, kDefaultButton, "Search...", {223, 6, 50, 14}},
    ControlRow{kSearchMode, kRadio, "Search...", {285, 8, 50, 10}, kFirstOfGroup},
    ControlRow{kInsertMode, kRadio, "Insert...", {345, 8, 50, 10}},
    ControlRow{IDC_STATIC, kLabel, "Search records that", {7, 27, 80, 8}},
    ControlRow{kContain, kRadio, "Contain", {91, 26, 46, 10}, kFirstOfGroup},
    ControlRow{kStartWith, kRadio, "Start with", {141, 26, 54, 10}},
    ControlRow{kEndWith, kRadio, "End with", {199, 26, 50, 10}},
};

constexpr std::array kDatasetRows{
    ControlRow{IDC_STATIC, kLabel, "Lease Dataset", {7, 44, 80, 8}},
    ControlRow{kFederal, kCheckBox, "Federal", {91, 43, 46, 10}, kFirstOfGroup},
    ControlRow{kLouisiana, kCheckBox, "Louisiana State", {141, 43, 76, 10}},
    ControlRow{kTexas, kCheckBox, "Texas State", {221, 43, 60, 10}},
};

constexpr DialogUnits ButtonInTheMiddle(int y) {
    return {kMiddle, y, kButtonWidth, kButtonHeight};
}

/// The Available list, and what stands between the lists.
constexpr auto AvailableRows(int top, RowStyle order) {
    return std::array{
        ControlRow{IDC_STATIC, kLabel, "Available", {kMargin, top, 60, 8}},
        ControlRow{kAvailable,
                   kMultiList,
                   "",
                   {kMargin, top + 10, kListWidth, kListHeight},
                   kFirstOfGroup | order},
        ControlRow{kAdd, kPushButton, "Add ->", ButtonInTheMiddle(top + 40)},
        ControlRow{kRemove, kPushButton, "<- Remove", ButtonInTheMiddle(top + 58)},
        ControlRow{kImport, kPushButton, "Import...", ButtonInTheMiddle(top + 84)},
        ControlRow{kExport, kPushButton, "Export...", ButtonInTheMiddle(top + 102)},
    };
}

constexpr auto ListFileRows(int top) {
    return std::array{
        ControlRow{kListFileCheck,
                   kCheckBox,
                   "",
                   {kMiddle, top + 130, 10, 10},
                   {},
                   "Take the list from a file"},
        ControlRow{
            kListFileButton, kPushButton, "File...", {kMiddle + 12, top + 128, 38, kButtonHeight}},
    };
}

constexpr auto SelectedRows(int top, RowStyle order) {
    return std::array{
        ControlRow{IDC_STATIC, kLabel, "Selected", {kRight, top, 60, 8}},
        ControlRow{kSelected, kMultiList, "", {kRight, top + 10, kListWidth, kListHeight}, order},
    };
}

constexpr auto ClosingRows(int y) {
    constexpr int kStep = kButtonWidth + kGap;
    constexpr int kLast = kWidth - kMargin - kButtonWidth;
    return std::array{
        ControlRow{IDOK,
                   kPushButton,
                   "OK",
                   {kLast - 2 * kStep, y, kButtonWidth, kButtonHeight},
                   kFirstOfGroup},
        ControlRow{kClear, kPushButton, "Clear", {kLast - kStep, y, kButtonWidth, kButtonHeight}},
        ControlRow{IDCANCEL, kPushButton, "Cancel", {kLast, y, kButtonWidth, kButtonHeight}},
    };
}

constexpr int kListsTop = 44;
constexpr int kListsTopBelowDatasets = 61;
/// Below the lists: where options, or the closing buttons, begin.
constexpr int kBelowLists = kListsTop + kListsHeight + 7;

constexpr std::array kLesseeOptionRows{
    ControlRow{kLesseeOptions,
               kGroupBox,
               "Lessee Options",
               {kMargin, kBelowLists, kWidth - 2 * kMargin, 48},
               kFirstOfGroup},
    ControlRow{kHighest,
               kRadio,
               "Highest Percentage Lessee",
               {15, kBelowLists + 15, 116, 10},
               kFirstOfGroup},
    ControlRow{kAny, kRadio, "Any Percent Lessee", {15, kBelowLists + 31, 92, 10}},
    ControlRow{kOr, kRadio, "OR", {113, kBelowLists + 31, 28, 10}, kFirstOfGroup | kDisabled},
    ControlRow{kAnd, kRadio, "AND", {145, kBelowLists + 31, 32, 10}, kDisabled},
    ControlRow{kSpecifyPercent,
               kCheckBox,
               "Specify Percentage",
               {185, kBelowLists + 31, 92, 10},
               kFirstOfGroup | kDisabled},
    ControlRow{kMinLabel, kLabel, "Min", {283, kBelowLists + 32, 14, 8}, kDisabled},
    ControlRow{kMin, kDropDown, "", {299, kBelowLists + 30, 36, 12}, kDisabled},
    ControlRow{kMaxLabel, kLabel, "Max", {340, kBelowLists + 32, 14, 8}, kDisabled},
    ControlRow{kMax, kDropDown, "", {356, kBelowLists + 30, 36, 12}, kDisabled},
};

constexpr std::array kCompanyTypeRows{
    ControlRow{kCompanyTypes,
               kGroupBox,
               "Company Types",
               {kMargin, kBelowLists, kWidth - 2 * kMargin, 31},
               kFirstOfGroup},
    ControlRow{kOperator, kCheckBox, "Operator", {15, kBelowLists + 16, 54, 10}, kFirstOfGroup},
    ControlRow{kLessee, kCheckBox, "Lessee", {77, kBelowLists + 16, 46, 10}},
    ControlRow{kBid, kCheckBox, "Bid", {131, kBelowLists + 16, 34, 10}},
    ControlRow{kOperatingRights, kCheckBox, "Operating Rights", {173, kBelowLists + 16, 84, 10}},
    ControlRow{
        kDesignatedOperator, kCheckBox, "Designated Operator", {265, kBelowLists + 16, 98, 10}},
};

constexpr int kEndOfPlain = kBelowLists;
constexpr int kEndOfLease = kListsTopBelowDatasets + kListsHeight + 7;
constexpr int kEndOfLessee = kBelowLists + 48 + 7;
constexpr int kEndOfCompany = kBelowLists + 31 + 7;

constexpr auto kPlainRows =
    JoinRows(kSearchRows, AvailableRows(kListsTop, {}), ListFileRows(kListsTop),
             SelectedRows(kListsTop, {}), ClosingRows(kEndOfPlain));

constexpr auto kLeaseRows =
    JoinRows(kSearchRows, kDatasetRows, AvailableRows(kListsTopBelowDatasets, {}),
             ListFileRows(kListsTopBelowDatasets), SelectedRows(kListsTopBelowDatasets, {}),
             ClosingRows(kEndOfLease));

constexpr auto kLesseeRows =
    JoinRows(kSearchRows, AvailableRows(kListsTop, kSortedList),
             SelectedRows(kListsTop, kSortedList), kLesseeOptionRows, ClosingRows(kEndOfLessee));

constexpr auto kCompanyRows =
    JoinRows(kSearchRows, AvailableRows(kListsTop, kSortedList),
             SelectedRows(kListsTop, kSortedList), kCompanyTypeRows, ClosingRows(kEndOfCompany));

/// What the closing buttons and the margin below them take.
constexpr int kFoot = kButtonHeight + kMargin;

constexpr DialogTemplate kPlainDialog{kTemplate, "Multiple Selections Dialog", kWidth,
                                      kEndOfPlain + kFoot, kPlainRows};
constexpr DialogTemplate kLeaseDialog{kLeaseTemplate, "Lease Match", kWidth, kEndOfLease + kFoot,
                                      kLeaseRows};
constexpr DialogTemplate kLesseeDialog{kLesseeTemplate, "Lessee Match", kWidth,
                                       kEndOfLessee + kFoot, kLesseeRows};
constexpr DialogTemplate kCompanyDialog{kCompanyTemplate, "Company Match Dialog", kWidth,
                                        kEndOfCompany + kFoot, kCompanyRows};

const RegisterTemplate kRegistered[] = {
    RegisterTemplate(kPlainDialog),
    RegisterTemplate(kLeaseDialog),
    RegisterTemplate(kLesseeDialog),
    RegisterTemplate(kCompanyDialog),
};

}  // namespace

}  // namespace kv::list_sel
