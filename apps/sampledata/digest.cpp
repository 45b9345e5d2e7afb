#include "sampledata/digest.h"

#include <cstdio>

namespace kv::sample {

void Digest::Begin(const Table& table) {
    Take(table.name);
    if (next_) next_->Begin(table);
}

void Digest::Add(const Row& row) {
    for (const std::string& cell : row)
        Take(cell);
    if (next_) next_->Add(row);
}

void Digest::End() {
    if (next_) next_->End();
}

std::string Digest::Text() const {
    char text[17];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(sum_));
    return text;
}

void Digest::Take(std::string_view text) {
    constexpr std::uint64_t kPrime = 0x100000001b3U;
    for (const char ch : text)
        sum_ = (sum_ ^ static_cast<unsigned char>(ch)) * kPrime;
    sum_ = (sum_ ^ 0x1fU) * kPrime;
}

}  // namespace kv::sample
