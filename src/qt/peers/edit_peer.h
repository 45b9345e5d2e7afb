#pragma once

#include "qt/peers/peer.h"
#include "window/controls/edit_node.h"

namespace kv::qt {

/// An edit of one line or of several: shows the node's text, selection and caret.
class EditPeer : public Peer {
public:
    /// `framed` is false within a combo box.
    EditPeer(EditNode& node, QWidget* host, bool framed = true);

    void ShowAll() override;
    void Changed(Change change) override;
    void ShowRect() override;

protected:
    void ShowText() override;
    void ShowFocus() override;
    void ShowStyle() override;
    QPalette OwnPalette() const override;

private:
    bool InComboBox() const;
};

}  // namespace kv::qt
