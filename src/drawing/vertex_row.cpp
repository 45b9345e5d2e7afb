#include "drawing/vertex_row.h"

#include <cmath>

#include "base/numbers.h"
#include "base/text.h"
#include "drawing/row_scan.h"
#include "frame/coordinate_text.h"
#include "frame/kvcom/util_lldrv.h"

namespace kv::vertices {

namespace {

constexpr const char* kSeparators = ",;\t";

bool IsDecimal(std::string_view token) {
    return token.find('.') != std::string_view::npos;
}

double Joined(float degrees, float minutes, float seconds) {
    double angle = 0.0;
    CKvUtilLLdrv::GetDegDeg(angle, static_cast<double>(degrees), ToInt(minutes),
                            static_cast<double>(seconds));
    return angle;
}

/// Both angles in degrees, minutes and seconds. Where numbers are missing, those of the latitude
/// stand in.
Pair ScanSixNumbers(std::string_view row) {
    float parts[3] = {};
    RowScan scan(row);
    for (float& part : parts)
        part = scan.Float();
    Pair pair;
    pair.first = Joined(parts[0], parts[1], parts[2]);
    for (float& part : parts) {
        const float number = scan.Float();
        if (scan.Found()) part = number;
    }
    pair.second = Joined(parts[0], parts[1], parts[2]);
    return pair;
}

}  // namespace

std::string Normalised(std::string_view row) {
    std::string text(row);
    if (text.find_first_of(kSeparators, 1) == std::string::npos) return text;
    for (std::size_t at = text.find_first_of(kSeparators); at != std::string::npos;
         at = text.find_first_of(kSeparators, at)) {
        text[at] = ' ';
    }
    return text;
}

Pair ScanPair(std::string_view row) {
    RowScan scan(row);
    const double first = scan.Double();
    return {first, scan.Double()};
}

Pair ScanDms(std::string_view row) {
    RowScan scan(row);
    const auto angle = [&scan] {
        const int degrees = scan.Int();
        const int minutes = scan.Int();
        double joined = 0.0;
        CKvUtilLLdrv::GetDegDeg(joined, degrees, minutes, scan.Double());
        return joined;
    };
    const double first = angle();
    return {first, angle()};
}

Pair ScanLatLon(std::string_view row) {
    RowScan tokens(row);
    if (!IsDecimal(tokens.Token())) return ScanSixNumbers(row);
    if (IsDecimal(tokens.Token())) return ScanPair(row);
    RowScan scan(row);
    const double latitude = scan.Double();
    const float degrees = scan.Float();
    const float minutes = scan.Float();
    return {latitude, Joined(degrees, minutes, scan.Float())};
}

std::string PairRow(const Pair& pair) {
    return FormatText("%.6f , %.6f", pair.first, pair.second);
}

std::string DmsRow(const Pair& pair) {
    const auto inWords = [](double angle) {
        int degrees = 0;
        int minutes = 0;
        double seconds = 0.0;
        CKvUtilLLdrv::GetDegMinSec(angle, degrees, minutes, seconds);
        return FormatText("%d %d %.6f", degrees, minutes, seconds);
    };
    return inWords(pair.first) + " , " + inWords(pair.second);
}

std::optional<Pair> ReadXy(std::string_view text) {
    const std::string row = Normalised(text);
    RowScan scan(row);
    const double x = scan.Double();
    const Pair pair{x, scan.Double()};
    if (!scan.Found() || !scan.Token().empty()) return std::nullopt;
    return pair;
}

std::optional<Pair> ReadLatLon(std::string_view text) {
    const auto found = ParseCoordinate(text);
    if (!found || !found->latitude || !found->longitude) return std::nullopt;
    if (std::abs(*found->longitude) > 180.0) return std::nullopt;
    return Pair{*found->latitude, *found->longitude};
}

}  // namespace kv::vertices
