#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "sampledata/sink.h"

namespace kv::sample {

/// Passes the dataset on and sums it up: the same rows in the same order give the same digest.
class Digest final : public Sink {
public:
    /// `next` may be null, and must outlive this.
    explicit Digest(Sink* next = nullptr) : next_(next) {}

    void Begin(const Table& table) override;
    void Add(const Row& row) override;
    void End() override;

    /// Sixteen hexadecimal digits (FNV-1a, 64 bits, over table names and cells).
    std::string Text() const;

private:
    void Take(std::string_view text);

    Sink* next_;
    std::uint64_t sum_ = 0xcbf29ce484222325U;
};

}  // namespace kv::sample
