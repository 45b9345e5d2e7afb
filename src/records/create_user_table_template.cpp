#include "records/create_user_table_ids.h"
#include "window/templates/resources.h"

namespace kv::create_user_table {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kGroupBox, "Log In Details", {7, 7, 196, 66}},
    {IDC_STATIC, kLabel, "User Name", {14, 22, 58, 8}},
    {kUser, kEdit, "", {76, 20, 120, 12}},
    {IDC_STATIC, kLabel, "Password:", {14, 38, 58, 8}},
    {kPasswordEdit, kEdit, "", {76, 36, 120, 12}, kPassword},
    {IDC_STATIC, kLabel, "Database Alias:", {14, 54, 58, 8}},
    {kAlias, kEdit, "", {76, 52, 120, 12}, kReadOnly},
    {IDC_STATIC, kGroupBox, "Database Details", {7, 80, 196, 52}},
    {IDC_STATIC, kLabel, "Dataset:", {14, 95, 58, 8}},
    {kDataset, kDropList, "", {76, 93, 120, 12}},
    {IDC_STATIC, kLabel, "Table Name:", {14, 113, 58, 8}},
    {kTable, kDropList, "", {76, 111, 120, 12}},
    {IDOK, kDefaultButton, "OK", {99, 143, 50, 14}},
    {IDCANCEL, kPushButton, "Cancel", {153, 143, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Create Table Dialog", 210, 164, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::create_user_table
