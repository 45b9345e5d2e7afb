#include "frame/kvcom/map_bounds.h"

#include <cmath>
#include <tuple>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "frame/kvcom/angle.h"
#include "frame/kvcom/util_lldrv.h"

namespace {

using AngleTexts = std::array<std::string, 3>;

constexpr double kNoAngle = 1000.0;

/// Rounded to what six significant digits show, so that these are never 60.
kv::AngleParts Rounded(double angle) {
    constexpr int kDecimals = 4;
    constexpr int kDecimalsBelowTen = 6;
    // Less would be written as a power of ten.
    constexpr double kLeast = 1e-4;
    const kv::AngleParts fine = kv::SplitAngle(angle, kDecimalsBelowTen);
    const bool belowTen = fine.seconds >= kLeast && fine.seconds < 10.0;
    return belowTen ? fine : kv::SplitAngle(angle, kDecimals);
}

AngleTexts Split(double angle) {
    if (!(std::abs(angle) < kNoAngle)) return {};
    const kv::AngleParts parts = Rounded(angle);
    return {(parts.negative ? "-" : "") + std::to_string(parts.degrees),
            std::to_string(parts.minutes), kv::FormatStream(parts.seconds)};
}

double Join(const std::string& degrees, const std::string& minutes, const std::string& seconds) {
    const double angle =
        std::abs(kv::Atof(degrees)) + kv::Atof(minutes) / 60.0 + kv::Atof(seconds) / 3600.0;
    return kv::TrimSpace(degrees).starts_with('-') ? -angle : angle;
}

/// Units of X and Y, as the coordinate driver has them.
int DriverUnits(bool feet) {
    return feet ? 0 : 1;
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

void CKvMapBounds::UseRectifyingPoint() const {
    CKvUtilLLdrv::SetRectLat(m_dRectifyingLat);
    CKvUtilLLdrv::SetRectLon(m_dRectifyingLon);
}

bool CKvMapBounds::PopulateXY() {
    if (!m_bRectSpec) {
        m_dRectifyingLat = (m_tLat.minimum + m_tLat.maximum) * 0.5;
        m_dRectifyingLon = (m_tLon.minimum + m_tLon.maximum) * 0.5;
    }
    UseRectifyingPoint();
    Range x;
    Range y;
    const auto project = [&](double lat, double lon, double& toX, double& toY) {
        CKvUtilLLdrv::LLdrv(lat, lon, &toX, &toY, m_nPrimeProj, DriverUnits(m_bFeet), 1, 100.0, 0.0,
                            0.0);
        return toX != CKvUtilLLdrv::kNoXY;
    };
    if (!project(m_tLat.minimum, m_tLon.minimum, x.minimum, y.minimum) ||
        !project(m_tLat.maximum, m_tLon.maximum, x.maximum, y.maximum)) {
        return false;
    }
    m_tX = x;
    m_tY = y;
    return true;
}

bool CKvMapBounds::PopulateLL() {
    UseRectifyingPoint();
    Range lat;
    Range lon;
    const auto invert = [&](double x, double y, double& toLat, double& toLon) {
        CKvUtilLLdrv::XYdrv(x, y, &toLat, &toLon, m_nPrimeProj, DriverUnits(m_bFeet), 1, 100.0, 0.0,
                            0.0);
        return std::isfinite(toLat);
    };
    if (!invert(m_tX.minimum, m_tY.minimum, lat.minimum, lon.minimum) ||
        !invert(m_tX.maximum, m_tY.maximum, lat.maximum, lon.maximum)) {
        return false;
    }
    m_tLat = lat;
    m_tLon = lon;
    return true;
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
