#pragma once

#include "qt/peers/peer.h"
#include "qt/peers/rows_view.h"
#include "window/controls/combo_box_node.h"

class QFrame;

namespace kv::qt {

/// A combo box: with an edit and a list that drops, with a list that drops only, or with an edit
/// above a list that is always in sight.
class ComboBoxPeer : public Peer {
public:
    ComboBoxPeer(ComboBoxNode& node, QWidget* host);
    ~ComboBoxPeer() override;

    void ShowAll() override;
    void Changed(Change change) override;
    void ShowRect() override;
    void RowsInserted(int first, int count) override;
    void RowsRemoved(int first, int count) override;

protected:
    void ShowText() override;
    void ShowEnabled() override;
    void ShowFocus() override;

private:
    ComboBoxNode& Combo() const { return static_cast<ComboBoxNode&>(GetNode()); }
    void ShowDropped();
    void OpenPopup();
    void PlacePopup();
    void MakeRows(QWidget* parent);

    QPointer<QFrame> popup_;
    QPointer<RowsView> rows_;
};

}  // namespace kv::qt
