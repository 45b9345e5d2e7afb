#pragma once

#include <memory>

#include "qt/peers/peer.h"
#include "window/list_view/list_view_node.h"

namespace kv::qt {

class ListTree;

/// A list view: rows with columns, check boxes and images.
class ListViewPeer : public Peer {
public:
    ListViewPeer(ListViewNode& node, QWidget* host);

    void ShowAll() override;
    void Changed(Change change) override;
    void RowsInserted(int first, int count) override;
    void RowsRemoved(int first, int count) override;
    void ShowRect() override;

protected:
    void ShowFocus() override;

private:
    ListViewNode& List() const { return static_cast<ListViewNode&>(GetNode()); }
    ListTree* View() const;
};

}  // namespace kv::qt
