#include "qt/binding.h"

#include <QComboBox>
#include <QLineEdit>
#include <memory>

#include "qt/drawing/text.h"
#include "qt/peers/acting.h"
#include "qt/peers/list_box_peer.h"
#include "qt/peers/peer.h"
#include "qt/peers/rows_view.h"
#include "window/controls/combo_box.h"
#include "window/controls/combo_box_node.h"
#include "window/controls/edit.h"
#include "window/controls/edit_node.h"
#include "window/window_system.h"

namespace kv::qt {

namespace {

/// Keeps a control that has no window of the layer around it, as long as the widget lives.
class Binding : public QObject {
public:
    Binding(QWidget& widget, std::shared_ptr<Node> node)
        : QObject(&widget), node_(std::move(node)) {}
    ~Binding() override { WindowSystem::Get().Destroy(*node_); }

private:
    std::shared_ptr<Node> node_;
};

/// Shows a control in the host's widget, which it does not own.
template <typename Widget>
class BoundView : public View {
public:
    BoundView(Node& node, Widget& widget) : node_(node), widget_(&widget) {}

    void Changed(Change change) override {
        if (!widget_) return;
        if (change == Change::kEnabled) widget_->setEnabled(node_.Enabled());
        if (change == Change::kVisible) widget_->setVisible(node_.Visible());
    }
    void RowsInserted(int, int) override {}
    void RowsRemoved(int, int) override {}

protected:
    Node& node_;
    QPointer<Widget> widget_;
};

class BoundEdit : public BoundView<QLineEdit> {
public:
    using BoundView::BoundView;

    void Changed(Change change) override {
        BoundView::Changed(change);
        if (!widget_) return;
        const auto& edit = static_cast<const EditNode&>(node_);
        const QString text = ToQString(edit.Text());
        if (change == Change::kText && widget_->text() != text) widget_->setText(text);
        if (change == Change::kStyle) widget_->setReadOnly(edit.ReadOnly());
    }
};

class BoundComboBox : public BoundView<QComboBox> {
public:
    BoundComboBox(ComboBoxNode& node, QComboBox& widget)
        : BoundView(node, widget), model_(new RowModel(SourceOf(node.List()))) {
        model_->setParent(&widget);
        const QString text = widget.currentText();
        widget.setModel(model_);
        widget.setCurrentIndex(node.CurrentRow());
        if (widget.isEditable()) widget.setEditText(text);
    }

    void Changed(Change change) override {
        BoundView::Changed(change);
        if (!widget_) return;
        if (change == Change::kRows) model_->Reset();
        ShowState();
    }
    void RowsInserted(int first, int count) override {
        if (!widget_) return;
        const QSignalBlocker quiet(*widget_);
        model_->Inserted(first, count);
        ShowState();
    }
    void RowsRemoved(int first, int count) override {
        if (!widget_) return;
        const QSignalBlocker quiet(*widget_);
        model_->Removed(first, count);
        ShowState();
    }

private:
    void ShowState() {
        const auto& combo = static_cast<const ComboBoxNode&>(node_);
        const QSignalBlocker quiet(*widget_);
        if (widget_->currentIndex() != combo.CurrentRow()) {
            widget_->setCurrentIndex(combo.CurrentRow());
        }
        const QString text = ToQString(combo.Text());
        if (widget_->isEditable() && widget_->currentText() != text) widget_->setEditText(text);
    }

    QPointer<RowModel> model_;
};

void AddRows(ComboBoxNode& node, const QComboBox& widget) {
    for (int row = 0; row < widget.count(); ++row) {
        const std::string text = ToBytes(widget.itemText(row));
        Send(node, CB_ADDSTRING, 0, AsParam(text.c_str()));
    }
    Send(node, CB_SETCURSEL, static_cast<WPARAM>(widget.currentIndex()));
    if (widget.isEditable()) {
        Send(node, WM_SETTEXT, 0, AsParam(ToBytes(widget.currentText()).c_str()));
    }
}

}  // namespace

bool BindComboBox(QComboBox& widget, CComboBox& control) {
    const DWORD kind = widget.isEditable() ? CBS_DROPDOWN | CBS_AUTOHSCROLL : CBS_DROPDOWNLIST;
    auto made = MakeNode(NodeClass::kComboBox, 0, WS_CHILD | WS_VISIBLE | kind);
    auto& node = static_cast<ComboBoxNode&>(*made);
    if (!control.Attach(made.get())) return false;
    AddRows(node, widget);
    node.SetEnabled(widget.isEnabled());
    node.SetView(std::make_unique<BoundComboBox>(node, widget));
    const std::weak_ptr<Node> weak = made;
    new Binding(widget, std::move(made));
    QObject::connect(&widget, &QComboBox::activated, &widget, [weak](int row) {
        Act(weak, [row](Node& combo) {
            Send(combo, CB_SETCURSEL, static_cast<WPARAM>(row));
            combo.Notify(CBN_SELCHANGE);
        });
    });
    QObject::connect(&widget, &QComboBox::editTextChanged, &widget, [weak](const QString& text) {
        Act(weak, [&](Node& combo) {
            if (combo.Text() == ToBytes(text)) return;
            Send(combo, WM_SETTEXT, 0, AsParam(ToBytes(text).c_str()));
        });
    });
    return true;
}

bool BindLineEdit(QLineEdit& widget, CEdit& control) {
    const DWORD style = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL |
                        (widget.isReadOnly() ? ES_READONLY : 0) |
                        (widget.echoMode() == QLineEdit::Password ? ES_PASSWORD : 0);
    auto node = MakeNode(NodeClass::kEdit, 0, style);
    if (!control.Attach(node.get())) return false;
    node->SetText(ToBytes(widget.text()));
    node->SetEnabled(widget.isEnabled());
    node->SetView(std::make_unique<BoundEdit>(*node, widget));
    const std::weak_ptr<Node> weak = node;
    new Binding(widget, std::move(node));
    QObject::connect(&widget, &QLineEdit::textEdited, &widget, [weak](const QString& text) {
        Act(weak, [&](Node& edit) { Send(edit, WM_SETTEXT, 0, AsParam(ToBytes(text).c_str())); });
    });
    return true;
}

}  // namespace kv::qt
