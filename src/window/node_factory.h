#pragma once

#include <memory>

#include "base/export.h"
#include "base/types.h"
#include "window/node_class.h"

class CWnd;

/// How the nodes of controls, and the handles that fit them, are made: a table in which each kind
/// of control puts itself.
namespace kv {

class Node;

struct Factory {
    std::shared_ptr<Node> (*makeNode)(int id, DWORD style) = nullptr;
    /// A handle for look-ups, attached to none.
    std::unique_ptr<CWnd> (*makeHandle)() = nullptr;
};

/// Null for a class that nobody put in the table: its windows are plain ones.
const Factory* FindFactory(NodeClass nodeClass);

KVGUICTL_API void RegisterFactory(NodeClass nodeClass, const Factory& factory);

/// Puts a kind of control in the table; defined as a static object beside the control.
template <typename ControlNode, typename Handle>
class RegisterControl {
public:
    explicit RegisterControl(NodeClass nodeClass) {
        RegisterFactory(nodeClass, {MakeControlNode, MakeControlHandle});
    }

private:
    static std::shared_ptr<Node> MakeControlNode(int id, DWORD style) {
        return std::make_shared<ControlNode>(id, style);
    }
    static std::unique_ptr<CWnd> MakeControlHandle() { return std::make_unique<Handle>(); }
};

}  // namespace kv
