#include "workbench/document/document_history.h"

#include <utility>

namespace workbench {

void DocumentHistory::Do(MapDocument next, const QString& label) {
    if (next == Current()) return;
    states_.resize(at_ + 1);
    if (saved_ > at_) saved_ = kNever;
    states_.push_back({std::move(next), label});
    ++at_;
    emit Changed();
}

QString DocumentHistory::UndoLabel() const {
    return CanUndo() ? states_[at_].label : QString();
}

QString DocumentHistory::RedoLabel() const {
    return CanRedo() ? states_[at_ + 1].label : QString();
}

void DocumentHistory::Undo() {
    if (!CanUndo()) return;
    --at_;
    emit Changed();
}

void DocumentHistory::Redo() {
    if (!CanRedo()) return;
    ++at_;
    emit Changed();
}

void DocumentHistory::Begin(MapDocument document) {
    states_.assign(1, {std::move(document), {}});
    at_ = saved_ = 0;
    emit Changed();
}

void DocumentHistory::MarkSaved() {
    saved_ = at_;
    emit Changed();
}

}  // namespace workbench
