#pragma once

#include <QObject>
#include <functional>
#include <vector>

namespace workbench {

/// One part of what the user works on: a pane, or a window beside the main one.
struct FocusPart {
    std::function<bool()> holdsFocus;
    std::function<void()> takeFocus;
};

/// F6 takes the keyboard on from part to part, and from the last to the first; Shift+F6 back.
/// Modal windows keep it.
class FocusRound : public QObject {
    Q_OBJECT
public:
    /// `parts` answers those that can be seen, in their order.
    explicit FocusRound(std::function<std::vector<FocusPart>()> parts, QObject* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Go(int step);

    std::function<std::vector<FocusPart>()> parts_;
};

}  // namespace workbench
