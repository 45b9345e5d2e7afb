#pragma once

#include "qt/peers/peer.h"
#include "qt/peers/rows_view.h"
#include "window/controls/list_box_node.h"

namespace kv::qt {

/// The rows of a list box, or of a combo box's list.
std::shared_ptr<RowSource> SourceOf(ListBoxNode& list);

/// A list box.
class ListBoxPeer : public Peer {
public:
    ListBoxPeer(ListBoxNode& node, QWidget* host);

    void ShowAll() override;
    void Changed(Change change) override;
    void RowsInserted(int first, int count) override;
    void RowsRemoved(int first, int count) override;

protected:
    void ShowFocus() override;

private:
    RowsView* View() const { return static_cast<RowsView*>(Widget()); }
};

}  // namespace kv::qt
