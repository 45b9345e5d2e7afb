#pragma once

#include <QKeySequence>
#include <QObject>
#include <functional>
#include <vector>

class QAction;
class QMenu;
class QShortcut;
class QWidget;

namespace workbench {

class StatusLine;

/// The rows of the menus. One that would do nothing is disabled, and tells why in the status line,
/// whether it is pointed at or its key pressed.
class Commands : public QObject {
    Q_OBJECT
public:
    /// Why a command would do nothing now; an empty text where it acts.
    using WhyNot = std::function<QString()>;

    /// The keys are those of `window`, which owns the commands.
    Commands(QWidget& window, StatusLine& status);

    QAction* Add(QMenu& menu, const QString& text, const QKeySequence& key,
                 std::function<void()> act, WhyNot whyNot = {});
    /// Asks each command anew whether it acts.
    void Refresh();

private:
    struct Command {
        QAction* action;
        QShortcut* refusal;  ///< has the key while the action is disabled
        WhyNot whyNot;
    };

    QWidget& window_;
    StatusLine& status_;
    std::vector<Command> commands_;  ///< those that may do nothing
};

}  // namespace workbench
