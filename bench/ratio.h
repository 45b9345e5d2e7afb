#pragma once

#include <benchmark/benchmark.h>

#include <string>

/// Benchmarks in pairs: what we do, and beside it, in the same run, what a peer takes for the same
/// work.
namespace bench {

using Body = void (*)(benchmark::State&);

/// What a pair's time is: this program's own work, or all that a user waits, for instance for a
/// server.
enum class Clock { kCpu, kWall };

/// How a pair's time is divided. Short turns are for work of a few milliseconds that is the same
/// each time: many of them meet every mood of the machine.
enum class Turns { kLong, kShort };

/// Registers a pair under a name such as "list box/find". `bound` is the ratio of our time to the
/// peer's that is not to be exceeded. Defined as a static object beside its two bodies, each a
/// loop over the state.
class Subject {
public:
    Subject(const std::string& name, double bound, Body ours, Body peer, Clock clock = Clock::kCpu,
            Turns turns = Turns::kLong);
};

/// Runs what the command line of Google Benchmark selects, and prints, for each pair that was run,
/// our time, the peer's, their ratio and its bound. Returns the program's exit code: 1 when a
/// run failed or a ratio is above its bound.
int Run(int argc, char** argv);

}  // namespace bench
