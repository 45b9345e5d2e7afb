#include "workbench/commands.h"

#include <QAction>
#include <QMenu>
#include <QShortcut>
#include <utility>

#include "workbench/status_line.h"

namespace workbench {

Commands::Commands(QWidget& window, StatusLine& status)
    : QObject(&window), window_(window), status_(status) {}

QAction* Commands::Add(QMenu& menu, const QString& text, const QKeySequence& key,
                       std::function<void()> act, WhyNot whyNot) {
    QAction* action = menu.addAction(text);
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, [this, act = std::move(act)] {
        status_.Clear();
        act();
    });
    if (!whyNot) return action;
    menu.setToolTipsVisible(true);
    auto* refusal = new QShortcut(key, &window_);
    connect(refusal, &QShortcut::activated, this, [this, whyNot] { status_.Say(whyNot()); });
    commands_.push_back({action, refusal, std::move(whyNot)});
    return action;
}

void Commands::Refresh() {
    for (const Command& command : commands_) {
        const QString reason = command.whyNot();
        command.action->setEnabled(reason.isEmpty());
        command.refusal->setEnabled(!reason.isEmpty());
        command.action->setStatusTip(reason);
        command.action->setToolTip(reason);
    }
}

}  // namespace workbench
