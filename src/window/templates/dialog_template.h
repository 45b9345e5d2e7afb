#pragma once

#include <span>

#include "base/export.h"
#include "base/types.h"
#include "window/node.h"

/// Dialogs as data: what a template says, in dialog units, in tab order.
namespace kv {

enum class ControlKind {
    kLabel,
    kRightLabel,
    kCenterLabel,
    kIcon,
    kGroupBox,
    kEdit,
    kPushButton,
    kDefaultButton,
    kOwnerDrawButton,
    kCheckBox,
    kRadio,
    kDropDown,   ///< editable combo box
    kDropList,   ///< combo box with a list to pick from only
    kListBox,    ///< one row at a time
    kMultiList,  ///< list box with extended selection
    kListView,   ///< report with columns
    kSpin,
    kProgress,
};

/// Width and height of the average character, in logical pixels: four dialog units across, eight
/// down.
inline constexpr int kBaseUnitX = 6;
inline constexpr int kBaseUnitY = 13;

/// A rectangle in dialog units.
struct DialogUnits {
    int x;
    int y;
    int width;
    int height;
};

/// Styles beyond, or short of, what the kind has of itself.
struct RowStyle {
    DWORD add = 0;
    DWORD remove = 0;
    /// Rows with the same number above 0 take turns in one place.
    int alternate = 0;

    constexpr RowStyle operator|(RowStyle other) const {
        return {add | other.add, remove | other.remove,
                alternate > other.alternate ? alternate : other.alternate};
    }
};

inline constexpr RowStyle kFirstOfGroup{WS_GROUP, 0};
inline constexpr RowStyle kHidden{0, WS_VISIBLE};
inline constexpr RowStyle kDisabled{WS_DISABLED, 0};
inline constexpr RowStyle kNoTabStop{0, WS_TABSTOP};
inline constexpr RowStyle kSortedCombo{CBS_SORT, 0};
inline constexpr RowStyle kSortedList{LBS_SORT, 0};
inline constexpr RowStyle kReadOnly{ES_READONLY, 0};
inline constexpr RowStyle kPassword{ES_PASSWORD, 0};
inline constexpr RowStyle kUpperCase{ES_UPPERCASE, 0};
inline constexpr RowStyle kDigitsOnly{ES_NUMBER, 0};
inline constexpr RowStyle kMultiLine{ES_MULTILINE, 0};
inline constexpr RowStyle kWithIcon{BS_ICON, 0};
constexpr RowStyle Alternate(int number) {
    return {0, 0, number};
}

struct ControlRow {
    int id;
    ControlKind kind;
    const char* text;
    DialogUnits place;
    RowStyle style = {};
    const char* toolTip = "";
};

struct DialogTemplate {
    int id;
    const char* caption;
    int width;   ///< dialog units
    int height;  ///< dialog units
    std::span<const ControlRow> rows;
};

/// Dialog units in logical pixels.
KVGUICTL_API CRect ToPixels(const DialogUnits& place);

/// Kind of window and style bits of a row.
KVGUICTL_API NodeClass ClassOf(ControlKind kind);
KVGUICTL_API DWORD StyleOf(const ControlRow& row);

/// Makes the controls of a template as children of `host`, and gives it the template's size and
/// caption. In a dialog, push buttons and labels of fields get mnemonics.
KVGUICTL_API void CreateControls(Node& host, const DialogTemplate& dialogTemplate);

}  // namespace kv
