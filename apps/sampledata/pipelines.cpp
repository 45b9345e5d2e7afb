#include "sampledata/pipelines.h"

#include <algorithm>
#include <array>

#include "sampledata/names.h"

namespace kv::sample {
namespace {

constexpr std::uint64_t kSeed = 15'000;
constexpr int kSegments = 15'000;
/// A segment ends at most so many blocks away from where it begins, in the order of the blocks.
constexpr int kReach = 45;

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

/// Part of the way between two places, with a bend.
GeoPoint OnTheWay(const GeoPoint& from, const GeoPoint& to, int part, int parts, Random& random) {
    constexpr int kBend = 40'000;
    return {from.lat + (to.lat - from.lat) * part / parts + random.Between(-kBend, kBend),
            from.lon + (to.lon - from.lon) * part / parts + random.Between(-kBend, kBend)};
}

Segment LaySegment(int number, const std::vector<const Block*>& blocks, Random& random) {
    const int count = static_cast<int>(blocks.size());
    const int from = random.Below(count);
    const int to = std::clamp(from + random.Between(-kReach, kReach), 0, count - 1);
    Segment segment{number, blocks[from], blocks[to], {}};
    if (segment.from->area != segment.to->area) segment.to = segment.from;

    const GeoPoint start = PlaceInside(*segment.from, random);
    const GeoPoint end = PlaceInside(*segment.to, random);
    segment.vertices.push_back(start);
    const int parts = random.Between(1, 8);
    for (int part = 1; part < parts; ++part) {
        segment.vertices.push_back(OnTheWay(start, end, part, parts, random));
    }
    segment.vertices.push_back(end);
    return segment;
}

std::vector<Segment> LaySegments(const std::vector<Block>& blocks) {
    std::vector<const Block*> producing;
    for (const Block& block : blocks) {
        if (block.area->plan != 'E') producing.push_back(&block);
    }
    Random random(kSeed);
    std::vector<Segment> segments;
    for (int i = 1; i <= kSegments; ++i)
        segments.push_back(LaySegment(i, producing, random));
    return segments;
}

}  // namespace

void WritePipelines(const std::vector<Block>& blocks, Sink& sink) {
    const std::vector<Segment> segments = LaySegments(blocks);
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
