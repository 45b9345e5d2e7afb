#include "qt/peers/button_peer.h"
#include "qt/peers/combo_box_peer.h"
#include "qt/peers/edit_peer.h"
#include "qt/peers/list_box_peer.h"
#include "qt/peers/list_view_peer.h"
#include "qt/peers/small_peers.h"
#include "qt/peers/static_peer.h"
#include "qt/peers/window_peers.h"

namespace kv::qt {

namespace {

template <typename PeerClass, typename NodeClassOf>
std::unique_ptr<Peer> Make(Node& node, QWidget* host) {
    return std::make_unique<PeerClass>(static_cast<NodeClassOf&>(node), host);
}

std::unique_ptr<Peer> MakeButton(Node& node, QWidget* host) {
    if ((node.Style() & BS_TYPEMASK) == BS_GROUPBOX)
        return Make<GroupBoxPeer, ButtonNode>(node, host);
    return Make<ButtonPeer, ButtonNode>(node, host);
}

std::unique_ptr<Peer> MakeEdit(Node& node, QWidget* host) {
    return std::make_unique<EditPeer>(static_cast<EditNode&>(node), host);
}

std::unique_ptr<Peer> MakeDialog(Node& node, QWidget*) {
    return std::make_unique<DialogPeer>(node);
}

std::unique_ptr<Peer> MakeFrame(Node& node, QWidget*) {
    return std::make_unique<FramePeer>(node);
}

struct Maker {
    NodeClass nodeClass;
    std::unique_ptr<Peer> (*make)(Node& node, QWidget* host);
};

constexpr Maker kMakers[] = {
    {NodeClass::kFrame, &MakeFrame},
    {NodeClass::kDialog, &MakeDialog},
    {NodeClass::kBar, &Make<BarPeer, Node>},
    {NodeClass::kToolBar, &Make<ToolBarPeer, ToolBarNode>},
    {NodeClass::kStatic, &Make<StaticPeer, StaticNode>},
    {NodeClass::kButton, &MakeButton},
    {NodeClass::kEdit, &MakeEdit},
    {NodeClass::kComboBox, &Make<ComboBoxPeer, ComboBoxNode>},
    {NodeClass::kListBox, &Make<ListBoxPeer, ListBoxNode>},
    {NodeClass::kListView, &Make<ListViewPeer, ListViewNode>},
    {NodeClass::kSpin, &Make<SpinPeer, SpinNode>},
    {NodeClass::kProgress, &Make<ProgressPeer, ProgressNode>},
    {NodeClass::kOther, &Make<OtherPeer, Node>},
};

}  // namespace

void MakePeer(Node& node, QWidget* host) {
    if (node.GetView() || node.Destroyed()) return;
    for (const Maker& maker : kMakers) {
        if (maker.nodeClass != node.Class()) continue;
        auto made = maker.make(node, host);
        Peer* peer = made.get();
        node.SetView(std::move(made));
        peer->ShowAll();
        return;
    }
}

}  // namespace kv::qt
