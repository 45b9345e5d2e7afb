#include "sampledata/leases.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <set>

namespace kv::sample {
namespace {

constexpr std::uint64_t kSeed = 27'000'001;
constexpr Day kFirstSale = -5558;  // 1954-10-13
constexpr int kAcresOfFullBlock = 5000;

constexpr std::array kInForce = {"UNIT",
                                 "PRODUCING",
                                 "OPERATIONS",
                                 "PRIMARY TERM",
                                 "PRIMARY TERM",
                                 "DIR SUS OF OPER",
                                 "PRIMARY DSO",
                                 "EXTENDED TERM-OP",
                                 "SUSPENS OF OPER",
                                 "SUSPENS OF PROD",
                                 "PRELIMINARY"};
constexpr std::array kInForceState = {"ACTIVE HBP", "ACTIVE 3 YRS", "ACTIVE 5 YRS"};
constexpr std::array kEnded = {"EXPIRED",
                               "EXPIRED",
                               "EXPIRED",
                               "EXPIRED",
                               "EXPIRED",
                               "EXPIRED",
                               "TERMINATED",
                               "TERMINATED",
                               "FORFEITED",
                               "REJECTED",
                               "CONSOLIDATED",
                               "NOT ISSUED",
                               "RELINQUISHED OR CANCELLED",
                               "RELINQUISHED OR CANCELLED",
                               "RELINQUISHED OR CANCELLED",
                               "RELINQUISHED OR CANCELLED"};
constexpr std::array kNeverLeased = {"NBL", "NBL", "NO INFO", "DEFERRED"};

bool IsStateWater(const Block& block) {
    return block.area->plan == 'L' || block.area->plan == 'T';
}

/// How many leases a block has had: few in the east.
int CountFor(const Block& block, Random& random) {
    if (block.area->plan == 'E') return random.Chance(22) ? random.Between(1, 2) : 0;
    constexpr std::array kLikely = {0, 0, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 4};
    return random.OneOf(kLikely);
}

std::vector<Interest> ShareOut(Random& random) {
    const int count = random.Chance(45) ? 1 : random.Between(2, 5);
    std::vector<Interest> owners;
    std::set<int> companies;
    int left = 100;
    for (int i = 1; i <= count; ++i) {
        int company = random.Below(kCompanies);
        while (!companies.insert(company).second)
            company = random.Below(kCompanies);
        const int percent = i == count ? left : random.Between(1, left - (count - i));
        owners.push_back({company, percent});
        left -= percent;
    }
    std::ranges::stable_sort(owners, std::greater{}, &Interest::percent);
    return owners;
}

/// The leases of one block, from the oldest to the last that begins before today.
void LeaseBlock(const Block& block, Random& random, std::vector<Lease>& leases) {
    Day day = kFirstSale + random.Below(35 * kDaysPerYear);
    for (int count = CountFor(block, random); count > 0 && day < kToday; --count) {
        Lease lease;
        lease.block = &block;
        lease.issued = day;
        const int term = kDaysPerYear * (random.Chance(60) ? 5 : random.Between(8, 10));
        lease.expires = day + term;
        lease.inForce = lease.expires > kToday || (count == 1 && random.Chance(30));
        lease.status = !lease.inForce        ? random.OneOf(kEnded)
                       : IsStateWater(block) ? random.OneOf(kInForceState)
                                             : random.OneOf(kInForce);
        lease.owners = ShareOut(random);
        lease.operatingCompany = random.OneOf(lease.owners).company;
        leases.push_back(std::move(lease));
        day += term + random.Below(6 * kDaysPerYear);
    }
}

/// Federal and state leases are numbered by the day, each kind by itself.
void NumberLeases(std::vector<Lease>& leases) {
    std::vector<size_t> order(leases.size());
    std::iota(order.begin(), order.end(), size_t{0});
    std::ranges::stable_sort(order, {}, [&](size_t i) { return leases[i].issued; });
    std::map<char, int> counters;
    for (const size_t i : order) {
        Lease& lease = leases[i];
        if (lease.owners.empty()) continue;
        const char plan = lease.block->area->plan;
        const bool texas = plan == 'T';
        const char* prefix = plan == 'L' ? "SL" : texas ? "M-" : "G";
        const int number = ++counters[IsStateWater(*lease.block) ? plan : 'F'];
        lease.number = prefix + Padded(number, texas ? 6 : 5);
    }
}

void WriteLeaseTable(const std::vector<Lease>& leases, Sink& sink) {
    Random random(kSeed + 1);
    sink.Begin(TableNamed("gulf_mexico_lease"));
    for (const Lease& lease : leases) {
        const Row head = Row{lease.number}
                         << BlockCells(*lease.block)
                         << Row{std::string(1, lease.block->area->plan), lease.status};
        if (lease.owners.empty()) {
            sink.Add(head << Row{"", "", "", "", "", "", ""});
            continue;
        }
        sink.Add(head << Row{CompanyName(lease.owners[0].company),
                             CompanyName(lease.operatingCompany), DateText(lease.issued),
                             DateText(lease.expires),
                             std::to_string(kAcresOfFullBlock - random.Below(200)),
                             random.Chance(50) ? "16.67" : "12.5",
                             std::to_string(random.Between(25, 90'000) * 1000)});
    }
    sink.End();
}

void WriteOwners(const std::vector<Lease>& leases, Sink& sink) {
    sink.Begin(TableNamed("gulf_mexico_lease_owner"));
    for (const Lease& lease : leases) {
        for (const Interest& owner : lease.owners) {
            sink.Add({lease.number, CompanyName(owner.company), std::to_string(owner.percent)});
        }
    }
    sink.End();
}

/// Who operates in which area.
void WriteOperators(const std::vector<Lease>& leases, Sink& sink) {
    std::map<std::pair<std::string, int>, int> counts;
    for (const Lease& lease : leases) {
        if (lease.inForce) ++counts[{lease.block->area->code, lease.operatingCompany}];
    }
    sink.Begin(TableNamed("gulf_mexico_operator"));
    for (const auto& [key, count] : counts) {
        sink.Add({key.first, CompanyName(key.second), std::to_string(count)});
    }
    sink.End();
}

/// The bids behind the leases of the last years.
void WriteBids(const std::vector<Lease>& leases, Sink& sink) {
    Random random(kSeed + 2);
    sink.Begin(TableNamed("gulf_mexico_bid"));
    for (const Lease& lease : leases) {
        if (lease.owners.empty() || lease.issued < kToday - 8 * kDaysPerYear) continue;
        int amount = random.Between(500, 60'000) * 1000;
        const int bids = random.Between(1, 3);
        for (int rank = 1; rank <= bids; ++rank) {
            const int bidder = rank == 1 ? lease.owners[0].company : random.Below(kCompanies);
            sink.Add(Row{lease.number} << BlockCells(*lease.block)
                                       << Row{CompanyName(bidder), DateText(lease.issued - 60),
                                              std::to_string(amount), std::to_string(rank)});
            amount -= amount / random.Between(2, 9);
        }
    }
    sink.End();
}

}  // namespace

std::vector<Lease> MakeLeases(const std::vector<Block>& blocks) {
    Random random(kSeed);
    std::vector<Lease> leases;
    for (const Block& block : blocks) {
        const size_t before = leases.size();
        LeaseBlock(block, random, leases);
        if (leases.size() == before && random.Chance(25)) {
            Lease& none = leases.emplace_back();
            none.block = &block;
            none.status = random.OneOf(kNeverLeased);
        }
    }
    NumberLeases(leases);
    return leases;
}

void WriteLeases(const std::vector<Lease>& leases, Sink& sink) {
    WriteCompanies(sink);
    WriteLeaseTable(leases, sink);
    WriteOwners(leases, sink);
    WriteOperators(leases, sink);
    WriteBids(leases, sink);
}

}  // namespace kv::sample
