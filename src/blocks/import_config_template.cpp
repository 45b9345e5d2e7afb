#include "blocks/import_config_ids.h"
#include "window/templates/resources.h"

namespace kv::import_config {

namespace {

using enum ControlKind;

constexpr ControlRow kRows[] = {
    {IDC_STATIC, kGroupBox, "Area Type", {7, 7, 196, 28}},
    {kAreaNames, kRadio, "Areaname", {15, 19, 56, 10}, kFirstOfGroup},
    {kAreaCodes, kRadio, "Areacode", {77, 19, 56, 10}},
    {kMmsCodes, kRadio, "MMS code", {139, 19, 56, 10}},
    {IDC_STATIC, kGroupBox, "Block/Ext", {7, 42, 196, 46}, kFirstOfGroup},
    {IDC_STATIC, kLabel, "Order", {15, 54, 52, 8}},
    {kBlockFirst, kRadio, "Block+Ext", {71, 54, 60, 10}, kFirstOfGroup},
    {kExtFirst, kRadio, "Ext+Block", {135, 54, 60, 10}},
    {IDC_STATIC, kLabel, "Delimiter", {15, 70, 52, 8}, kFirstOfGroup},
    {kHasExtDelimiter, kRadio, "Yes", {71, 70, 32, 10}, kFirstOfGroup},
    {kNoExtDelimiter, kRadio, "No", {107, 70, 24, 10}},
    {kExtDelimiter, kEdit, "", {135, 69, 60, 12}, kFirstOfGroup | kDisabled},
    {IDC_STATIC, kGroupBox, "Column Delimiter", {7, 95, 196, 46}},
    {kTab, kCheckBox, "Use tab as a delimiter", {15, 107, 116, 10}},
    {kColumnDelimiterLabel, kLabel, "Use user specified delimiter", {15, 123, 116, 8}, kDisabled},
    {kColumnDelimiter, kEdit, "", {135, 121, 60, 12}, kDisabled},
    {IDOK, kDefaultButton, "Close", {153, 148, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Import Configuration", 210, 169, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace

}  // namespace kv::import_config
