#include "workbench/document/document_history.h"

#include <utility>

namespace workbench {

void DocumentHistory::Do(MapDocument next, const QString& label, const QString& series) {
    if (next == Current()) return;
    const bool goesOn = !series.isEmpty() && states_[at_].series == series;
    if (goesOn && !CanRedo() && !IsSaved()) {
        states_[at_].document = std::move(next);
    } else {
        Append({std::move(next), label, series});
    }
    emit Changed();
}

void DocumentHistory::Append(State state) {
    states_.resize(at_ + 1);
    if (saved_ > at_) saved_ = kNever;
    states_.push_back(std::move(state));
    ++at_;
    if (states_.size() <= kMostStates) return;
    states_.erase(states_.begin());
    --at_;
    if (saved_ != kNever) saved_ = saved_ == 0 ? kNever : saved_ - 1;
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
    states_.assign(1, {std::move(document), {}, {}});
    at_ = saved_ = 0;
    emit Changed();
}

void DocumentHistory::MarkSaved() {
    saved_ = at_;
    emit Changed();
}

}  // namespace workbench
