#include "kvdlg/report.h"

#include <array>
#include <utility>

#include "window/resources.h"
#include "window/user.h"

namespace kvdlg {

namespace {

std::string ButtonKind(DWORD style) {
    switch (style & BS_TYPEMASK) {
        case BS_DEFPUSHBUTTON:
            return "default button";
        case BS_AUTOCHECKBOX:
            return "check box";
        case BS_AUTORADIOBUTTON:
            return "radio button";
        case BS_GROUPBOX:
            return "group box";
        case BS_OWNERDRAW:
            return "drawn button";
        default:
            return "button";
    }
}

std::string KindName(kv::NodeClass nodeClass, DWORD style) {
    switch (nodeClass) {
        case kv::NodeClass::kStatic:
            return "label";
        case kv::NodeClass::kButton:
            return ButtonKind(style);
        case kv::NodeClass::kEdit:
            return "edit";
        case kv::NodeClass::kComboBox:
            return (style & CBS_TYPEMASK) == CBS_DROPDOWNLIST ? "drop list" : "combo box";
        case kv::NodeClass::kListBox:
            return style & LBS_EXTENDEDSEL ? "list (several rows)" : "list";
        case kv::NodeClass::kListView:
            return "table";
        case kv::NodeClass::kSpin:
            return "spin button";
        case kv::NodeClass::kProgress:
            return "progress bar";
        default:
            return "window";
    }
}

bool HasCheck(const kv::Node& node) {
    const DWORD kind = node.Style() & BS_TYPEMASK;
    return node.Class() == kv::NodeClass::kButton &&
           (kind == BS_AUTOCHECKBOX || kind == BS_AUTORADIOBUTTON);
}

Json DescribeControl(kv::Node& control) {
    Json result{{"id", control.Id()},
                {"kind", KindName(control.Class(), control.Style())},
                {"text", control.Text()},
                {"enabled", control.Enabled()},
                {"visible", control.Visible()}};
    if (HasCheck(control)) result["checked"] = kv::Send(control, BM_GETCHECK) == BST_CHECKED;
    if (control.Class() == kv::NodeClass::kEdit) result["readOnly"] = control.HasStyle(ES_READONLY);
    if (kv::HasRows(control)) {
        result["rows"] = kv::RowTexts(control);
        result["selection"] = kv::SelectedRows(control);
    }
    return result;
}

}  // namespace

Json Describe(kv::Node& window, const std::string& snapshot) {
    Json result{{"window", kv::ClassName(*window.AnyHandle())}, {"caption", window.Text()}};
    if (!snapshot.empty()) result["snapshot"] = snapshot;
    result["controls"] = Json::array();
    for (const auto& child : window.Children()) {
        result["controls"].push_back(DescribeControl(*child));
    }
    return result;
}

Json DescribeTemplate(int templateId) {
    Json rows = Json::array();
    const kv::DialogTemplate* found = kv::FindTemplate(templateId);
    if (!found) return rows;
    for (const kv::ControlRow& row : found->rows) {
        rows.push_back({{"id", row.id},
                        {"kind", KindName(kv::ClassOf(row.kind), kv::StyleOf(row))},
                        {"text", row.text}});
    }
    return rows;
}

std::string Print(const Json& value) {
    return value.dump(2, ' ', false, Json::error_handler_t::replace);
}

}  // namespace kvdlg
