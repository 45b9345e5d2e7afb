#pragma once

#include <cstddef>
#include <cstdint>

namespace kv::sample {

/// A small generator of pseudo-random whole numbers, the same on every machine.
class Random {
public:
    explicit constexpr Random(std::uint64_t seed) : state_(seed) {}

    /// The next of 64 well-mixed bits.
    constexpr std::uint64_t Next() {
        state_ += 0x9e3779b97f4a7c15U;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebU;
        return mixed ^ (mixed >> 31);
    }

    /// From 0 to `count` - 1; `count` above 0.
    constexpr int Below(int count) {
        return static_cast<int>(Next() % static_cast<std::uint64_t>(count));
    }
    /// From `low` to `high`, both included.
    constexpr int Between(int low, int high) { return low + Below(high - low + 1); }
    /// True in `percent` of 100 cases.
    constexpr bool Chance(int percent) { return Below(100) < percent; }
    /// One of the choices; there is at least one.
    template <class Choices>
    constexpr const auto& OneOf(const Choices& choices) {
        return choices[static_cast<std::size_t>(Below(static_cast<int>(choices.size())))];
    }

private:
    std::uint64_t state_;
};

}  // namespace kv::sample
