#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "drawing/vertex_row.h"

namespace {

using kv::vertices::Pair;

void Check(bool holds) {
    if (!holds) std::abort();
}

/// Both are written in six decimals.
bool Near(const Pair& a, const Pair& b) {
    constexpr double kLeast = 0.0000011;
    const auto near = [](double left, double right) {
        return std::abs(left - right) <= kLeast * std::max(1.0, std::abs(left));
    };
    return near(a.first, b.first) && near(a.second, b.second);
}

/// What is read is no number that is none, and a row that is written is read again as it was.
void CheckRow(const std::string& row) {
    const Pair pair = kv::vertices::ScanPair(row);
    Check(!std::isnan(pair.first) && !std::isnan(pair.second));
    if (std::abs(pair.first) < 1e12 && std::abs(pair.second) < 1e12) {
        const std::string again = kv::vertices::Normalised(kv::vertices::PairRow(pair));
        Check(Near(kv::vertices::ScanPair(again), pair));
    }
    const Pair angles = kv::vertices::ScanLatLon(row);
    Check(!std::isnan(angles.first) && !std::isnan(angles.second));
    const Pair dms = kv::vertices::ScanDms(row);
    if (std::abs(dms.first) < 1000 && std::abs(dms.second) < 1000) {
        const std::string again = kv::vertices::Normalised(kv::vertices::DmsRow(dms));
        Check(Near(kv::vertices::ScanDms(again), dms));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::string row = kv::vertices::Normalised(text);
    Check(row.size() == text.size());
    Check(kv::vertices::Normalised(row) == row || row.find_first_of(",;\t") == 0);
    CheckRow(row);
    if (const auto xy = kv::vertices::ReadXy(text)) {
        Check(kv::vertices::ScanPair(row).first == xy->first);
    }
    if (const auto angles = kv::vertices::ReadLatLon(text)) {
        Check(std::abs(angles->first) <= 90 && std::abs(angles->second) <= 180);
    }
    return 0;
}
