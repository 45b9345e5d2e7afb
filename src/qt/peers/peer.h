#pragma once

#include <QPalette>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "qt/drawing/scale.h"
#include "window/node.h"

namespace kv::qt {

/// Shows a node in a widget, which it owns: the widget goes when the node drops its view. It may be
/// in the middle of an event then, and so goes when that is over.
class Peer : public View {
public:
    Peer(Node& node, QWidget* widget);
    ~Peer() override;
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    Node& GetNode() const { return node_; }
    QWidget* Widget() const { return widget_; }

    /// Shows all of the node's state; called once the peer is the node's view.
    virtual void ShowAll();
    void Changed(Change change) override;
    void RowsInserted(int, int) override {}
    void RowsRemoved(int, int) override {}

    virtual void ShowRect();
    void ShowColors();
    /// Lets screen readers know that the control goes by another name.
    void ShowName();
    /// Where a picture of all of it is taken.
    virtual QWidget* Picture() { return widget_; }

protected:
    virtual void ShowText() {}
    virtual void ShowEnabled();
    virtual void ShowVisible();
    virtual void ShowFocus();
    virtual void ShowStyle() {}
    void ShowFont();
    void ShowToolTip();
    void ShowLabels();
    /// Lets screen readers know of a change.
    void Announce(Change change) const;

    /// The palette where nobody asks for other colours.
    virtual QPalette OwnPalette() const { return {}; }

    /// Where the widgets of the node's children lie; null for a control that shows them itself.
    virtual QWidget* ChildHost() { return nullptr; }
    void MakeChildren();

private:
    friend void AddWidget(Peer& peer, QWidget* widget);
    void ShowOwnName();
    void ShowNameWithParts();
    void ShowOrder();

    Node& node_;
    QPointer<QWidget> widget_;
    /// All that count as this peer's; some may be gone.
    std::vector<const QWidget*> widgets_;
};

/// The peer of the widget, or of the nearest widget around it that has one; null for none.
Peer* PeerOf(const QWidget* widget);
/// The peer of a node, null where it has none.
Peer* PeerOf(const Node& node);
/// Lets a widget that lies outside its peer's own, as a popup, count as the peer's.
void AddWidget(Peer& peer, QWidget* widget);

/// Makes the peer of a node and of its children, if they have none yet. `host` is the widget around
/// it, null for a top-level window.
void MakePeer(Node& node, QWidget* host);

/// Who tells screen readers what changed; null for nobody.
void SetAnnouncer(void (*announce)(const Peer& peer, Change change));

}  // namespace kv::qt
