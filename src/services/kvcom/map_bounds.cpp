#include "frame/map_bounds.h"

#include <cmath>
#include <tuple>
#include <utility>

#include "window/numbers.h"
#include "window/text.h"

namespace {

using AngleTexts = std::array<std::string, 3>;

constexpr double kNoAngle = 1000.0;

AngleTexts Split(double angle) {
    // Nothing finer than six significant digits show of the seconds, so that these never read 60.
    constexpr double kPartsOfSecond = 10000.0;
    const double size = std::abs(angle);
    if (!(size < kNoAngle)) return {};
    const double parts = std::round(size * 3600.0 * kPartsOfSecond);
    const double minutes = std::floor(parts / (60.0 * kPartsOfSecond));
    const double degrees = std::floor(minutes / 60.0);
    const double seconds = (parts - minutes * 60.0 * kPartsOfSecond) / kPartsOfSecond;
    const char* sign = angle < 0.0 && parts > 0.0 ? "-" : "";
    return {sign + kv::FormatFixed(degrees, 0), kv::FormatFixed(minutes - degrees * 60.0, 0),
            kv::FormatStream(seconds)};
}

double Join(const std::string& degrees, const std::string& minutes, const std::string& seconds) {
    const double angle =
        std::abs(kv::Atof(degrees)) + kv::Atof(minutes) / 60.0 + kv::Atof(seconds) / 3600.0;
    return kv::TrimSpace(degrees).starts_with('-') ? -angle : angle;
}

}  // namespace

CKvMapBounds::Corner CKvMapBounds::CornerOf(Texts texts) {
    const double lat = Join(texts[0], texts[1], texts[2]);
    const double lon = Join(texts[3], texts[4], texts[5]);
    return {std::move(texts), lat, lon, true};
}

CKvMapBounds::Texts CKvMapBounds::TextsOf(double lat, double lon, const Corner& corner) {
    if (corner.set && corner.lat == lat && corner.lon == lon) return corner.texts;
    const AngleTexts latTexts = Split(lat);
    const AngleTexts lonTexts = Split(lon);
    return {latTexts[0], latTexts[1], latTexts[2], lonTexts[0], lonTexts[1], lonTexts[2]};
}

void CKvMapBounds::SetMinLL(const std::string& latDeg, const std::string& latMin,
                            const std::string& latSec, const std::string& lonDeg,
                            const std::string& lonMin, const std::string& lonSec) {
    m_tMinLL = CornerOf({latDeg, latMin, latSec, lonDeg, lonMin, lonSec});
    m_tLat.minimum = m_tMinLL.lat;
    m_tLon.minimum = m_tMinLL.lon;
}

void CKvMapBounds::SetMaxLL(const std::string& latDeg, const std::string& latMin,
                            const std::string& latSec, const std::string& lonDeg,
                            const std::string& lonMin, const std::string& lonSec) {
    m_tMaxLL = CornerOf({latDeg, latMin, latSec, lonDeg, lonMin, lonSec});
    m_tLat.maximum = m_tMaxLL.lat;
    m_tLon.maximum = m_tMaxLL.lon;
}

void CKvMapBounds::GetMinLL(std::string& latDeg, std::string& latMin, std::string& latSec,
                            std::string& lonDeg, std::string& lonMin, std::string& lonSec) const {
    const Texts texts = TextsOf(m_tLat.minimum, m_tLon.minimum, m_tMinLL);
    std::tie(latDeg, latMin, latSec, lonDeg, lonMin, lonSec) = std::tuple_cat(texts);
}

void CKvMapBounds::GetMaxLL(std::string& latDeg, std::string& latMin, std::string& latSec,
                            std::string& lonDeg, std::string& lonMin, std::string& lonSec) const {
    const Texts texts = TextsOf(m_tLat.maximum, m_tLon.maximum, m_tMaxLL);
    std::tie(latDeg, latMin, latSec, lonDeg, lonMin, lonSec) = std::tuple_cat(texts);
}

void CKvMapBounds::GetWidthHeightLL(std::string& heightDeg, std::string& heightMin,
                                    std::string& heightSec, std::string& widthDeg,
                                    std::string& widthMin, std::string& widthSec) const {
    const Texts texts =
        TextsOf(m_tLat.maximum - m_tLat.minimum, m_tLon.maximum - m_tLon.minimum, Corner{});
    std::tie(heightDeg, heightMin, heightSec, widthDeg, widthMin, widthSec) = std::tuple_cat(texts);
}

void CKvMapBounds::UpdateLLMax(const std::string& heightDeg, const std::string& heightMin,
                               const std::string& heightSec, const std::string& widthDeg,
                               const std::string& widthMin, const std::string& widthSec) {
    m_tLat.maximum = m_tLat.minimum + Join(heightDeg, heightMin, heightSec);
    m_tLon.maximum = m_tLon.minimum + Join(widthDeg, widthMin, widthSec);
}

void CKvMapBounds::UpdateXYMax(const std::string& width, const std::string& height) {
    m_tX.maximum = m_tX.minimum + kv::Atof(width);
    m_tY.maximum = m_tY.minimum + kv::Atof(height);
}

void CKvMapBounds::ResetABEVec() {
    m_vPickArea.clear();
    m_vPickBlock.clear();
    m_vPickExt.clear();
}

void CKvMapBounds::SetPickArea(std::string area) {
    m_vPickArea.push_back(std::move(area));
}
void CKvMapBounds::SetPickBlock(std::string block) {
    m_vPickBlock.push_back(std::move(block));
}
void CKvMapBounds::SetPickExt(std::string ext) {
    m_vPickExt.push_back(std::move(ext));
}

void CKvMapBounds::SetPickMapWidth(std::string text) {
    m_sPickMapWidth = std::move(text);
}
void CKvMapBounds::SetPickMapHeight(std::string text) {
    m_sPickMapHeight = std::move(text);
}
void CKvMapBounds::SetPickMapPercent(std::string text) {
    m_sPickMapPercent = std::move(text);
}
