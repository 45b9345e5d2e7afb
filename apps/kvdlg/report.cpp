#include "kvdlg/report.h"

#include <algorithm>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "window/acting/row_texts.h"
#include "window/acting/user.h"
#include "window/controls/combo_box_node.h"
#include "window/mnemonics.h"
#include "window/templates/resources.h"

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

/// What a control shows; of a password, that there is one.
std::string ShownText(const kv::Node& control) {
    const bool secret = control.Class() == kv::NodeClass::kEdit && control.HasStyle(ES_PASSWORD);
    return secret && !control.Text().empty() ? "***" : control.Text();
}

/// What a list tells as long as it has no rows.
const std::string& WordsOfNoRows(const kv::Node& list) {
    const auto* combo = dynamic_cast<const kv::ComboBoxNode*>(&list);
    return combo ? combo->List().ToolTip() : list.ToolTip();
}

Json DescribeControl(kv::Node& control) {
    Json result{{"id", control.Id()},
                {"kind", KindName(control.Class(), control.Style())},
                {"text", ShownText(control)},
                {"enabled", control.Enabled()},
                {"visible", control.Visible()}};
    if (HasCheck(control)) result["checked"] = kv::Send(control, BM_GETCHECK) == BST_CHECKED;
    if (control.Class() == kv::NodeClass::kEdit) result["readOnly"] = control.HasStyle(ES_READONLY);
    if (kv::HasRows(control)) {
        result["rows"] = kv::RowTexts(control);
        result["selection"] = kv::SelectedRows(control);
        const std::string& words = WordsOfNoRows(control);
        if (result["rows"].empty() && !words.empty()) result["says"] = words;
    }
    return result;
}

bool IsLabel(const kv::ControlRow& row) {
    return kv::ClassOf(row.kind) == kv::NodeClass::kStatic && *row.text != '\0';
}

/// Whether a row is the unit of the number that the spin button ahead of it steps.
bool IsUnit(std::span<const kv::ControlRow> rows, std::size_t at) {
    constexpr int kMostGap = 8;
    if (at == 0 || at >= rows.size() || !IsLabel(rows[at])) return false;
    const kv::ControlRow& ahead = rows[at - 1];
    const kv::DialogUnits& place = rows[at].place;
    const int gap = place.x - ahead.place.x - ahead.place.width;
    const bool sameLine =
        place.y < ahead.place.y + ahead.place.height && ahead.place.y < place.y + place.height;
    return ahead.kind == kv::ControlKind::kSpin && gap >= 0 && gap <= kMostGap && sameLine;
}

/// The unit behind a spin button, or behind a field that has one, with a blank ahead of it.
std::string UnitOf(std::span<const kv::ControlRow> rows, std::size_t at) {
    const std::size_t unit = at + (rows[at].kind == kv::ControlKind::kSpin ? 1 : 2);
    return IsUnit(rows, unit) ? std::string(" ") + rows[unit].text : "";
}

/// Fields have no text of their own: they go by the label ahead of them.
bool NeedsLabel(kv::NodeClass nodeClass) {
    return nodeClass != kv::NodeClass::kStatic && nodeClass != kv::NodeClass::kButton;
}

Json DescribeRow(const kv::ControlRow& row, const std::string& label, const kv::Node& control) {
    const DWORD style = kv::StyleOf(row);
    const kv::NodeClass nodeClass = kv::ClassOf(row.kind);
    Json result{{"id", row.id}, {"kind", KindName(nodeClass, style)}, {"text", row.text}};
    if (NeedsLabel(nodeClass) && !label.empty()) result["label"] = label;
    if (const char letter = kv::KeyOf(control)) result["key"] = std::string("Alt+") + letter;
    if (*row.toolTip) result["tip"] = row.toolTip;
    const bool field = nodeClass == kv::NodeClass::kEdit;
    const std::pair<const char*, bool> states[] = {
        {"tabStop", (style & WS_TABSTOP) != 0},
        {"disabled", (style & WS_DISABLED) != 0},
        {"hidden", (style & WS_VISIBLE) == 0},
        {"readOnly", field && (style & ES_READONLY) != 0},
    };
    for (const auto& [name, is] : states) {
        if (is) result[name] = true;
    }
    return result;
}

