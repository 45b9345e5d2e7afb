#pragma once

#include "qt/peers/peer.h"
#include "window/controls/progress_node.h"
#include "window/controls/spin_node.h"
#include "window/frames/tool_bar_node.h"

namespace kv::qt {

/// The two arrows of a spin button.
class SpinPeer : public Peer {
public:
    SpinPeer(SpinNode& node, QWidget* host);
};

class ProgressPeer : public Peer {
public:
    ProgressPeer(ProgressNode& node, QWidget* host);

    void ShowAll() override;
    void Changed(Change change) override;

private:
    void ShowPosition();
};

/// A tool bar: of a frame it docks, anywhere else it is a control.
class ToolBarPeer : public Peer {
public:
    ToolBarPeer(ToolBarNode& node, QWidget* host);

    void ShowAll() override;
    void Changed(Change change) override;
    void ShowRect() override;
    void ShowStates();

protected:
    void ShowText() override;

private:
    ToolBarNode& Bar() const { return static_cast<ToolBarNode&>(GetNode()); }
    void ShowButtons();
};

/// A window that only paints itself, or that another library fills.
class OtherPeer : public Peer {
public:
    OtherPeer(Node& node, QWidget* host);

protected:
    QWidget* ChildHost() override { return Widget(); }
};

}  // namespace kv::qt
