#include "workbench/exports/geojson.h"

#include <nlohmann/json.hpp>

#include "workbench/document/boundary_text.h"

namespace workbench {

namespace {

using Json = nlohmann::ordered_json;
using geofiles::ShapeKind;

Json PlacesOf(const std::vector<Place>& places) {
    Json list = Json::array();
    for (const Place& place : places)
        list.push_back({place.lon, place.lat});
    return list;
}

Json ShapeOf(const std::vector<Place>& places, ShapeKind kind) {
    switch (kind) {
        case ShapeKind::kPoint:
            return {{"type", "Point"}, {"coordinates", PlacesOf(places).front()}};
        case ShapeKind::kLine:
            return {{"type", "LineString"}, {"coordinates", PlacesOf(places)}};
        default:
            return {{"type", "Polygon"},
                    {"coordinates", Json::array({PlacesOf(geofiles::RingOf(places))})}};
    }
}

Json ValueOf(const std::string& cell, bool number) {
    if (cell.empty()) return nullptr;
    const auto value = number ? geofiles::NumberOf(cell) : std::nullopt;
    return value ? Json(*value) : Json(cell);
}

Json FeatureOf(const geofiles::Table& table, const geofiles::Row& row) {
    Json properties = {{"layer", table.name}};
    for (std::size_t i = 0; i < row.cells.size(); ++i)
        properties[table.columns[i].name] = ValueOf(row.cells[i], table.columns[i].number);
    return {{"type", "Feature"},
            {"properties", std::move(properties)},
            {"geometry", ShapeOf(OnWgs84(row.places), table.kind)}};
}

}  // namespace

std::string GeoJsonOf(const std::vector<geofiles::Table>& tables) {
    std::string text = "{\"type\": \"FeatureCollection\", \"features\": [";
    const char* separator = "\n";
    for (const geofiles::Table& table : tables) {
        for (const geofiles::Row& row : table.rows) {
            text.append(separator).append(FeatureOf(table, row).dump());
            separator = ",\n";
        }
    }
    return text + "\n]}\n";
}

}  // namespace workbench