std::vector<kv::ControlRow> RowsOf(const kv::DialogTemplate& dialogTemplate,
                                   const std::vector<adaptors::AddedControl>& added) {
    using enum kv::ControlKind;
    const bool otherDefault = std::ranges::any_of(
        added, [](const adaptors::AddedControl& each) { return each.row.kind == kDefaultButton; });
    std::vector<kv::ControlRow> rows;
    for (const kv::ControlRow& row : dialogTemplate.rows) {
        rows.push_back(row);
        if (otherDefault && row.kind == kDefaultButton) rows.back().kind = kPushButton;
        for (const adaptors::AddedControl& each : added) {
            if (each.behind == row.id) rows.push_back(each.row);
        }
    }
    return rows;
}

/// A bar has neither a caption nor a button that ends it.
bool IsBar(const kv::DialogTemplate& dialogTemplate) {
    const auto ends = [](const kv::ControlRow& row) {
        return row.id == IDOK || row.id == IDCANCEL;
    };
    return *dialogTemplate.caption == '\0' && std::ranges::none_of(dialogTemplate.rows, ends);
}

Json DescribeControls(const adaptors::Adaptor& adaptor) {
    Json rows = Json::array();
    const kv::DialogTemplate* found = kv::FindTemplate(adaptor.templateId);
    if (!found) return rows;
    const std::vector<kv::ControlRow> all = RowsOf(*found, adaptor.added);
    kv::DialogTemplate whole = *found;
    whole.rows = all;
    const auto host = std::make_shared<kv::Node>(
        IsBar(*found) ? kv::NodeClass::kBar : kv::NodeClass::kDialog, 0, DWORD{0});
    kv::CreateControls(*host, whole);
    std::string label;
    for (std::size_t at = 0; at < all.size(); ++at) {
        if (IsLabel(all[at]) && !IsUnit(all, at)) label = all[at].text;
        rows.push_back(DescribeRow(all[at], label + UnitOf(all, at), *host->Children()[at]));
    }
    return rows;
}

Json DescribeInputs(const std::vector<adaptors::Input>& inputs) {
    Json list = Json::array();
    for (const adaptors::Input& each : inputs) {
        Json input{{"name", each.name}, {"type", each.type}, {"meaning", each.meaning}};
        if (!each.sample.is_null()) input["sample"] = each.sample;
        list.push_back(std::move(input));
    }
    return list;
}

Json DescribeCalls(const std::vector<adaptors::Method>& calls) {
    Json list = Json::array();
    for (const adaptors::Method& each : calls) {
        list.push_back({{"method", each.name},
                        {"arguments", DescribeInputs(each.arguments)},
                        {"meaning", each.meaning}});
    }
    return list;
}

/// Opens the dialog, looks at it, and leaves it where it can be left.
Json FirstScript(const adaptors::Adaptor& adaptor, const Json& controls) {
    Json actions = Json::array({{{"snapshot", "start"}}});
    const auto has = [&](int id, bool alsoHidden) {
        return std::any_of(controls.begin(), controls.end(), [&](const Json& control) {
            return control["id"] == id && (alsoHidden || !control.contains("hidden"));
        });
    };
    if (has(IDCANCEL, false)) {
        actions.push_back({{"click", IDCANCEL}});
    } else if (!adaptor.makeTool && has(IDOK, false)) {
        actions.push_back({{"click", IDOK}});
    } else if (!has(IDOK, true) && !has(IDCANCEL, true)) {
        actions.push_back({{"key", {0, "Escape"}}});
    }
    return {{"inputs", adaptor.SampleInputs()},
            {"user", Json::array({{{"window", adaptor.className}, {"do", actions}}})}};
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

Json DescribeDialog(const adaptors::Adaptor& adaptor) {
    const Json controls = DescribeControls(adaptor);
    return {{"class", adaptor.className}, {"family", adaptor.family},
            {"caption", adaptor.caption}, {"inputs", DescribeInputs(adaptor.inputs)},
            {"controls", controls},       {"calls", DescribeCalls(adaptor.calls)},
            {"returns", adaptor.returns}, {"script", FirstScript(adaptor, controls)}};
}

Json Outcome(const adaptors::Run& run, const Records& records, bool trace) {
    Json outcome{{"result", run.ResultName()}, {"outcome", run.outcome}};
    outcome["messages"] = records.messages;
    if (trace) outcome["sql"] = records.sql;
    outcome["windows"] = records.windows;
    return outcome;
}

std::string Print(const Json& value) {
    return value.dump(2, ' ', false, Json::error_handler_t::replace);
}

}  // namespace kvdlg
