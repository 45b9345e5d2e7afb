// Numbers from and to text, beside the C library's.

#include "base/numbers.h"

#include <cstdio>
#include <cstdlib>

#include "ratio.h"

namespace {

constexpr const char* kAngles[] = {"28.504236", "-89.125", "  30", "1000.0", "0.000189394"};
constexpr double kLengths[] = {12.5, -89.125, 1234567.891, 0.004999, 100000000.0};

void ReadOurs(benchmark::State& state) {
    for (auto _ : state)
        for (const char* text : kAngles)
            benchmark::DoNotOptimize(kv::Atof(text));
}
void ReadPeer(benchmark::State& state) {
    for (auto _ : state)
        for (const char* text : kAngles)
            benchmark::DoNotOptimize(std::strtod(text, nullptr));
}
const bench::Subject kRead("numbers/read", 2.0, ReadOurs, ReadPeer);

void WriteOurs(benchmark::State& state) {
    for (auto _ : state)
        for (const double value : kLengths)
            benchmark::DoNotOptimize(kv::FormatFixed(value, 2));
}
void WritePeer(benchmark::State& state) {
    char text[64];
    for (auto _ : state)
        for (const double value : kLengths)
            benchmark::DoNotOptimize(std::snprintf(text, sizeof text, "%.2f", value));
}
const bench::Subject kWrite("numbers/write fixed", 2.0, WriteOurs, WritePeer);

}  // namespace
