#include "qualifiers/lease_status_ids.h"
#include "window/templates/resources.h"

namespace kv::lease_status {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "ACTIVE LEASE:", {7, 7, 100, 8}},
    {kAllActive, kCheckBox, "ALL", {7, 18, 28, 10}, kFirstOfGroup},
    {12008, kCheckBox, "Direct Sus of Oper", {15, 31, 92, 10}},
    {12016, kCheckBox, "Extended Term", {15, 43, 92, 10}},
    {12018, kCheckBox, "Operations", {15, 55, 92, 10}},
    {12019, kCheckBox, "Preliminary", {15, 67, 92, 10}},
    {12020, kCheckBox, "Primary DSO", {15, 79, 92, 10}},
    {12021, kCheckBox, "Primary Term", {15, 91, 92, 10}},
    {12022, kCheckBox, "Suspens of Oper", {15, 103, 92, 10}},
    {IDC_STATIC, kLabel, "INACTIVE LEASE:", {115, 7, 124, 8}},
    {kAllInactive, kCheckBox, "ALL", {115, 18, 28, 10}, kFirstOfGroup},
    {12009, kCheckBox, "Consolidated", {123, 31, 116, 10}},
    {12023, kCheckBox, "Expired", {123, 43, 116, 10}},
    {12017, kCheckBox, "Not Issued", {123, 55, 116, 10}},
    {12024, kCheckBox, "Forfeited", {123, 67, 116, 10}},
    {12025, kCheckBox, "Rejected", {123, 79, 116, 10}},
    {12026, kCheckBox, "Relinquished or Cancelled", {123, 91, 116, 10}},
    {12027, kCheckBox, "Terminated", {123, 103, 116, 10}},
    {IDC_STATIC, kLabel, "STATE LEASE ONLY:", {247, 7, 100, 8}},
    {kAllState, kCheckBox, "ALL", {247, 18, 28, 10}, kFirstOfGroup},
    {12010, kCheckBox, "Active HBP", {255, 31, 92, 10}},
    {12028, kCheckBox, "Active 3 Years", {255, 43, 92, 10}},
    {12029, kCheckBox, "Active 5 Years", {255, 55, 92, 10}},
    {IDC_STATIC, kLabel, "HELD BY PRODUCTION:", {247, 75, 100, 8}},
    {kAllHeld, kCheckBox, "ALL", {247, 86, 28, 10}, kFirstOfGroup},
    {12030, kCheckBox, "Suspens of Prod", {255, 99, 92, 10}},
    {12031, kCheckBox, "Unit", {255, 111, 92, 10}},
    {12032, kCheckBox, "Producing", {255, 123, 92, 10}},
    {IDC_STATIC, kLabel, "SPECIAL CASE:", {247, 143, 100, 8}},
    {kAllSpecial, kCheckBox, "ALL", {247, 154, 28, 10}, kFirstOfGroup},
    {12033, kCheckBox, "Never Been Leased", {255, 167, 92, 10}},
    {12034, kCheckBox, "No Information", {255, 179, 92, 10}},
    {12035, kCheckBox, "Deferred", {255, 191, 92, 10}},
    {IDOK, kDefaultButton, "OK", {189, 209, 50, 14}, kFirstOfGroup},
    {kClear, kPushButton, "Clear", {243, 209, 50, 14}},
    {IDCANCEL, kPushButton, "Cancel", {297, 209, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Lease Status", 354, 230, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::lease_status
