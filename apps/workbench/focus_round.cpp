#include "workbench/focus_round.h"

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <utility>

namespace workbench {

FocusRound::FocusRound(std::function<std::vector<FocusPart>()> parts, QObject* parent)
    : QObject(parent), parts_(std::move(parts)) {
    QApplication::instance()->installEventFilter(this);
}

/// Ahead of the library's windows, which take every key for their controls.
bool FocusRound::eventFilter(QObject* watched, QEvent* event) {
    const bool press = event->type() == QEvent::KeyPress;
    if (!press && event->type() != QEvent::ShortcutOverride) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool back = key.modifiers() == Qt::ShiftModifier;
    const bool ours = key.key() == Qt::Key_F6 && (back || key.modifiers() == Qt::NoModifier);
    if (!ours || !watched->isWidgetType()) return false;
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget()) return false;
    event->accept();
    if (press) Go(back ? -1 : 1);
    return true;
}

void FocusRound::Go(int step) {
    const std::vector<FocusPart> parts = parts_();
    const auto count = static_cast<int>(parts.size());
    if (count == 0) return;
    const auto at = std::find_if(parts.begin(), parts.end(),
                                 [](const FocusPart& part) { return part.holdsFocus(); });
    const auto here = static_cast<int>(at - parts.begin());
    // From nowhere on to the first, or back to the last.
    const int next = here == count ? (step > 0 ? 0 : count - 1) : (here + step + count) % count;
    parts[static_cast<std::size_t>(next)].takeFocus();
}

}  // namespace workbench
