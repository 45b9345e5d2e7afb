#include "ratio.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <utility>
#include <vector>

namespace bench {
namespace {

/// Ours and the peer's take turns, so that what slows the machine for a while slows both.
struct Division {
    int turns;
    double secondsPerTurn;
};
constexpr Division DivisionInto(Turns turns) {
    return turns == Turns::kLong ? Division{7, 0.3} : Division{21, 0.1};
}

const std::string kOurs = "/ours";
const std::string kPeer = "/peer";

struct Pair {
    std::string name;
    double bound;
    Clock clock;
    std::size_t turns;
    std::vector<double> ours{};  ///< nanoseconds, by turn
    std::vector<double> peer{};
};

/// In the order of their registration.
std::vector<Pair>& Pairs() {
    static std::vector<Pair> pairs;
    return pairs;
}

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The median of the turns' ratios: the two halves of a turn stand side by side in time.
double RatioOf(const Pair& pair) {
    std::vector<double> ratios;
    for (std::size_t turn = 0; turn < pair.peer.size(); ++turn)
        ratios.push_back(pair.ours[turn] / pair.peer[turn]);
    return Median(std::move(ratios));
}

std::string Duration(double nanoseconds) {
    struct Unit {
        double size;
        const char* name;
    };
    static constexpr Unit kUnits[] = {{1e9, "s"}, {1e6, "ms"}, {1e3, "us"}, {1, "ns"}};
    const Unit* unit = std::find_if(std::begin(kUnits), std::end(kUnits) - 1,
                                    [&](const Unit& each) { return nanoseconds >= each.size; });
    char text[32];
    std::snprintf(text, sizeof text, "%.3g %s", nanoseconds / unit->size, unit->name);
    return text;
}

bool IsWhole(const Pair& pair) {
    return pair.ours.size() == pair.turns && pair.peer.size() == pair.turns;
}

bool IsAbove(const Pair& pair) {
    return RatioOf(pair) > pair.bound;
}

void PrintHead() {
    std::printf("%-44s %10s %10s %8s %8s\n", "subject", "ours", "peer", "ratio", "bound");
}

void Print(const Pair& pair) {
    std::printf("%-44s %10s %10s %8.3g %8.3g%s\n", pair.name.c_str(),
                Duration(Median(pair.ours)).c_str(), Duration(Median(pair.peer)).c_str(),
                RatioOf(pair), pair.bound, IsAbove(pair) ? "  ABOVE" : "");
    std::fflush(stdout);
}

/// Prints each pair once its last turn is over, and what failed.
class Reporter final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override {
        PrintHead();
        return true;
    }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.error_occurred)
                Fail(run);
            else
                Keep(run);
        }
    }
    bool AnyFailed() const { return failed_; }

private:
    void Fail(const Run& run) {
        failed_ = true;
        std::printf("%-44s failed: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
    }

    static void Keep(const Run& run) {
        for (Pair& pair : Pairs()) {
            const double time = Nanoseconds(run, pair.clock);
            if (run.run_name.function_name == pair.name + kOurs) pair.ours.push_back(time);
            if (run.run_name.function_name != pair.name + kPeer) continue;
            pair.peer.push_back(time);
            if (IsWhole(pair)) Print(pair);
        }
    }

    static double Nanoseconds(const Run& run, Clock clock) {
        const double time =
            clock == Clock::kWall ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
        return time / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
    }

    bool failed_ = false;
};

/// Whether each pair that was run is within its bound.
bool AllWithin() {
    return std::ranges::none_of(Pairs(),
                                [](const Pair& pair) { return IsWhole(pair) && IsAbove(pair); });
}

}  // namespace

Subject::Subject(const std::string& name, double bound, Body ours, Body peer, Clock clock,
                 Turns turns) {
    const Division division = DivisionInto(turns);
    Pairs().push_back({name, bound, clock, static_cast<std::size_t>(division.turns)});
    for (int turn = 0; turn < division.turns; ++turn) {
        for (const auto& [half, body] : {std::pair{kOurs, ours}, {kPeer, peer}}) {
            auto* run = benchmark::RegisterBenchmark((name + half).c_str(), body);
            run->MinTime(division.secondsPerTurn);
            if (clock == Clock::kWall) run->UseRealTime();
        }
    }
}

int Run(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return AllWithin() && !reporter.AnyFailed() ? 0 : 1;
}

}  // namespace bench
