#include "sampledata/pipelines.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <span>

#include "sampledata/names.h"

namespace kv::sample {
namespace {

constexpr std::uint64_t kSeed = 15'000;
/// In each region.
constexpr int kSegments = 15'000;
/// A line of its own all the way ashore has one in so many segments.
constexpr int kOneTrunkIn = 60;
/// Vertices stand so far apart at least.
constexpr std::int64_t kVertexDistance = kUnitsPerDegree / 25;
constexpr int kMostParts = 8;

constexpr std::array kStatus = {"ACT", "ABN",  "A/C", "CNCL", "OUT",  "O/C",  "RELQ", "RR",
                                "REM", "PREM", "RA",  "RC",   "PROP", "COMB", "PABN"};
constexpr std::array kProduct = {"G/O",  "O/W",  "BLKO", "BO/L", "BO/S", "COND", "OIL",  "BG/S",
                                 "BLKG", "G/C",  "GAS",  "LPRO", "BLGH", "ACID", "AIR",  "CHEM",
                                 "DIES", "FLG",  "H2O",  "INU",  "LGER", "LIFT", "METH", "NGER",
                                 "SERV", "SPLY", "SPRE", "SULF", "TEST", "TOW",  "UMB"};
constexpr std::array kSizes = {"2.375", "4.5", "6.625", "8.625", "12.75", "16", "20", "24", "36"};

struct Segment {
    int number = 0;
    const Block* from = nullptr;
    const Block* to = nullptr;
    std::vector<GeoPoint> vertices;
};

/// Square of the distance. A degree of longitude is some seven eighths of one of latitude here.
std::int64_t SquaredDistance(const GeoPoint& a, const GeoPoint& b) {
    const std::int64_t up = a.lat - b.lat;
    const std::int64_t right = (a.lon - b.lon) * 7 / 8;
    return up * up + right * right;
}

/// A platform, with where its lines may go.
struct Junction {
    Site site;
    const Site* shore = nullptr;  ///< the nearest place ashore
    std::int64_t toShore = 0;     ///< square of the distance
    /// The nearest of those that are nearer to the coast, the very nearest first; where there is
    /// none so near, the coast.
    std::array<const Site*, 3> next{};
};

/// One place for lines to come ashore in each area of bays and state waters.
std::vector<Site> PlacesAshore(std::span<const Block> blocks, Random& random) {
    std::vector<Site> places;
    for (std::size_t first = 0; first < blocks.size();) {
        std::size_t end = first;
        while (end < blocks.size() && blocks[end].area == blocks[first].area)
            ++end;
        const char plan = blocks[first].area->plan;
        if (plan == 'L' || plan == 'T') {
            const Block& block = blocks[first + random.Below(static_cast<int>(end - first))];
            places.push_back({&block, PlaceInside(block, random)});
        }
        first = end;
    }
    return places;
}

void FindShore(Junction& junction, const std::vector<Site>& shore) {
    for (const Site& place : shore) {
        const std::int64_t distance = SquaredDistance(junction.site.place, place.place);
        if (junction.shore && distance >= junction.toShore) continue;
        junction.shore = &place;
        junction.toShore = distance;
    }
}

/// Those ahead of `at` are nearer to the coast.
void FindNext(std::vector<Junction>& junctions, std::size_t at) {
    Junction& junction = junctions[at];
    std::array<std::int64_t, 3> distances;
    distances.fill(junction.toShore);
    junction.next.fill(junction.shore);
    for (std::size_t other = 0; other < at; ++other) {
        const Site& site = junctions[other].site;
        const std::int64_t distance = SquaredDistance(junction.site.place, site.place);
        for (std::size_t place = 0; place < distances.size(); ++place) {
            if (distance >= distances[place]) continue;
            std::move_backward(distances.begin() + place, distances.end() - 1, distances.end());
            std::move_backward(junction.next.begin() + place, junction.next.end() - 1,
                               junction.next.end());
            distances[place] = distance;
            junction.next[place] = &site;
            break;
        }
    }
}

std::vector<Junction> MakeJunctions(std::span<const Site> platforms,
                                    const std::vector<Site>& shore) {
    std::vector<Junction> junctions;
    for (const Site& platform : platforms) {
        junctions.push_back({platform});
        FindShore(junctions.back(), shore);
    }
    std::stable_sort(junctions.begin(), junctions.end(),
                     [](const Junction& a, const Junction& b) { return a.toShore < b.toShore; });
    for (std::size_t at = 0; at < junctions.size(); ++at)
        FindNext(junctions, at);
    return junctions;
}

/// Between two vertices that are far apart a line bends a little.
Segment LaySegment(int number, const Site& from, const Site& to, Random& random) {
    const std::int64_t up = to.place.lat - from.place.lat;
    const std::int64_t right = to.place.lon - from.place.lon;
    const std::int64_t length = std::max(std::abs(up), std::abs(right));
    const int parts =
        static_cast<int>(std::clamp<std::int64_t>(length / kVertexDistance + 1, 1, kMostParts));
    const int bend = static_cast<int>(std::min<std::int64_t>(length / parts / 12, 40'000));
    Segment segment{number, from.block, to.block, {from.place}};
    for (int part = 1; part < parts; ++part) {
        segment.vertices.push_back(
            {from.place.lat + up * part / parts + random.Between(-bend, bend),
             from.place.lon + right * part / parts + random.Between(-bend, bend)});
    }
    segment.vertices.push_back(to.place);
    return segment;
}

/// In one region each platform has a line towards the coast. The others lie beside those, lead
/// elsewhere, or all the way ashore.
void LaySegments(std::span<const Block> blocks, std::span<const Site> platforms, Random& random,
                 std::vector<Segment>& segments) {
    const std::vector<Site> shore = PlacesAshore(blocks, random);
    const std::vector<Junction> junctions = MakeJunctions(platforms, shore);
    for (std::size_t at = 0; at < kSegments; ++at) {
        const int number = static_cast<int>(segments.size()) + 1;
        const bool first = at < junctions.size();
        const Junction& from = first ? junctions[at] : random.OneOf(junctions);
        const bool trunk = !first && random.Below(kOneTrunkIn) == 0;
        const Site& to = trunk ? *from.shore : *(first ? from.next[0] : random.OneOf(from.next));
        segments.push_back(LaySegment(number, from.site, to, random));
    }
}

/// The things of a region, of those that are in the order of the regions.
template <typename Thing, typename BlockOf>
std::span<const Thing> InRegion(const std::vector<Thing>& things, int region,
                                const BlockOf& blockOf) {
    const auto regionOf = [&](const Thing& thing) { return blockOf(thing).area->region; };
    const auto found = std::ranges::equal_range(things, region, {}, regionOf);
    return {found.begin(), found.end()};
}

/// No line leads from one region to another.
std::vector<Segment> LaySegments(const std::vector<Block>& blocks,
                                 const std::vector<Site>& platforms) {
    Random random(kSeed);
    std::vector<Segment> segments;
    for (int region = 0; region <= blocks.back().area->region; ++region) {
        LaySegments(InRegion(
                        blocks, region, [](const Block& block) -> auto& { return block; }),
                    InRegion(
                        platforms, region, [](const Site& site) -> auto& { return *site.block; }),
                    random, segments);
    }
    return segments;
}

}  // namespace

void WritePipelines(const std::vector<Block>& blocks, const std::vector<Site>& platforms,
                    Sink& sink) {
    const std::vector<Segment> segments = LaySegments(blocks, platforms);
    Random random(kSeed + 1);
    sink.Begin(TableNamed("gulf_mexico_pipeline"));
    for (const Segment& segment : segments) {
        const char* status = random.Chance(40) ? kStatus[0] : random.OneOf(kStatus);
        sink.Add(Row{std::to_string(segment.number), CompanyName(random.Below(kCompanies)), status,
                     random.OneOf(kProduct), random.OneOf(kSizes)}
                 << BlockCells(*segment.from) << BlockCells(*segment.to)
                 << Row{DateText(kToday - random.Between(30, 50 * kDaysPerYear))});
    }
    sink.End();

    sink.Begin(TableNamed("gulf_mexico_pipeline_pt"));
    for (const Segment& segment : segments) {
        int point = 0;
        for (const GeoPoint& vertex : segment.vertices) {
            sink.Add(Row{std::to_string(segment.number), std::to_string(++point)}
                     << PlaceCells(vertex));
        }
    }
    sink.End();
}

}  // namespace kv::sample
