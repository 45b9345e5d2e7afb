// The block selection dialog, and that for whole areas, which shares its controls.

#include <array>

#include "blocks/blk_ext_ids.h"
#include "window/list_view/list_view_messages.h"
#include "window/templates/resources.h"
#include "window/templates/template_rows.h"

namespace kv::blk_ext {

namespace {

using enum ControlKind;

constexpr int kMargin = 7;
constexpr int kGap = 4;
constexpr int kButtonWidth = 50;
constexpr int kButtonHeight = 14;
constexpr int kActionWidth = 66;
constexpr int kSelectedWidth = 227;
constexpr int kHeadingsTop = 44;
constexpr int kListsTop = 54;

/// What differs between the two dialogs, in dialog units.
struct Layout {
    int width;
    int height;
    int availableWidth;
    /// How blocks, and what is done with them, show.
    RowStyle blocks;
    int blocksX;
    int blocksWidth;

    constexpr int ListHeight() const {
        return height - kListsTop - kMargin - kButtonHeight - kMargin;
    }
    constexpr int SelectedX() const { return width - kMargin - kSelectedWidth; }
    constexpr int ActionX() const { return SelectedX() - kGap - kActionWidth; }
    constexpr DialogUnits Action(int y) const {
        return {ActionX(), kListsTop + y, kActionWidth, kButtonHeight};
    }
    /// Of three, from the left.
    constexpr DialogUnits Closing(int number) const {
        const int fromRight = 3 - number;
        return {width - kMargin - fromRight * kButtonWidth - (fromRight - 1) * kGap,
                height - kMargin - kButtonHeight, kButtonWidth, kButtonHeight};
    }
};

constexpr std::array kSearchRows{
    ControlRow{IDC_STATIC, kLabel, "Find:", {7, 9, 28, 8}},
    ControlRow{kFind, kEdit, "", {39, 7, 180, 12}},
    ControlRow{kSearch, kDefaultButton, "Search...", {223, 6, 50, 14}, kDisabled},
    ControlRow{kSearchMode, kRadio, "Search...", {285, 8, 50, 10}, kFirstOfGroup},
    ControlRow{kInsertMode, kRadio, "Insert...", {345, 8, 50, 10}},
    ControlRow{IDC_STATIC, kLabel, "Search records that", {7, 27, 80, 8}},
    ControlRow{kContain, kRadio, "Contain", {91, 26, 46, 10}, kFirstOfGroup},
    ControlRow{kStartWith, kRadio, "Start with", {141, 26, 54, 10}},
    ControlRow{kEndWith, kRadio, "End with", {199, 26, 50, 10}},
};

constexpr auto ListRows(const Layout& at) {
    return std::array{
        ControlRow{IDC_STATIC, kLabel, "Available Areanames", {kMargin, kHeadingsTop, 90, 8}},
        ControlRow{kAvailable,
                   kMultiList,
                   "",
                   {kMargin, kListsTop, at.availableWidth, at.ListHeight()},
                   kFirstOfGroup | kSortedList},
        ControlRow{IDC_STATIC,
                   kLabel,
                   "Block/Extension",
                   {at.blocksX, kHeadingsTop, at.blocksWidth, 8},
                   at.blocks},
        ControlRow{kBlocks,
                   kMultiList,
                   "",
                   {at.blocksX, kListsTop, at.blocksWidth, at.ListHeight()},
                   at.blocks},
    };
}

constexpr auto ActionRows(const Layout& at) {
    return std::array{
        ControlRow{kAdd, kPushButton, "Add ->", at.Action(6)},
        ControlRow{kRemove, kPushButton, "<- Remove", at.Action(24)},
        ControlRow{kFromMap, kPushButton, "Select from Map", at.Action(50), at.blocks},
        ControlRow{kImport, kPushButton, "Import", at.Action(68), at.blocks},
        ControlRow{kExport, kPushButton, "Export", at.Action(86), at.blocks},
        ControlRow{kNeighbors, kPushButton, "Neighbor Blocks", at.Action(112), at.blocks},
    };
}

constexpr auto ListFileRows(const Layout& at) {
    constexpr int kCheckWidth = 10;
    const DialogUnits place = at.Action(138);
    return std::array{
        ControlRow{kListFileCheck,
                   kCheckBox,
                   "",
                   {place.x, place.y + 2, kCheckWidth, 10},
                   {},
                   "Take the blocks from a file"},
        ControlRow{
            kListFileButton,
            kPushButton,
            "File...",
            {place.x + kCheckWidth + 2, place.y, place.width - kCheckWidth - 2, place.height}},
    };
}

constexpr auto ClosingRows(const Layout& at) {
    return std::array{
        ControlRow{kSelected,
                   kListView,
                   "",
                   {at.SelectedX(), kListsTop, kSelectedWidth, at.ListHeight()},
                   {LVS_SHOWSELALWAYS, 0}},
        ControlRow{IDOK, kPushButton, "OK", at.Closing(0), kFirstOfGroup},
        ControlRow{kClear, kPushButton, "Clear", at.Closing(1), kDisabled},
        ControlRow{IDCANCEL, kPushButton, "Cancel", at.Closing(2)},
    };
}

constexpr int kBlocksWidth = 62;
constexpr Layout kBlockLayout{511, 240, 130, {}, kMargin + 130 + kGap, kBlocksWidth};
constexpr Layout kAreaLayout{513, 249, 198, kHidden, kMargin + 198 - kBlocksWidth, kBlocksWidth};

constexpr auto kBlockRows = JoinRows(kSearchRows, ListRows(kBlockLayout), ActionRows(kBlockLayout),
                                     ListFileRows(kBlockLayout), ClosingRows(kBlockLayout));
constexpr auto kAreaRows =
    JoinRows(kSearchRows, ListRows(kAreaLayout), ActionRows(kAreaLayout), ClosingRows(kAreaLayout));

constexpr DialogTemplate kBlockDialog{kTemplate, "Area Block/Extension Selection Dialog",
                                      kBlockLayout.width, kBlockLayout.height, kBlockRows};
constexpr DialogTemplate kAreaDialog{kAreaTemplate, "Area Selection Dialog", kAreaLayout.width,
                                     kAreaLayout.height, kAreaRows};

const RegisterTemplate kRegistered[] = {
    RegisterTemplate(kBlockDialog),
    RegisterTemplate(kAreaDialog),
};

}  // namespace

}  // namespace kv::blk_ext
