#pragma once

#include <QObject>
#include <functional>
#include <optional>

#include "workbench/map/map_model.h"

class QLabel;
class QProgressBar;
class QStatusBar;
class QToolButton;

namespace workbench {

/// A place in the units of a projection, as text; `area` is the one at the place, or null. Empty
/// where there is nothing to say.
using ProjectedText = std::function<QString(const Place& place, const AreaMap* area)>;

/// What the status bar of the main window says: what goes on, and where the mouse is on the map.
class StatusLine : public QObject {
    Q_OBJECT
public:
    /// `bar` is not owned, and owns the line.
    explicit StatusLine(QStatusBar& bar);

    /// What fills the field of projected coordinates; without a function there is no such field.
    void SetProjected(ProjectedText projected);

    /// What the mouse does on the map just now; empty where it does what it always does.
    void ShowMode(const QString& mode);
    QString Mode() const;

    void ShowPlace(const Place& place, const std::optional<BlockRef>& block);
    void ShowNoPlace();
    void ShowProgress(const QString& title, int done, int total);
    void HideProgress();
    void Say(const QString& text);
    /// What was said is of no use any more.
    void Clear();
    /// What is being said.
    QString Said() const;

signals:
    void CancelPressed();

private:
    QLabel* AddField(const QString& widest, const QString& name);

    QStatusBar& bar_;
    QLabel* mode_;
    QLabel* work_;
    QProgressBar* progress_;
    QToolButton* cancel_;
    QLabel* block_;
    QLabel* projected_;
    QLabel* degrees_;
    QLabel* decimal_;
    ProjectedText project_;
};

}  // namespace workbench
