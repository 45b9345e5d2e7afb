#pragma once

#include <QObject>
#include <QString>
#include <cstddef>
#include <vector>

#include "workbench/document/map_document.h"

namespace workbench {

/// The document as it is and as it was: each change is kept as a whole document with a label. What
/// a document shares, its states share.
class DocumentHistory : public QObject {
    Q_OBJECT
public:
    explicit DocumentHistory(QObject* parent = nullptr) : QObject(parent), states_(1) {}

    const MapDocument& Current() const { return states_[at_].document; }
    /// Makes `next` the current document; nothing where it is what there is. `label` says what was
    /// done, as in "Undo move text". Deeds of one `series` behind each other, such as those of a
    /// key that is held down, are undone as one. The oldest state goes when there are too many.
    void Do(MapDocument next, const QString& label, const QString& series = {});

    bool CanUndo() const { return at_ > 0; }
    bool CanRedo() const { return at_ + 1 < states_.size(); }
    /// Of what would be undone or done again; empty where there is nothing.
    QString UndoLabel() const;
    QString RedoLabel() const;
    void Undo();
    void Redo();

    /// Another document begins, as it is in its file, or nowhere yet.
    void Begin(MapDocument document);
    /// The current document is in its file now.
    void MarkSaved();
    bool IsSaved() const { return saved_ == at_; }

signals:
    /// The current document, what can be undone, or whether it is saved, is another one.
    void Changed();

private:
    struct State {
        MapDocument document;
        QString label;  ///< of what led here
        QString series;
    };
    static constexpr std::size_t kMostStates = 101;
    static constexpr std::size_t kNever = static_cast<std::size_t>(-1);

    void Append(State state);

    std::vector<State> states_;
    std::size_t at_ = 0;
    /// The state that is in the file; `kNever` where that one is gone.
    std::size_t saved_ = 0;
};

}  // namespace workbench
