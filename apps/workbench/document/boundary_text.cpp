#include "workbench/document/boundary_text.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "frame/kvcom/util_lldrv.h"
#include "workbench/document/map_file.h"
#include "workbench/map/angle_text.h"
#include "workbench/map/feature_layer.h"

namespace workbench {

namespace {

std::vector<Place> Closed(std::vector<Place> corners) {
    if (!corners.empty()) corners.push_back(corners.front());
    return corners;
}

bool IsClockwise(const std::vector<Place>& corners) {
    std::vector<Point> points;
    for (const Place& corner : corners)
        points.push_back({corner.lon, corner.lat});
    return SignedArea(points) < 0;
}

}  // namespace

std::string BoundaryAsText(const std::vector<Place>& corners) {
    std::string text;
    for (const Place& corner : Closed(corners))
        text += DecimalDegrees(corner) + "\n";
    return text;
}

std::vector<Place> OnWgs84(const std::vector<Place>& corners) {
    std::vector<Place> shifted;
    for (const Place& corner : corners) {
        Place place;
        const int failure = CKvUtilLLdrv::Nad2783(corner.lon, corner.lat, place.lon, place.lat);
        if (failure == 1) {
            throw MapFileError(
                "GeoJSON is on the datum WGS 84, and a place lies outside of "
                "the grid that leads there.");
        }
        if (failure != 0) {
            throw MapFileError(
                "GeoJSON is on the datum WGS 84, and the grid that leads there is "
                "not installed: projsync --file us_noaa_conus");
        }
        shifted.push_back(place);
    }
    return shifted;
}

std::string BoundaryAsGeoJson(const std::string& name, const std::vector<Place>& corners) {
    using Json = nlohmann::ordered_json;
    std::vector<Place> ring = corners;
    if (IsClockwise(ring)) std::ranges::reverse(ring);
    Json line = Json::array();
    for (const Place& corner : Closed(std::move(ring)))
        line.push_back({corner.lon, corner.lat});
    const Json feature = {
        {"type", "Feature"},
        {"properties", {{"name", name}}},
        {"geometry", {{"type", "Polygon"}, {"coordinates", Json::array({line})}}}};
    constexpr int kIndent = 2;
    return feature.dump(kIndent, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace workbench
