// Loading 30,000 outlines into a new dataset, beside GDAL's own translation of the same file to a
// GeoPackage, which is what ogr2ogr does.

#include <gdal.h>
#include <gdal_utils.h>
#include <ogr_api.h>
#include <ogr_srs_api.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <utility>

#include "kvload/load.h"
#include "ratio.h"

namespace {

namespace fs = std::filesystem;

constexpr int kOutlines = 30'000;
constexpr int kPerRow = 200;
constexpr const char* kBlocks =
    R"({"table": "blocks", "fields": {"areacode": "area", "label": "label"}})";
constexpr const char* kAreas =
    R"({"table": "areas", "fields": {"areaname": "name", "stcode": "code"}})";

/// A shapefile of squares and a table of their one area, which are gone when the program ends.
class Sources {
public:
    Sources() {
        std::string name = (fs::temp_directory_path() / "kvbench-load-XXXXXX").string();
        folder_ = mkdtemp(name.data());
        std::ofstream(Path("areas.csv")) << "name,code\nAREA,43602\n";
        WriteSquares();
    }
    ~Sources() { fs::remove_all(folder_); }
    Sources(const Sources&) = delete;
    Sources& operator=(const Sources&) = delete;

    std::string Path(const char* name) const { return folder_ / name; }

private:
    void WriteSquares() const {
        GDALAllRegister();
        GDALDatasetH file = GDALCreate(GDALGetDriverByName("ESRI Shapefile"),
                                       Path("squares.shp").c_str(), 0, 0, 0, GDT_Unknown, nullptr);
        OGRSpatialReferenceH nad27 = OSRNewSpatialReference(nullptr);
        OSRSetFromUserInput(nad27, "EPSG:4267");
        OSRSetAxisMappingStrategy(nad27, OAMS_TRADITIONAL_GIS_ORDER);
        OGRLayerH layer = GDALDatasetCreateLayer(file, "squares", nad27, wkbPolygon, nullptr);
        OSRRelease(nad27);
        for (const char* name : {"area", "label"}) {
            OGRFieldDefnH field = OGR_Fld_Create(name, OFTString);
            OGR_L_CreateField(layer, field, true);
            OGR_Fld_Destroy(field);
        }
        for (int i = 0; i < kOutlines; ++i)
            WriteSquare(layer, i);
        GDALClose(file);
    }

    static void WriteSquare(OGRLayerH layer, int number) {
        constexpr double kSide = 0.045;
        const double west = -97.0 + kSide * (number % kPerRow);
        const double south = 23.0 + kSide * (number / kPerRow);
        OGRGeometryH ring = OGR_G_CreateGeometry(wkbLinearRing);
        for (const auto& [x, y] : {std::pair{0, 0}, {0, 1}, {1, 1}, {1, 0}, {0, 0}})
            OGR_G_AddPoint_2D(ring, west + kSide * x, south + kSide * y);
        OGRGeometryH square = OGR_G_CreateGeometry(wkbPolygon);
        OGR_G_AddGeometryDirectly(square, ring);
        OGRFeatureH feature = OGR_F_Create(OGR_L_GetLayerDefn(layer));
        OGR_F_SetFieldString(feature, 0, "43602");
        OGR_F_SetFieldString(feature, 1, std::to_string(number + 1).c_str());
        OGR_F_SetGeometryDirectly(feature, square);
        const OGRErr error = OGR_L_CreateFeature(layer, feature);
        OGR_F_Destroy(feature);
        if (error != OGRERR_NONE) throw std::runtime_error("A square cannot be written");
    }

    fs::path folder_;
};

const Sources& Files() {
    static const Sources files;
    return files;
}

void Load(benchmark::State& state) {
    const kvload::Watcher nobody{[](const std::string&, long long, long long) {},
                                 [] { return false; }};
    const std::string target = Files().Path("loaded.db");
    for (auto _ : state) {
        fs::remove(target);
        const auto store = kvload::OpenStore("sqlite:" + target, kvload::Purpose::kLoad);
        const auto outcomes =
            kvload::Load({{Files().Path("areas.csv"), kvload::ReadMapping(kAreas)},
                          {Files().Path("squares.shp"), kvload::ReadMapping(kBlocks)}},
                         *store, false, nobody);
        if (outcomes[1].loaded != kOutlines) state.SkipWithError("not all were loaded");
    }
}

void Translate(benchmark::State& state) {
    const std::string target = Files().Path("translated.gpkg");
    char format[] = "-f", name[] = "GPKG";
    char* words[] = {format, name, nullptr};
    for (auto _ : state) {
        fs::remove(target);
        GDALVectorTranslateOptions* options = GDALVectorTranslateOptionsNew(words, nullptr);
        GDALDatasetH source = GDALOpenEx(Files().Path("squares.shp").c_str(), GDAL_OF_VECTOR,
                                         nullptr, nullptr, nullptr);
        int failed = 0;
        GDALDatasetH made =
            GDALVectorTranslate(target.c_str(), nullptr, 1, &source, options, &failed);
        if (!made || failed) state.SkipWithError("not translated");
        GDALClose(made);
        GDALClose(source);
        GDALVectorTranslateOptionsFree(options);
    }
}

const bench::Subject kLoading("load/30,000 outlines", 3.0, Load, Translate, bench::Clock::kWall);

}  // namespace
