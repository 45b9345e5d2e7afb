#pragma once

namespace kv {

/// What kind of window a node is.
enum class NodeClass {
    kFrame,
    kDialog,
    kBar,
    kToolBar,
    kStatic,
    kButton,
    kEdit,
    kComboBox,
    kListBox,
    kListView,
    kSpin,
    kProgress,
    kOther,
};

}  // namespace kv
