#include "qt/map/feature_layer.h"

namespace kv::map {

namespace {

/// What begins at each number ends where the next begins, the last at `end`.
std::size_t EndOf(const std::vector<std::uint32_t>& starts, std::size_t number, std::size_t end) {
    return number + 1 < starts.size() ? starts[number + 1] : end;
}

}  // namespace

void FeatureLayer::Begin(std::string_view label, std::uint8_t kind) {
    pointStarts_.push_back(static_cast<std::uint32_t>(points_.size()));
    labelStarts_.push_back(static_cast<std::uint32_t>(labels_.size()));
    labels_ += label;
    kinds_.push_back(kind);
    boxes_.emplace_back();
}

void FeatureLayer::Add(const Point& point) {
    points_.push_back(point);
    boxes_.back().Include(point);
}

void FeatureLayer::Finish() {
    points_.shrink_to_fit();
    pointStarts_.shrink_to_fit();
    labels_.shrink_to_fit();
    labelStarts_.shrink_to_fit();
    kinds_.shrink_to_fit();
    boxes_.shrink_to_fit();
    bounds_ = {};
    for (const Box& box : boxes_)
        bounds_.Include(box);
    index_ = GridIndex(boxes_);
}

std::span<const Point> FeatureLayer::Points(std::size_t number) const {
    const std::size_t start = pointStarts_[number];
    return std::span(points_).subspan(start, EndOf(pointStarts_, number, points_.size()) - start);
}

std::string_view FeatureLayer::Label(std::size_t number) const {
    const std::size_t start = labelStarts_[number];
    return std::string_view(labels_).substr(start,
                                            EndOf(labelStarts_, number, labels_.size()) - start);
}

int FeatureLayer::Find(std::string_view label) const {
    for (std::size_t number = 0; number < Size(); ++number) {
        if (Label(number) == label) return static_cast<int>(number);
    }
    return -1;
}

bool Inside(std::span<const Point> outline, const Point& point) {
    bool inside = false;
    for (std::size_t i = 0, j = outline.size() - 1; i < outline.size(); j = i++) {
        const Point& a = outline[i];
        const Point& b = outline[j];
        if ((a.y > point.y) == (b.y > point.y)) continue;
        if (point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) inside = !inside;
    }
    return inside;
}

double SignedArea(std::span<const Point> outline) {
    if (outline.empty()) return 0;
    const Point origin = outline.front();
    double twice = 0;
    for (std::size_t i = 0, j = outline.size() - 1; i < outline.size(); j = i++) {
        twice += (outline[j].x - origin.x) * (outline[i].y - origin.y) -
                 (outline[i].x - origin.x) * (outline[j].y - origin.y);
    }
    return twice / 2;
}

}  // namespace kv::map
