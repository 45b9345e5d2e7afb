#pragma once

#include <QWidget>

#include "qt/peers/peer.h"
#include "window/controls/static_node.h"

namespace kv::qt {

/// A label: text, icon or bitmap.
class StaticPeer : public Peer {
public:
    StaticPeer(StaticNode& node, QWidget* host);

    void Changed(Change change) override;
    void ShowRect() override;

protected:
    void ShowText() override;
    void ShowStyle() override;
};

}  // namespace kv::qt
