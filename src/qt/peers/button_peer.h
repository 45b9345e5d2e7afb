#pragma once

#include <QAbstractButton>

#include "qt/peers/peer.h"
#include "window/controls/button_node.h"

namespace kv::qt {

/// A push, check, radio or owner-drawn button.
class ButtonPeer : public Peer {
public:
    ButtonPeer(ButtonNode& node, QWidget* host);

    void ShowAll() override;
    void Changed(Change change) override;

protected:
    void ShowText() override;
    void ShowFocus() override;
    void ShowStyle() override;

private:
    ButtonNode& Button() const { return static_cast<ButtonNode&>(GetNode()); }
    QAbstractButton* View() const { return static_cast<QAbstractButton*>(Widget()); }
    void ShowCheck();
    void ShowImage();
};

/// A frame with a caption around other controls.
class GroupBoxPeer : public Peer {
public:
    GroupBoxPeer(ButtonNode& node, QWidget* host);

protected:
    void ShowText() override;
};

}  // namespace kv::qt
