// The module's writer of GeoPackages, which are made in memory.

#include <cpl_conv.h>
#include <cpl_vsi.h>

#include <algorithm>
#include <stdexcept>

#include "base/export.h"
#include "geofiles/gdal_handles.h"
#include "geofiles/geopackage.h"

namespace geofiles {
namespace {

constexpr const char* kInMemory = "/vsimem/kvguictl.gpkg";

OGRGeometryH LineOf(const std::vector<Place>& places, OGRwkbGeometryType type) {
    OGRGeometryH line = OGR_G_CreateGeometry(type);
    for (const Place& place : places)
        OGR_G_AddPoint_2D(line, place.lon, place.lat);
    return line;
}

OGRGeometryH ShapeOf(const Row& row, ShapeKind kind) {
    if (kind == ShapeKind::kPoint) return LineOf({row.places.front()}, wkbPoint);
    if (kind == ShapeKind::kLine) return LineOf(row.places, wkbLineString);
    OGRGeometryH polygon = OGR_G_CreateGeometry(wkbPolygon);
    OGR_G_AddGeometryDirectly(polygon, LineOf(RingOf(row.places), wkbLinearRing));
    return polygon;
}

OGRwkbGeometryType TypeOf(ShapeKind kind) {
    switch (kind) {
        case ShapeKind::kPoint:
            return wkbPoint;
        case ShapeKind::kLine:
            return wkbLineString;
        default:
            return wkbPolygon;
    }
}

bool IsOfNumbers(const Table& table, size_t column) {
    return table.columns[column].number && std::ranges::all_of(table.rows, [&](const Row& row) {
               return row.cells[column].empty() || NumberOf(row.cells[column]);
           });
}

/// What is written is gone at the end.
struct FileInMemory {
    FileInMemory() = default;
    ~FileInMemory() { VSIUnlink(kInMemory); }
    FileInMemory(const FileInMemory&) = delete;
    FileInMemory& operator=(const FileInMemory&) = delete;
};

class Writer {
public:
    explicit Writer(int epsg) {
        GDALDriverH driver = GDALGetDriverByName("GPKG");
        if (driver) dataset_.reset(GDALCreate(driver, kInMemory, 0, 0, 0, GDT_Unknown, nullptr));
        Require(dataset_ != nullptr);
        system_.reset(OSRNewSpatialReference(nullptr));
        Require(OSRImportFromEPSG(Degrees(), epsg) == OGRERR_NONE);
        OSRSetAxisMappingStrategy(Degrees(), OAMS_TRADITIONAL_GIS_ORDER);
        Require(GDALDatasetStartTransaction(dataset_.get(), false) == OGRERR_NONE);
    }

    void Add(const Table& table) {
        OGRLayerH layer = GDALDatasetCreateLayer(dataset_.get(), table.name.c_str(), Degrees(),
                                                 TypeOf(table.kind), nullptr);
        Require(layer);
        std::vector<bool> numbers;
        for (size_t i = 0; i < table.columns.size(); ++i) {
            numbers.push_back(IsOfNumbers(table, i));
            OGRFieldDefnH field =
                OGR_Fld_Create(table.columns[i].name.c_str(), numbers[i] ? OFTReal : OFTString);
            const OGRErr error = OGR_L_CreateField(layer, field, false);
            OGR_Fld_Destroy(field);
            Require(error == OGRERR_NONE);
        }
        for (const Row& row : table.rows)
            AddRow(layer, table.kind, row, numbers);
    }

    std::string Bytes() {
        Require(GDALDatasetCommitTransaction(dataset_.get()) == OGRERR_NONE);
        dataset_.reset();
        Require(!complaints_.Any());
        vsi_l_offset size = 0;
        const GByte* bytes = VSIGetMemFileBuffer(kInMemory, &size, false);
        Require(bytes);
        return {reinterpret_cast<const char*>(bytes), static_cast<size_t>(size)};
    }

private:
    OGRSpatialReferenceH Degrees() const {
        return static_cast<OGRSpatialReferenceH>(system_.get());
    }

    void Require(bool holds) const {
        if (!holds) throw std::runtime_error(complaints_.Words("GDAL cannot write GeoPackages"));
    }

    void AddRow(OGRLayerH layer, ShapeKind kind, const Row& row,
                const std::vector<bool>& numbers) const {
        const FeaturePtr feature(OGR_F_Create(OGR_L_GetLayerDefn(layer)));
        auto* handle = static_cast<OGRFeatureH>(feature.get());
        for (size_t i = 0; i < numbers.size(); ++i) {
            const int field = static_cast<int>(i);
            if (row.cells[i].empty()) {
                OGR_F_SetFieldNull(handle, field);
            } else if (numbers[i]) {
                OGR_F_SetFieldDouble(handle, field, *NumberOf(row.cells[i]));
            } else {
                OGR_F_SetFieldString(handle, field, row.cells[i].c_str());
            }
        }
        OGR_F_SetGeometryDirectly(handle, ShapeOf(row, kind));
        Require(OGR_L_CreateFeature(layer, handle) == OGRERR_NONE);
    }

    FileInMemory file_;
    Complaints complaints_;
    Dataset dataset_;
    System system_;
};

}  // namespace
}  // namespace geofiles

extern "C" KVGUICTL_API bool KVGuiCtlWriteGeoPackage(const std::vector<geofiles::Table>& tables,
                                                     int epsg, std::string& bytes,
                                                     std::string& failure) {
    {
        const geofiles::Complaints ignored;
        GDALAllRegister();
    }
    try {
        geofiles::Writer writer(epsg);
        for (const geofiles::Table& table : tables)
            writer.Add(table);
        bytes = writer.Bytes();
        return true;
    } catch (const std::exception& error) {
        failure = error.what();
        return false;
    }
}
