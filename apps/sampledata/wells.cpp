#include "sampledata/wells.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <string_view>
#include <utility>

namespace kv::sample {
namespace {

constexpr std::uint64_t kSeed = 60'817'742;

constexpr std::array kWellStatus = {"COM", "PA", "PA", "TA", "ST", "DRL"};
constexpr std::array kProducts = {"OIL", "GAS", "G/O", "COND"};
constexpr std::array kPlanTypes = {"POE", "DOCD", "SPOE", "SDOC"};

/// The five digits of state and county that wells of an area carry ahead of their number.
std::string ApiPrefix(const Area& area) {
    const std::string_view code = area.code;
    const std::string place(code.substr(3));
    if (code.starts_with("42") || code.starts_with("430")) return "427" + place;
    if (code.starts_with("431") || code.starts_with("434")) return "177" + place;
    return "608" + place;
}

int WellsOn(const Lease& lease, Random& random) {
    if (lease.owners.empty() || lease.block->area->plan == 'E') return 0;
    if (lease.inForce) return random.Between(0, 8);
    return random.Chance(55) ? random.Between(1, 2) : 0;
}

/// Depth of the water in feet.
int WaterDepth(const Area& area, Random& random) {
    if (area.layout == Layout::kProtraction) return random.Between(400, 8500);
    const bool inshore = area.plan == 'L' || area.plan == 'T';
    return inshore ? random.Between(4, 60) : random.Between(20, 500);
}

}  // namespace

std::vector<Well> DrillWells(const std::vector<Lease>& leases) {
    Random random(kSeed);
    std::map<std::string, int> numbers;
    std::vector<Well> wells;
    for (const Lease& lease : leases) {
        const std::string prefix = ApiPrefix(*lease.block->area);
        const int count = WellsOn(lease, random);
        for (int i = 1; i <= count; ++i) {
            Well well;
            well.lease = &lease;
            well.apiNumber = prefix + Padded(++numbers[prefix], 5) + "00";
            well.name = lease.inForce && i > 1 ? "A" + Padded(i, 3) : Padded(i, 3);
            well.surface = PlaceInside(*lease.block, random);
            well.bottom = random.Chance(60) ? well.surface : PlaceInside(*lease.block, random);
            well.spud = lease.issued + random.Below(5 * kDaysPerYear);
            if (well.spud >= kToday) well.spud = lease.issued;
            wells.push_back(std::move(well));
        }
    }
    return wells;
}

void WriteWells(const std::vector<Well>& wells, Sink& sink) {
    Random random(kSeed + 1);
    sink.Begin(TableNamed("gulf_mexico_well_hdr"));
    for (const Well& well : wells) {
        sink.Add(Row{well.apiNumber, well.name, well.lease->number}
                 << BlockCells(*well.lease->block)
                 << Row{CompanyName(well.lease->operatingCompany), random.OneOf(kWellStatus)}
                 << PlaceCells(well.surface) << PlaceCells(well.bottom)
                 << Row{std::to_string(random.Between(4'000, 26'000)),
                        std::to_string(WaterDepth(*well.lease->block->area, random)),
                        DateText(well.spud)});
    }
    sink.End();

    sink.Begin(TableNamed("gulf_mexico_completion"));
    for (const Well& well : wells) {
        const int completions = random.Chance(35) ? random.Between(1, 2) : 0;
        for (int i = 1; i <= completions; ++i) {
            sink.Add(Row{well.apiNumber, std::to_string(i)}
                     << BlockCells(*well.lease->block)
                     << Row{random.OneOf(kProducts),
                            DateText(std::min(kToday, well.spud + random.Between(40, 400)))}
                     << PlaceCells(well.bottom));
        }
    }
    sink.End();
}

namespace {

/// One table of sites, that of the platforms first: what stands ahead of the block's cells and
/// behind them, ahead of the place.
struct SiteTable {
    const char* name;
    /// One in so many leases that have owners has a row.
    int oneIn;
    bool onlyInForce;
    std::function<Row(int number, const Lease&, Random&)> head;
    std::function<Row(const Lease&, Random&)> tail;
};

std::string Operator(const Lease& lease) {
    return CompanyName(lease.operatingCompany);
}

Row PlatformTail(const Lease& lease, Random& random) {
    const Day installed = std::min(kToday, lease.issued + random.Between(300, 3000));
    const Day removed = installed + random.Between(2000, 9000);
    return {Operator(lease), std::to_string(WaterDepth(*lease.block->area, random)),
            DateText(installed), removed < kToday ? DateText(removed) : ""};
}

const std::vector<SiteTable>& SiteTables() {
    static const std::vector<SiteTable> tables = {
        {"gulf_mexico_platform", 5, false,
         [](int number, const Lease&, Random& random) {
             return Row{std::to_string(20'000 + number),
                        std::string(1, static_cast<char>('A' + random.Below(6)))};
         },
         PlatformTail},
        {"gulf_mexico_apd", 5, true,
         [](int number, const Lease&, Random& random) {
             return Row{std::to_string(100'000 + number), Padded(random.Between(1, 20), 3)};
         },
         [](const Lease& lease, Random& random) {
             return Row{Operator(lease), DateText(kToday - random.Between(1, 700))};
         }},
        {"gulf_mexico_plan", 8, true,
         [](int number, const Lease&, Random& random) {
             return Row{(random.Chance(50) ? "N" : "S") + Padded(number, 5)};
         },
         [](const Lease& lease, Random& random) {
             return Row{random.OneOf(kPlanTypes), Operator(lease),
                        DateText(kToday - random.Between(1, 3000))};
         }},
        {"gulf_mexico_prospect", 12, true,
         [](int number, const Lease&, Random&) {
             return Row{"SAMPLE PROSPECT " + Padded(number, 4)};
         },
         [](const Lease& lease, Random&) { return Row{CompanyName(lease.owners[0].company)}; }},
        {"gulf_mexico_field", 15, true,
         [](int number, const Lease& lease, Random&) {
             const char* mmsCode = lease.block->area->mmsCode;
             return Row{std::string(*mmsCode ? mmsCode : lease.block->area->code) +
                        Padded((number + 2) / 3, 4)};
         },
         [](const Lease& lease, Random& random) {
             return Row{DateText(std::min(kToday, lease.issued + random.Between(100, 1500)))};
         }},
    };
    return tables;
}

std::vector<Site> WriteSiteTable(const SiteTable& table, const std::vector<Lease>& leases,
                                 Random& random, Sink& sink) {
    sink.Begin(TableNamed(table.name));
    std::vector<Site> sites;
    int number = 0;
    for (const Lease& lease : leases) {
        if (lease.owners.empty() || lease.block->area->plan == 'E' ||
            (table.onlyInForce && !lease.inForce) || random.Below(table.oneIn) != 0) {
            continue;
        }
        const GeoPoint place = PlaceInside(*lease.block, random);
        sink.Add(table.head(++number, lease, random)
                 << BlockCells(*lease.block) << table.tail(lease, random) << PlaceCells(place));
        sites.push_back({lease.block, place});
    }
    sink.End();
    return sites;
}

/// A line of shotpoints runs through the blocks of a number of leases in their order.
void WriteShotpoints(const std::vector<Lease>& leases, int scale, Random& random, Sink& sink) {
    const size_t lines = size_t{120} * static_cast<size_t>(scale);
    constexpr size_t kPointsPerLine = 60;
    sink.Begin(TableNamed("gulf_mexico_shotpoint2d"));
    for (size_t line = 0; line < lines; ++line) {
        const size_t first = line * (leases.size() / lines);
        const std::string name = "LINE-" + Padded(static_cast<int>(line) + 1, 4);
        for (size_t i = 0; i < kPointsPerLine && first + i < leases.size(); ++i) {
            const Block& block = *leases[first + i].block;
            sink.Add(Row{name, std::to_string(101 + i)} << BlockCells(block)
                                                        << PlaceCells(PlaceInside(block, random)));
        }
    }
    sink.End();
}

}  // namespace

std::vector<Site> WriteSites(const std::vector<Lease>& leases, int scale, Sink& sink) {
    Random random(kSeed + 2);
    std::vector<Site> platforms;
    for (const SiteTable& table : SiteTables()) {
        std::vector<Site> sites = WriteSiteTable(table, leases, random, sink);
        if (&table == &SiteTables().front()) platforms = std::move(sites);
    }
    WriteShotpoints(leases, scale, random, sink);
    return platforms;
}

}  // namespace kv::sample
