#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "base/numbers.h"
#include "frame/coordinate_text.h"
#include "frame/kvcom/angle.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

void CheckRange(const std::optional<double>& angle, double most) {
    Check(!angle || std::abs(*angle) <= most);
}

std::string InWords(double angle, char positive, char negative) {
    const kv::AngleParts parts = kv::SplitAngle(angle, 3);
    return std::to_string(parts.degrees) + " " + std::to_string(parts.minutes) + " " +
           kv::FormatFixed(parts.seconds, 3) + " " + (parts.negative ? negative : positive);
}

bool Near(const std::optional<double>& a, const std::optional<double>& b) {
    return a && b && std::abs(*a - *b) <= 0.000501 / 3600.0;
}

/// What is understood is within range, and understood again when it is written anew.
void CheckCoordinate(std::string_view text) {
    const auto coordinate = kv::ParseCoordinate(text);
    if (!coordinate) return;
    CheckRange(coordinate->latitude, 90.0);
    CheckRange(coordinate->longitude, 360.0);
    CheckRange(coordinate->angle, 360.0);
    Check(coordinate->angle.has_value() != (coordinate->latitude || coordinate->longitude));

    std::string again;
    if (coordinate->longitude) again += InWords(*coordinate->longitude, 'E', 'W') + ", ";
    if (coordinate->latitude) again += InWords(*coordinate->latitude, 'N', 'S') + ", ";
    if (again.empty()) return;
    again.resize(again.size() - 2);
    const auto once = kv::ParseCoordinate(again);
    Check(once.has_value());
    if (coordinate->latitude) Check(Near(once->latitude, coordinate->latitude));
    if (coordinate->longitude) Check(Near(once->longitude, coordinate->longitude));
}

/// A text that is one number is one to every reader of numbers.
void CheckNumber(std::string_view text) {
    std::size_t end = 0;
    const auto number = kv::ScanNumber(text, &end);
    Check(end <= text.size() && number.has_value() == (end > 0));
    Check(!number || !std::isnan(*number));
    const auto lone = kv::ScanLoneNumber(text);
    Check(!lone || (number && *lone == *number && *lone == kv::Atof(text)));
    const auto begun = kv::ScanLoneNumber(text.substr(0, end));
    Check(number ? begun && *begun == *number : true);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    CheckNumber(text);
    CheckCoordinate(text);
    return 0;
}
