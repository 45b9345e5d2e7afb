#pragma once

#include <QAccessible>
#include <QList>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>

#include "window/node.h"

namespace kv::qt {

/// What a control or a dialog is to a screen reader: what the node says, at the place where its
/// widget lies.
class ControlInterface : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    ControlInterface(QWidget& widget, Node& node);

    bool isValid() const override { return widget_ && GetNode(); }
    QObject* object() const override { return widget_; }
    QWindow* window() const override;

    /// The labels by which a control goes, and of a label the controls that go by it.
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(
        QAccessible::Relation match = QAccessible::AllRelations) const override;
    QAccessibleInterface* focusChild() const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override { return Children().value(index); }
    int childCount() const override { return static_cast<int>(Children().size()); }
    int indexOfChild(const QAccessibleInterface* child) const override;

    QString text(QAccessible::Text which) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

protected:
    ~ControlInterface() override = default;

    /// Null when it is gone.
    QWidget* Widget() const { return widget_; }
    /// Null when the window is gone.
    Node* GetNode() const;
    /// In the order in which Tab goes through them.
    virtual QList<QAccessibleInterface*> Children() const;

private:
    QPointer<QWidget> widget_;
    std::weak_ptr<Node> node_;
};

/// What stands for the widget that shows a node; null where it is not shown.
QAccessibleInterface* InterfaceOf(const Node& node);

/// Acts as soon as the event loop runs: what is done may open a modal window, and the screen reader
/// that asks for it waits for an answer.
void ActLater(Node& node, std::function<void(Node&)> action);

/// What is true of anything that lies in a control: in sight, enabled.
QAccessible::State PlaceState(const Node& node, const QWidget& widget);
/// Whether what the keyboard does goes there.
bool HasKeyboard(const Node& node, const QWidget& widget);

}  // namespace kv::qt
