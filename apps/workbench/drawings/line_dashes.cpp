#include "workbench/drawings/line_dashes.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace workbench {

namespace {

/// Of a swatch's 20 pixels: a dash and the gap behind it, by turns.
constexpr double kUnit = 20;
/// A swatch draws its dashes so thick.
constexpr double kSwatchThickness = 4;
using Pattern = std::array<double, 6>;
constexpr std::array<Pattern, 5> kPatterns = {
    {{1, 0}, {0.5, 0.5}, {0.1, 0.1}, {0.5, 0.1, 0.1, 0.1}, {0.5, 0.1, 0.1, 0.1, 0.1, 0.1}}};

/// The part of a side within a rectangle, from 0 to 1; empty where first is above last.
struct Part {
    double first = 0;
    double last = 1;
};

Part Within(const QPointF& from, const QPointF& to, const QRectF& seen) {
    Part part;
    const auto limit = [&](double start, double by, double low, double high) {
        if (by == 0) {
            if (start < low || start > high) part.last = -1;
            return;
        }
        const auto [a, b] = std::minmax({(low - start) / by, (high - start) / by});
        part.first = std::max(part.first, a);
        part.last = std::min(part.last, b);
    };
    limit(from.x(), to.x() - from.x(), seen.left(), seen.right());
    limit(from.y(), to.y() - from.y(), seen.top(), seen.bottom());
    return part;
}

/// Goes along a line and tells where dashes begin and end.
class Dasher {
public:
    Dasher(const Pattern& pattern, double unit) : pattern_(pattern), unit_(unit) {
        for (const double part : pattern)
            whole_ += part * unit;
    }
    bool Draws() const { return at_ % 2 == 0; }
    double Left() const { return pattern_[at_] * unit_ - done_; }
    /// Not beyond the end of the dash or the gap.
    void Go(double length) {
        done_ += length;
        if (done_ >= pattern_[at_] * unit_ - 1e-9) Next();
    }
    /// However far.
    void Leap(double length) {
        for (length = std::fmod(length, whole_); length > 0;) {
            const double step = std::min(length, Left());
            Go(step);
            length -= step;
        }
    }

private:
    void Next() {
        done_ = 0;
        do {
            at_ = (at_ + 1) % pattern_.size();
        } while (pattern_[at_] == 0);
    }

    const Pattern& pattern_;
    double unit_;
    double whole_ = 0;
    std::size_t at_ = 0;
    double done_ = 0;
};

}  // namespace

QPainterPath DashesOf(std::span<const QPointF> points, int type, int width, double pixel,
                      const QRectF& seen) {
    QPainterPath path;
    if (IsBlank(type) || points.empty()) return path;
    const double unit = std::max(1.0, LineThickness(width) / kSwatchThickness) * kUnit * pixel;
    Dasher dasher(kPatterns[static_cast<std::size_t>(type)], unit);
    // Whether the dash goes on from where the path has come to.
    bool goesOn = false;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const QPointF by = points[i] - points[i - 1];
        const double length = std::hypot(by.x(), by.y());
        const Part part = Within(points[i - 1], points[i], seen);
        if (!(length > 0)) continue;
        if (part.first > part.last) {
            dasher.Leap(length);
            goesOn = false;
            continue;
        }
        double done = part.first * length;
        if (done > 0) {
            dasher.Leap(done);
            goesOn = false;
        }
        const double end = part.last * length;
        while (end - done > 1e-9) {
            const double step = std::min(dasher.Left(), end - done);
            const bool draws = dasher.Draws();
            if (draws && !goesOn) path.moveTo(points[i - 1] + by * (done / length));
            done += step;
            if (draws) path.lineTo(points[i - 1] + by * (done / length));
            dasher.Go(step);
            goesOn = draws && dasher.Draws();
        }
        if (part.last < 1) {
            dasher.Leap(length - done);
            goesOn = false;
        }
    }
    return path;
}

}  // namespace workbench
