#pragma once

#include "qt/peers/peer.h"
#include "window/stacking.h"

class QMainWindow;
class QScreen;

namespace kv::qt {

/// The screen that a place lies on, or else the nearest one; null where there is none.
const QScreen* ScreenAround(const QPoint& at);
/// What a screen has for the contents of a window, whose frame is around them.
QRect RoomOn(const QScreen& screen);

/// A dialog: a window of its own, modal or not.
class DialogPeer : public Peer, public Stacked {
public:
    explicit DialogPeer(Node& node);

    void ShowRect() override;
    QWidget* Picture() override { return ChildHost(); }
    void Raise() override { Widget()->raise(); }

protected:
    void ShowText() override;
    /// The owner of a modal dialog does not react, and looks as ever.
    void ShowEnabled() override {}
    void ShowVisible() override;
    void ShowFocus() override {}
    QWidget* ChildHost() override;
};

/// A main window.
class FramePeer : public Peer, public Stacked {
public:
    explicit FramePeer(Node& node);

    void ShowRect() override;
    void Raise() override { Widget()->raise(); }

protected:
    void ShowText() override;
    void ShowEnabled() override {}
    void ShowVisible() override;
    void ShowFocus() override {}
    QWidget* ChildHost() override { return Widget(); }
};

/// A bar with controls: of a frame it docks and floats, anywhere else it is a control.
class BarPeer : public Peer {
public:
    BarPeer(Node& node, QWidget* host);

    void Changed(Change change) override;
    void ShowRect() override;

protected:
    void ShowText() override;
    void ShowVisible() override;
    QWidget* ChildHost() override;

private:
    QMainWindow* Frame() const;
    void ShowDocking();
};

}  // namespace kv::qt
