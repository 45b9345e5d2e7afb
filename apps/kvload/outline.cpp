#include "kvload/outline.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kvload {
namespace {

/// Above 0 where `c` lies to the left of the way from `a` to `b`.
double Side(const Spot& a, const Spot& b, const Spot& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

struct Edge {
    Spot from;
    Spot to;
    double West() const { return std::min(from.x, to.x); }
    double East() const { return std::max(from.x, to.x); }
};

bool OnBothSides(double a, double b) {
    return (a > 0 && b < 0) || (a < 0 && b > 0);
}

bool Cross(const Edge& a, const Edge& b) {
    return OnBothSides(Side(a.from, a.to, b.from), Side(a.from, a.to, b.to)) &&
           OnBothSides(Side(b.from, b.to, a.from), Side(b.from, b.to, a.to));
}

Spot Meeting(const Edge& a, const Edge& b) {
    const double from = Side(b.from, b.to, a.from);
    const double to = Side(b.from, b.to, a.to);
    const double part = from / (from - to);
    return {a.from.x + part * (a.to.x - a.from.x), a.from.y + part * (a.to.y - a.from.y)};
}

void DropRepeats(Spots& run) {
    run.erase(std::unique(run.begin(), run.end()), run.end());
}

/// Puts the other part at the end of the line that it meets. False where they do not meet.
bool Append(Spots& line, Spots& other) {
    const auto meets = [&](const Spot& end) { return end == other.front() || end == other.back(); };
    if (!meets(line.back()) && !meets(line.front())) return false;
    if (!meets(line.back())) std::ranges::reverse(line);
    if (line.back() != other.front()) std::ranges::reverse(other);
    line.insert(line.end(), other.begin() + 1, other.end());
    return true;
}

}  // namespace

double TwiceArea(const Spots& ring) {
    double sum = 0.0;
    for (size_t i = 0; i + 1 < ring.size(); ++i)
        sum += Side(ring.front(), ring[i], ring[i + 1]);
    return sum;
}

Spots Tidied(Spots ring) {
    DropRepeats(ring);
    while (ring.size() > 1 && ring.front() == ring.back())
        ring.pop_back();
    const double area = TwiceArea(ring);
    if (ring.size() < 3 || area == 0.0) return {};
    // The corner that comes first stays first.
    if (area > 0.0) std::reverse(ring.begin() + 1, ring.end());
    return ring;
}

std::optional<Spot> Crossing(const Spots& ring) {
    std::vector<Edge> edges;
    for (size_t i = 0; i < ring.size(); ++i)
        edges.push_back({ring[i], ring[(i + 1) % ring.size()]});
    std::ranges::sort(edges, {}, &Edge::West);
    for (size_t i = 0; i < edges.size(); ++i)
        for (size_t j = i + 1; j < edges.size() && edges[j].West() <= edges[i].East(); ++j)
            if (Cross(edges[i], edges[j])) return Meeting(edges[i], edges[j]);
    return std::nullopt;
}

bool IsTorn(const Spots& run) {
    constexpr double kHalfTurn = 180.0;
    const auto leaps = [](const Spot& a, const Spot& b) { return std::abs(b.x - a.x) > kHalfTurn; };
    return std::ranges::adjacent_find(run, leaps) != run.end();
}

double LengthOf(const Spots& line) {
    double length = 0.0;
    for (size_t i = 0; i + 1 < line.size(); ++i)
        length += std::hypot(line[i + 1].x - line[i].x, line[i + 1].y - line[i].y);
    return length;
}

std::vector<Spots> Joined(std::vector<Spots> parts) {
    std::vector<Spots> lines;
    for (Spots& part : parts)
        DropRepeats(part);
    std::erase_if(parts, [](const Spots& part) { return part.size() < 2; });
    while (!parts.empty()) {
        Spots line = std::move(parts.front());
        parts.erase(parts.begin());
        for (size_t i = 0; i < parts.size();) {
            if (!Append(line, parts[i])) {
                ++i;
                continue;
            }
            parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(i));
            i = 0;
        }
        lines.push_back(std::move(line));
    }
    std::ranges::sort(lines, std::ranges::greater(), LengthOf);
    return lines;
}

}  // namespace kvload
