#include "window/templates/dialog_template.h"

#include <array>
#include <utility>

#include "window/mnemonics.h"

namespace kv {

namespace {

struct KindRow {
    ControlKind kind;
    NodeClass nodeClass;
    DWORD style;
};

constexpr DWORD kStop = WS_TABSTOP;

constexpr std::array<KindRow, 18> kKinds{{
    {ControlKind::kLabel, NodeClass::kStatic, SS_LEFT},
    {ControlKind::kRightLabel, NodeClass::kStatic, SS_RIGHT},
    {ControlKind::kCenterLabel, NodeClass::kStatic, SS_CENTER},
    {ControlKind::kIcon, NodeClass::kStatic, SS_ICON},
    {ControlKind::kGroupBox, NodeClass::kButton, BS_GROUPBOX},
    {ControlKind::kEdit, NodeClass::kEdit, kStop | ES_AUTOHSCROLL},
    {ControlKind::kPushButton, NodeClass::kButton, kStop | BS_PUSHBUTTON},
    {ControlKind::kDefaultButton, NodeClass::kButton, kStop | BS_DEFPUSHBUTTON},
    {ControlKind::kOwnerDrawButton, NodeClass::kButton, kStop | BS_OWNERDRAW},
    {ControlKind::kCheckBox, NodeClass::kButton, kStop | BS_AUTOCHECKBOX},
    {ControlKind::kRadio, NodeClass::kButton, kStop | BS_AUTORADIOBUTTON},
    {ControlKind::kDropDown, NodeClass::kComboBox,
     kStop | CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL},
    {ControlKind::kDropList, NodeClass::kComboBox, kStop | CBS_DROPDOWNLIST | WS_VSCROLL},
    {ControlKind::kListBox, NodeClass::kListBox, kStop | LBS_NOTIFY | WS_VSCROLL},
    {ControlKind::kMultiList, NodeClass::kListBox,
     kStop | LBS_NOTIFY | LBS_EXTENDEDSEL | WS_VSCROLL},
    {ControlKind::kListView, NodeClass::kListView, kStop | 0x1},
    {ControlKind::kSpin, NodeClass::kSpin, 0},
    {ControlKind::kProgress, NodeClass::kProgress, 0},
}};

const KindRow& RowOf(ControlKind kind) {
    for (const KindRow& row : kKinds) {
        if (row.kind == kind) return row;
    }
    return kKinds.front();
}

/// Rounded to the nearest, as the platform rounds.
int Scale(int units, int base, int divisor) {
    return (units * base + divisor / 2) / divisor;
}

}  // namespace

CRect ToPixels(const DialogUnits& place) {
    return {Scale(place.x, kBaseUnitX, 4), Scale(place.y, kBaseUnitY, 8),
            Scale(place.x + place.width, kBaseUnitX, 4),
            Scale(place.y + place.height, kBaseUnitY, 8)};
}

NodeClass ClassOf(ControlKind kind) {
    return RowOf(kind).nodeClass;
}

DWORD StyleOf(const ControlRow& row) {
    const DWORD own = RowOf(row.kind).style | WS_CHILD | WS_VISIBLE;
    return (own & ~row.style.remove) | row.style.add;
}

void CreateControls(Node& host, const DialogTemplate& dialogTemplate) {
    host.SetText(dialogTemplate.caption);
    const CRect size = ToPixels({0, 0, dialogTemplate.width, dialogTemplate.height});
    CRect rect = host.Rect();
    rect.right = rect.left + size.Width();
    rect.bottom = rect.top + size.Height();
    host.SetRect(rect);
    for (const ControlRow& row : dialogTemplate.rows) {
        auto control = MakeNode(ClassOf(row.kind), row.id, StyleOf(row));
        control->SetRect(ToPixels(row.place));
        control->SetText(row.text);
        if (*row.toolTip) control->SetToolTip(row.toolTip);
        host.AddChild(std::move(control));
    }
    if (host.Class() == NodeClass::kDialog) GiveMnemonics(host);
}

}  // namespace kv
