#include "controls/file_pick_ids.h"
#include "window/list_view/list_view_messages.h"
#include "window/templates/resources.h"

namespace kv::file_pick {

namespace {

using enum ControlKind;

constexpr RowStyle kWithoutHeadings{LVS_NOCOLUMNHEADER | LVS_SHOWSELALWAYS, 0};

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kLabel, "Current Drive:", {7, 9, 66, 8}},
    {kDrives, kDropList, "", {77, 7, 82, 12}},
    {kPathLabel, kLabel, "Current Directory:", {7, 25, 66, 8}},
    {kPath, kEdit, "", {77, 23, 196, 12}},
    {kFiles, kListView, "", {7, 41, 266, 124}, kWithoutHeadings},
    {IDC_STATIC, kLabel, "File Name:", {7, 173, 66, 8}},
    {kFileName, kDropDown, "", {77, 171, 142, 12}},
    {IDOK, kDefaultButton, "OK", {223, 170, 50, 14}},
    {kTypesLabel, kLabel, "File Type:", {7, 191, 66, 8}},
    {kTypes, kDropList, "", {77, 189, 142, 12}},
    {IDCANCEL, kPushButton, "Cancel", {223, 188, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "", 280, 209, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::file_pick
