#include "qt/map/map_view.h"

namespace kv::map {

namespace {

/// Pixels for a map unit: a pixel is then some half a metre.
constexpr double kLargestScale = 200'000;
constexpr double kSmallestExtent = 1e-3;
/// Zoomed out as far as it goes, the map has this part of the view's extent free at each side.
constexpr double kMostRoom = 0.3;
/// From the middle of the earth to its edges, east and west, and on the map north and south.
constexpr double kHalfEarth = 180;

/// Such that `half` of the view on both sides stays within the limits, where it can.
double Within(double middle, double half, double low, double high) {
    return std::clamp(middle, std::min(low + half, (low + high) / 2),
                      std::max(high - half, (low + high) / 2));
}

}  // namespace

void MapView::Resize(int width, int height) {
    width_ = std::max(1, width);
    height_ = std::max(1, height);
    Limit();
}

void MapView::SetBounds(const Box& bounds) {
    if (bounds.Empty()) return;
    bounds_ = bounds;
    Limit();
}

Box MapView::Visible() const {
    Box box;
    box.Include(ToMap({0, 0}));
    box.Include(ToMap({static_cast<double>(width_), static_cast<double>(height_)}));
    return box;
}

double MapView::ScaleFor(const Box& box, double room) const {
    const double part = 1 - 2 * room;
    return std::min(width_ * part / std::max(box.Width(), kSmallestExtent),
                    height_ * part / std::max(box.Height(), kSmallestExtent));
}

void MapView::Limit() {
    Box earth{-kHalfEarth, -kHalfEarth, kHalfEarth, kHalfEarth};
    earth.Include(bounds_);
    const double least = std::max({std::min(ScaleFor(bounds_, kMostRoom), kLargestScale),
                                   width_ / earth.Width(), height_ / earth.Height()});
    scale_ = std::clamp(scale_, least, kLargestScale);
    middle_.x = std::clamp(middle_.x, bounds_.minX, bounds_.maxX);
    middle_.y = std::clamp(middle_.y, bounds_.minY, bounds_.maxY);
    middle_.x = Within(middle_.x, width_ / 2.0 / scale_, earth.minX, earth.maxX);
    middle_.y = Within(middle_.y, height_ / 2.0 / scale_, earth.minY, earth.maxY);
}

void MapView::Show(const Box& box, double room) {
    if (box.Empty()) return;
    SetMiddle(box.Middle(), ScaleFor(box, room));
}

void MapView::Zoom(const ScreenPoint& at, double factor) {
    const Point fixed = ToMap(at);
    scale_ *= factor;
    Limit();
    middle_.x = fixed.x - (at.x - width_ / 2.0) / scale_;
    middle_.y = fixed.y + (at.y - height_ / 2.0) / scale_;
    Limit();
}

void MapView::Pan(double right, double down) {
    middle_.x -= right / scale_;
    middle_.y += down / scale_;
    Limit();
}

void MapView::SetMiddle(const Point& middle, double scale) {
    middle_ = middle;
    scale_ = scale;
    Limit();
}

}  // namespace kv::map
