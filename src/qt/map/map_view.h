#pragma once

#include "base/export.h"
#include "qt/map/geometry.h"

namespace kv::map {

/// A place on the screen, in pixels from the top left corner of the map's widget.
struct ScreenPoint {
    double x = 0;
    double y = 0;
};

/// What part of the map is seen, and how large.
class KVGUICTL_API MapView {
public:
    /// In pixels; at least one by one. The middle stays in the middle.
    void Resize(int width, int height);
    int Width() const { return width_; }
    int Height() const { return height_; }

    /// How far the view can be moved and zoomed out: the middle stays in `bounds`, all of them can
    /// be seen with some room around, and nothing that is off the earth.
    void SetBounds(const Box& bounds);

    /// Pixels for a map unit.
    double Scale() const { return scale_; }
    Point Middle() const { return middle_; }
    ScreenPoint ToScreen(const Point& point) const {
        return {(point.x - middle_.x) * scale_ + width_ / 2.0,
                (middle_.y - point.y) * scale_ + height_ / 2.0};
    }
    Point ToMap(const ScreenPoint& at) const {
        return {middle_.x + (at.x - width_ / 2.0) / scale_,
                middle_.y - (at.y - height_ / 2.0) / scale_};
    }
    Box Visible() const;

    /// Shows all of a box. `room` is the part of the view's width and height that stays free at
    /// each side.
    void Show(const Box& box, double room = 0.05);
    /// Shows all there is.
    void ShowAll() { Show(bounds_); }
    /// Zooms in by `factor`, out below 1; the place under `at` stays there.
    void Zoom(const ScreenPoint& at, double factor);
    /// Moves the map by so many pixels to the right and down.
    void Pan(double right, double down);
    void SetMiddle(const Point& middle, double scale);

private:
    double ScaleFor(const Box& box, double room) const;
    void Limit();

    int width_ = 1;
    int height_ = 1;
    Box bounds_{-180, -85, 180, 85};
    Point middle_;
    double scale_ = 1;
};

}  // namespace kv::map
