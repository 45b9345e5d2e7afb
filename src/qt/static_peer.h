#pragma once

#include <QLabel>

#include "qt/peer.h"
#include "window/static_node.h"

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
