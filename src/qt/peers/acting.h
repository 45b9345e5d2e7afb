#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "window/node.h"

namespace kv::qt {

/// Something that a person did: acts, if the node still lives, and lets the layer settle.
void Act(const std::weak_ptr<Node>& node, const std::function<void(Node&)>& action);
/// What every action ends with.
void Settle();
/// Hides a widget and deletes it when no action is under way, which may be one of its own.
void LetGo(QWidget* widget);
/// Lets the layer settle as soon as the event loop runs.
void SettleSoon();

/// Who runs the event loops: the desktop.
class Loops {
public:
    virtual ~Loops() = default;
    /// Lets the loops of dialogs go that have ended.
    virtual void LeaveEnded() = 0;
    /// Calls `Settle` as soon as the event loop runs.
    virtual void Wake() = 0;
};
/// Not owned; null when it goes.
void SetLoops(Loops* loops);

}  // namespace kv::qt
