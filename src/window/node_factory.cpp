#include "window/node_factory.h"

#include "window/button.h"
#include "window/button_node.h"
#include "window/combo_box.h"
#include "window/combo_box_node.h"
#include "window/edit.h"
#include "window/edit_node.h"
#include "window/list_box.h"
#include "window/list_box_node.h"
#include "window/list_ctrl.h"
#include "window/list_view_node.h"
#include "window/progress_ctrl.h"
#include "window/spin_button_ctrl.h"
#include "window/static_node.h"
#include "window/static_text.h"
#include "window/tool_bar.h"

namespace kv {

std::shared_ptr<Node> MakeNode(NodeClass nodeClass, int id, DWORD style) {
    switch (nodeClass) {
        case NodeClass::kStatic:
            return std::make_shared<StaticNode>(id, style);
        case NodeClass::kButton:
            return std::make_shared<ButtonNode>(id, style);
        case NodeClass::kEdit:
            return std::make_shared<EditNode>(id, style);
        case NodeClass::kComboBox:
            return std::make_shared<ComboBoxNode>(id, style);
        case NodeClass::kListBox:
            return std::make_shared<ListBoxNode>(id, style);
        case NodeClass::kListView:
            return std::make_shared<ListViewNode>(id, style);
        case NodeClass::kSpin:
            return std::make_shared<SpinNode>(id, style);
        case NodeClass::kProgress:
            return std::make_shared<ProgressNode>(id, style);
        case NodeClass::kToolBar:
            return std::make_shared<ToolBarNode>(id, style);
        default:
            return std::make_shared<Node>(nodeClass, id, style);
    }
}

std::unique_ptr<CWnd> MakeHandle(NodeClass nodeClass) {
    switch (nodeClass) {
        case NodeClass::kStatic:
            return std::make_unique<CStatic>();
        case NodeClass::kButton:
            return std::make_unique<CButton>();
        case NodeClass::kEdit:
            return std::make_unique<CEdit>();
        case NodeClass::kComboBox:
            return std::make_unique<CComboBox>();
        case NodeClass::kListBox:
            return std::make_unique<CListBox>();
        case NodeClass::kListView:
            return std::make_unique<CListCtrl>();
        case NodeClass::kSpin:
            return std::make_unique<CSpinButtonCtrl>();
        case NodeClass::kProgress:
            return std::make_unique<CProgressCtrl>();
        case NodeClass::kToolBar:
            return std::make_unique<CToolBar>();
        default:
            return std::make_unique<CWnd>();
    }
}

}  // namespace kv
