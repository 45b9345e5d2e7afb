// The coordinate driver, beside bare calls of PROJ with a transformation that is ready.

#include <proj.h>

#include <cmath>
#include <numbers>
#include <random>
#include <stdexcept>
#include <vector>

#include "frame/kvcom/util_lldrv.h"
#include "ratio.h"
#include "services/kvcom/projection_zones.h"

namespace {

constexpr int kFeet = 0;
constexpr double kFeetPerMeter = 3937.0 / 1200.0;
constexpr double kDegreesPerRadian = 180.0 / std::numbers::pi;
/// Of each kind of projection one, as maps of the Gulf use them.
constexpr int kCodes[] = {3, 115, -101};
constexpr double kBound = 1.25;

struct Pair {
    double first;
    double second;
};

/// Positions in the northern Gulf, in degrees.
const std::vector<Pair>& Places() {
    static const std::vector<Pair> places = [] {
        std::mt19937 random(1);
        std::uniform_real_distribution<double> lat(26.0, 30.0);
        std::uniform_real_distribution<double> lon(-94.0, -88.0);
        std::vector<Pair> made(1000);
        for (Pair& place : made)
            place = {lat(random), lon(random)};
        return made;
    }();
    return places;
}

Pair Project(const Pair& place, int code) {
    Pair planar{};
    CKvUtilLLdrv::LLdrv(place.first, place.second, &planar.first, &planar.second, code, kFeet, 1,
                        100.0, 0.0, 0.0);
    return planar;
}

Pair Invert(const Pair& planar, int code) {
    Pair place{};
    CKvUtilLLdrv::XYdrv(planar.first, planar.second, &place.first, &place.second, code, kFeet, 1,
                        100.0, 0.0, 0.0);
    return place;
}

/// PROJ's operations for the codes, ready.
class Bare {
public:
    Bare() : context_(proj_context_create()) {
        for (const int code : kCodes) {
            operations_.push_back(proj_create(context_, kv::coord::DefinitionOf(code).c_str()));
            if (!operations_.back()) throw std::runtime_error("PROJ refuses a projection");
        }
    }
    ~Bare() {
        for (PJ* operation : operations_)
            proj_destroy(operation);
        proj_context_destroy(context_);
    }
    Bare(const Bare&) = delete;
    Bare& operator=(const Bare&) = delete;

    const std::vector<PJ*>& Operations() const { return operations_; }

private:
    PJ_CONTEXT* context_;
    std::vector<PJ*> operations_;
};

/// The planar places of each code.
std::vector<std::vector<Pair>> PlanarPlaces() {
    std::vector<std::vector<Pair>> all;
    for (const int code : kCodes) {
        all.emplace_back();
        for (const Pair& place : Places())
            all.back().push_back(Project(place, code));
    }
    return all;
}

void ForwardOurs(benchmark::State& state) {
    for (auto _ : state)
        for (const int code : kCodes)
            for (const Pair& place : Places())
                benchmark::DoNotOptimize(Project(place, code));
}
void ForwardPeer(benchmark::State& state) {
    const Bare bare;
    for (auto _ : state)
        for (PJ* operation : bare.Operations())
            for (const Pair& place : Places())
                benchmark::DoNotOptimize(
                    proj_trans(operation, PJ_FWD,
                               proj_coord(place.second / kDegreesPerRadian,
                                          place.first / kDegreesPerRadian, 0, 0)));
}
const bench::Subject kForward("coordinates/to X and Y", kBound, ForwardOurs, ForwardPeer);

void InverseOurs(benchmark::State& state) {
    const auto all = PlanarPlaces();
    for (auto _ : state)
        for (std::size_t i = 0; i < all.size(); ++i)
            for (const Pair& planar : all[i])
                benchmark::DoNotOptimize(Invert(planar, kCodes[i]));
}
void InversePeer(benchmark::State& state) {
    const auto all = PlanarPlaces();
    const Bare bare;
    for (auto _ : state)
        for (std::size_t i = 0; i < all.size(); ++i)
            for (const Pair& planar : all[i])
                benchmark::DoNotOptimize(proj_trans(
                    bare.Operations()[i], PJ_INV,
                    proj_coord(planar.first / kFeetPerMeter, planar.second / kFeetPerMeter, 0, 0)));
}
const bench::Subject kInverse("coordinates/to angles", kBound, InverseOurs, InversePeer);

void ChangingOurs(benchmark::State& state) {
    for (auto _ : state)
        for (const Pair& place : Places())
            for (const int code : kCodes)
                benchmark::DoNotOptimize(Project(place, code));
}
void ChangingPeer(benchmark::State& state) {
    const Bare bare;
    for (auto _ : state)
        for (const Pair& place : Places())
            for (PJ* operation : bare.Operations())
                benchmark::DoNotOptimize(
                    proj_trans(operation, PJ_FWD,
                               proj_coord(place.second / kDegreesPerRadian,
                                          place.first / kDegreesPerRadian, 0, 0)));
}
const bench::Subject kChanging("coordinates/another code at each call", kBound, ChangingOurs,
                               ChangingPeer);

}  // namespace
