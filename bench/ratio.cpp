#include "ratio.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <utility>
#include <vector>

namespace bench {
namespace {

constexpr double kNotRun = std::numeric_limits<double>::infinity();
constexpr int kRepetitions = 5;

const std::string kOurs = "/ours";
const std::string kPeer = "/peer";

struct Pair {
    std::string name;
    double bound;
    Clock clock;
    double ours = kNotRun;  ///< nanoseconds, of the fastest repetition
    double peer = kNotRun;
};

/// In the order of their registration.
std::vector<Pair>& Pairs() {
    static std::vector<Pair> pairs;
    return pairs;
}

/// Prints the median of each run, and keeps the fastest of each half of a pair: what disturbs a run
/// only makes it slower.
class Reporter final : public benchmark::ConsoleReporter {
public:
    Reporter() : ConsoleReporter(OO_None) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        std::vector<Run> shown;
        for (const Run& run : runs) {
            Keep(run);
            if (run.error_occurred || run.aggregate_name == "median") shown.push_back(run);
        }
        if (!shown.empty()) ConsoleReporter::ReportRuns(shown);
    }
    bool AnyFailed() const { return failed_; }

private:
    void Keep(const Run& run) {
        failed_ |= run.error_occurred;
        if (run.error_occurred || run.run_type != Run::RT_Iteration) return;
        for (Pair& pair : Pairs()) {
            if (run.run_name.function_name == pair.name + kOurs)
                pair.ours = std::min(pair.ours, Nanoseconds(run, pair.clock));
            if (run.run_name.function_name == pair.name + kPeer)
                pair.peer = std::min(pair.peer, Nanoseconds(run, pair.clock));
        }
    }

    static double Nanoseconds(const Run& run, Clock clock) {
        const double time =
            clock == Clock::kWall ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
        return time / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
    }

    bool failed_ = false;
};

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

/// Prints the table. Whether all ratios are within their bounds.
bool PrintRatios() {
    bool within = true;
    std::printf("\n%-44s %10s %10s %8s %8s\n", "subject", "ours", "peer", "ratio", "bound");
    for (const Pair& pair : Pairs()) {
        if (pair.ours == kNotRun || pair.peer == kNotRun) continue;
        const double ratio = pair.ours / pair.peer;
        const bool above = ratio > pair.bound;
        std::printf("%-44s %10s %10s %8.3g %8.3g%s\n", pair.name.c_str(),
                    Duration(pair.ours).c_str(), Duration(pair.peer).c_str(), ratio, pair.bound,
                    above ? "  ABOVE" : "");
        within = within && !above;
    }
    return within;
}

}  // namespace

Subject::Subject(const std::string& name, double bound, Body ours, Body peer, Clock clock) {
    Pairs().push_back({name, bound, clock});
    for (const auto& [half, body] : {std::pair{kOurs, ours}, {kPeer, peer}}) {
        auto* run = benchmark::RegisterBenchmark((name + half).c_str(), body);
        run->Repetitions(kRepetitions);
        if (clock == Clock::kWall) run->UseRealTime();
    }
}

int Run(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const bool within = PrintRatios();
    return within && !reporter.AnyFailed() ? 0 : 1;
}

}  // namespace bench
