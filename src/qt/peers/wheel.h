#pragma once

#include <QWheelEvent>

namespace kv::qt {

/// Counts the notches by which the mouse wheel was turned; a fine wheel comes in parts of them.
class WheelNotches {
public:
    /// Whole notches since the last call, up being positive.
    int Take(const QWheelEvent& event) {
        constexpr int kNotch = 120;
        turned_ += event.angleDelta().y();
        const int notches = turned_ / kNotch;
        turned_ -= notches * kNotch;
        return notches;
    }

private:
    int turned_ = 0;
};

}  // namespace kv::qt
