// What the map shows, saved for other map programs, and read again by GDAL.

#include <gmock/gmock.h>

#include <QPointer>
#include <cmath>
#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>

#include "frame/kvcom/cancelled.h"
#include "frame/kvcom/util_lldrv.h"
#include "frame/kvdbkvn/database_fault.h"
#include "geofiles/table.h"
#include "kvload/source_module.h"
#include "sample_block.h"
#include "support/file_faults.h"
#include "support/file_size_limit.h"
#include "workbench/document/map_shape.h"
#include "workbench/exports/export_job.h"
#include "workbench_person.h"

namespace workbench {
namespace {

using kvload::Feature;
using kvload::Spot;
using kvload::Spots;
using test::kArea;
using test::kBlock;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

constexpr double kExact = 1e-9;

/// A table of a file.
struct ReadTable {
    std::unique_ptr<kvload::Layer> layer;
    std::vector<Feature> rows;

    std::string Cell(const Feature& row, const std::string& field) const {
        const auto& fields = layer->Fields();
        const auto at = std::find(fields.begin(), fields.end(), field) - fields.begin();
        return row.cells.at(static_cast<std::size_t>(at)).value_or("(null)");
    }
    /// Rows by the text of a field.
    std::map<std::string, const Feature*> By(const std::string& field) const {
        std::map<std::string, const Feature*> all;
        for (const Feature& row : rows)
            all[Cell(row, field)] = &row;
        return all;
    }
};

ReadTable ReadBack(const std::string& path, const std::string& name) {
    ReadTable table{kvload::Open({path, name, ""}), {}};
    Feature feature;
    std::string failure;
    while (table.layer->Read(feature, failure) == kvload::Layer::Reading::kRow)
        table.rows.push_back(feature);
    EXPECT_EQ(failure, "");
    return table;
}

bool IsNear(const Spot& a, const Spot& b) {
    return std::abs(a.x - b.x) < kExact && std::abs(a.y - b.y) < kExact;
}

/// Whether a closed ring has these corners, in either direction.
bool IsRingOf(const Spots& ring, const Spots& corners) {
    const auto ofCorners = [&](const Spot& spot) {
        return std::any_of(corners.begin(), corners.end(),
                           [&](const Spot& corner) { return IsNear(spot, corner); });
    };
    return ring.size() == corners.size() + 1 && ring.front() == ring.back() &&
           std::all_of(ring.begin(), ring.end(), ofCorners);
}

Place OnNad83(const Place& place) {
    Place shifted;
    EXPECT_EQ(CKvUtilLLdrv::Nad2783(place.lon, place.lat, shifted.lon, shifted.lat), 0);
    return shifted;
}

bool HasGrid() {
    double lon = 0, lat = 0;
    return CKvUtilLLdrv::Nad2783(-90, 28, lon, lat) == 0;
}

class WorkbenchExports : public WorkbenchPerson {
protected:
    WorkbenchExports() {
        Open();
        host->ShowOnMap({kArea}, kBlock);
    }

    std::string Path(const char* name) const { return folder.Native(name); }
    /// Without a step of it done yet.
    void Begin(const char* format, const char* name) {
        deeds = {NameFile(Path(name))};
        person.start(0);
        MenuAction(QStringLiteral("Export %1...").arg(QLatin1String(format)))->trigger();
        person.stop();
    }
    void Export(const char* format, const char* name) {
        Trigger((std::string("Export ") + format + "...").c_str(), {NameFile(Path(name))});
    }
    /// Corners of a block by the tables alone.
    static Spots CornersOf(const std::string& area, const std::string& block) {
        const Rows rows("select v.lon, v.lat from " + TableName("_lbi") + " b, " +
                        TableName("_lbv") + " v where b.areacode = " + Quoted(area) +
                        " and b.lbnum||b.lbext = " + Quoted(block) +
                        " and v.refnum = b.refnum order by v.ptnum");
        Spots corners;
        for (int row = 0; row < rows.Count(); ++row)
            corners.push_back({rows.Number(row, 0), rows.Number(row, 1)});
        return corners;
    }
    /// SQL that is true for places that are seen.
    std::string SeenBy(const std::string& latitude, const std::string& longitude) const {
        const Box seen = host->Canvas().Seen();
        const Place low = ToPlace({seen.minX, seen.minY}), high = ToPlace({seen.maxX, seen.maxY});
        const auto between = [](const std::string& column, double from, double to) {
            return column + " >= " + std::to_string(from) + " and " + column +
                   " <= " + std::to_string(to);
        };
        return between(latitude, low.lat, high.lat) + " and " +
               between(longitude, low.lon, high.lon);
    }
    void Draw() {
        MapDocument next = host->History().Current();
        auto drawings = std::make_shared<Drawings>();
        const Spots corners = CornersOf(kArea, kBlock);
        const Place first{corners[0].y, corners[0].x}, second{corners[1].y, corners[1].x},
            third{corners[2].y, corners[2].x};
        drawings->lines = {{{first, second}, false, false, 9, 30, 3, 2},
                           {{first, second, third}, true, true, 9, 30, 3, 2},
                           {{{1, 1}, {1, 2}}, false, false, 9, 30, 3, 2}};
        drawings->texts = {{first, "say \"Ä\"", 0.1, -30.5, 12}};
        drawings->fills = {{{kArea, kBlock}, 11}};
        next.drawings = drawings;
        BuiltMap map;
        map.name = "Ours";
        map.bounds.SetXYBounded(false);
        map.bounds.SetPrimeProj(CKvDbUtil::S_GetProjectionByArea(kArea, ""));
        map.bounds.SetLatMin(corners[0].y - 0.5), map.bounds.SetLatMax(corners[0].y + 0.5);
        map.bounds.SetLonMin(corners[0].x - 0.5), map.bounds.SetLonMax(corners[0].x + 0.5);
        next.map = map;
        host->History().Do(next, "all");
    }
};

/// Exports of an area, to which their bytes do not matter.
class ExportJobs : public test::SampleTest {
protected:
    ExportJobs() {
        MapLoader(
            model, [] {}, test::LacksNothing)
            .Need({kArea});
        seen = model.FindPick({kArea}, kBlock).Bounds();
    }

    std::string Path(const char* name) const { return folder.Native(name); }
    ExportEnd Run(const std::string& path, int steps = 100) {
        ExportEnd ended;
        ExportJob job(model,
                      {path,
                       seen,
                       {},
                       {},
                       [this](const std::vector<geofiles::Table>&) {
                           written();
                           return std::string("bytes");
                       }},
                      [&](const ExportEnd& end) { ended = end; });
        while (steps-- > 0 && job.Step()) {
        }
        job.Finished(false);
        return ended;
    }

    MapModel model;
    Box seen;
    std::function<void()> written = [] {};
};

TEST_F(WorkbenchExports, AGeoPackageHasTheRowsAndOutlinesOfTheTables) {
    if (!KVGUICTL_HAS_GDAL) GTEST_SKIP() << "There is no GDAL here";
    Export("GeoPackage", "map.gpkg");
    EXPECT_THAT(failures, IsEmpty());
    EXPECT_THAT(Said(), HasSubstr("Saved " + Path("map.gpkg") + ", "));
    const ReadTable blocks = ReadBack(Path("map.gpkg"), "blocks");
    EXPECT_THAT(blocks.layer->ReferenceSystem(), HasSubstr("ID[\"EPSG\",4267]"));
    EXPECT_EQ(blocks.layer->Kind(), kvload::ShapeKind::kPolygon);
    bool isThere = false;
    for (const Feature& row : blocks.rows) {
        const std::string area = blocks.Cell(row, "areacode"), block = blocks.Cell(row, "block");
        ASSERT_THAT(row.shape.parts, SizeIs(1));
        EXPECT_TRUE(IsRingOf(row.shape.parts[0][0], CornersOf(area, block))) << area << block;
        EXPECT_EQ(blocks.Cell(row, "area"), Single("select areaname from " + TableName("_connam2") +
                                                   " where stcode = " + Quoted(area)));
        isThere = isThere || (area == kArea && block == kBlock);
    }
    EXPECT_TRUE(isThere);
    EXPECT_LT(blocks.rows.size(), 1000u) << "what is out of sight stays out";

    const ReadTable wells = ReadBack(Path("map.gpkg"), "wells");
    const Rows expected("select api_no, surf_lon, surf_lat, operator, total_depth from " +
                        TableName("_well_hdr") + " where " + SeenBy("surf_lat", "surf_lon"));
    ASSERT_GT(expected.Count(), 0);
    ASSERT_EQ(static_cast<int>(wells.rows.size()), expected.Count());
    const auto byNumber = wells.By("api_no");
    for (int row = 0; row < expected.Count(); ++row) {
        const auto found = byNumber.find(expected.Cell(row, 0));
        ASSERT_NE(found, byNumber.end());
        const Feature& well = *found->second;
        EXPECT_TRUE(
            IsNear(well.shape.parts[0][0][0], {expected.Number(row, 1), expected.Number(row, 2)}));
        EXPECT_EQ(wells.Cell(well, "operator"), expected.Cell(row, 3));
        EXPECT_EQ(wells.Cell(well, "total_depth"), expected.Cell(row, 4));
    }
    const ReadTable pipelines = ReadBack(Path("map.gpkg"), "pipelines");
    ASSERT_THAT(pipelines.rows, Not(IsEmpty()));
    for (const Feature& line : pipelines.rows) {
        const Rows points("select lon, lat from " + TableName("_pipeline_pt") +
                          " where segment_no = " + pipelines.Cell(line, "segment_no") +
                          " order by ptnum");
        const Spots& spots = line.shape.parts[0][0];
        ASSERT_EQ(static_cast<int>(spots.size()), points.Count());
        for (int i = 0; i < points.Count(); ++i)
            EXPECT_TRUE(IsNear(spots[static_cast<std::size_t>(i)],
                               {points.Number(i, 0), points.Number(i, 1)}));
    }
}

TEST_F(WorkbenchExports, ALayerThatIsSwitchedOffIsLeftOut) {
    if (!KVGUICTL_HAS_GDAL) GTEST_SKIP() << "There is no GDAL here";
    MenuAction("Wells")->setChecked(false);
    Export("GeoPackage", "map.gpkg");
    EXPECT_THROW(ReadBack(Path("map.gpkg"), "wells"), std::runtime_error);
    EXPECT_THAT(ReadBack(Path("map.gpkg"), "platforms").rows, Not(IsEmpty()));
}

TEST_F(WorkbenchExports, WhatWasDrawnAndTheEdgeOfTheMapGoOutWithIt) {
    if (!KVGUICTL_HAS_GDAL) GTEST_SKIP() << "There is no GDAL here";
    Draw();
    Export("GeoPackage", "map.gpkg");
    EXPECT_THAT(failures, IsEmpty());
    const Spots corners = CornersOf(kArea, kBlock);
    const ReadTable lines = ReadBack(Path("map.gpkg"), "drawn_lines");
    ASSERT_THAT(lines.rows, SizeIs(1)) << "the other one is far away";
    EXPECT_TRUE(IsNear(lines.rows[0].shape.parts[0][0][1], corners[1]));
    EXPECT_EQ(lines.Cell(lines.rows[0], "width"), "3");
    EXPECT_EQ(lines.Cell(lines.rows[0], "fill_color"), "(null)");
    const ReadTable areas = ReadBack(Path("map.gpkg"), "drawn_areas");
    ASSERT_THAT(areas.rows, SizeIs(1));
    EXPECT_TRUE(IsRingOf(areas.rows[0].shape.parts[0][0], {corners[0], corners[1], corners[2]}));
    EXPECT_THAT(areas.Cell(areas.rows[0], "fill_color"), testing::MatchesRegex("#[0-9a-f]+"));
    const ReadTable texts = ReadBack(Path("map.gpkg"), "drawn_texts");
    ASSERT_THAT(texts.rows, SizeIs(1));
    EXPECT_EQ(texts.Cell(texts.rows[0], "text"), "say \"Ä\"");
    EXPECT_EQ(texts.Cell(texts.rows[0], "angle"), "-30.5");
    const ReadTable fills = ReadBack(Path("map.gpkg"), "filled_blocks");
    ASSERT_THAT(fills.rows, SizeIs(1));
    EXPECT_TRUE(IsRingOf(fills.rows[0].shape.parts[0][0], corners));
    const ReadTable frame = ReadBack(Path("map.gpkg"), "map_frame");
    ASSERT_THAT(frame.rows, SizeIs(1));
    EXPECT_EQ(frame.Cell(frame.rows[0], "name"), "Ours");
    EXPECT_EQ(frame.rows[0].shape.parts[0][0].size(),
              EdgeOf(*host->History().Current().map).size() + 1);
}

/// Replaces labels of what is on the map; of one a text is left, of the others none.
class ExportedLabels : public WorkbenchExports {
protected:
    ExportedLabels() {
        well = Single("select well_name from " + TableName("_well_hdr") + kOfTheBlock +
                      " and surf_lat is not null");
        pipeline = Single("select segment_no from " + TableName("_pipeline") + kOfTheBlock);
        MapDocument next = host->History().Current();
        auto drawings = std::make_shared<Drawings>();
        drawings->labels = {{{LabelLayer::kLeases, kArea, kBlock}, "Ölfeld \"7\""},
                            {{LabelLayer::kWells, kArea, well}, ""},
                            {{LabelLayer::kPipelines, kArea, pipeline}, "Ours"}};
        next.drawings = drawings;
        host->History().Do(next, "labels");
    }
    static std::vector<std::string> Labels(const ReadTable& table, const std::string& column,
                                           const std::string& value) {
        std::vector<std::string> labels;
        for (const Feature& row : table.rows)
            if (table.Cell(row, column) == value && table.Cell(row, "areacode") == kArea)
                labels.push_back(table.Cell(row, "map_label"));
        return labels;
    }

    const std::string kOfTheBlock =
        std::string(" where areacode = '") + kArea + "' and lbnum = '" + kBlock + "'";
    std::string well, pipeline;
};

TEST_F(ExportedLabels, AreInAGeoPackageAsTheMapHasThemBesideTheOriginals) {
    if (!KVGUICTL_HAS_GDAL) GTEST_SKIP() << "There is no GDAL here";
    Export("GeoPackage", "map.gpkg");
    EXPECT_THAT(failures, IsEmpty());
    const ReadTable blocks = ReadBack(Path("map.gpkg"), "blocks");
    EXPECT_THAT(Labels(blocks, "block", kBlock), ElementsAre("Ölfeld \"7\""));
    EXPECT_THAT(Labels(blocks, "block", "392"), ElementsAre("392"));
    const ReadTable wells = ReadBack(Path("map.gpkg"), "wells");
    EXPECT_THAT(Labels(wells, "well_name", well), testing::Each("(null)"));
    EXPECT_THAT(Labels(wells, "well_name", well), Not(IsEmpty()));
    const ReadTable pipelines = ReadBack(Path("map.gpkg"), "pipelines");
    EXPECT_THAT(Labels(pipelines, "segment_no", pipeline), ElementsAre("Ours"));
    const ReadTable platforms = ReadBack(Path("map.gpkg"), "platforms");
    ASSERT_THAT(platforms.rows, Not(IsEmpty()));
    for (const Feature& row : platforms.rows)
        EXPECT_EQ(platforms.Cell(row, "map_label"),
                  platforms.Cell(row, "structure") + "-" + platforms.Cell(row, "complex_id"));
}

TEST_F(ExportedLabels, AreInGeoJsonAsTheMapHasThemBesideTheOriginals) {
    if (!HasGrid()) GTEST_SKIP() << "The datum grid us_noaa_conus.tif is not installed here";
    Export("GeoJSON", "map.geojson");
    EXPECT_THAT(failures, IsEmpty());
    std::map<std::string, nlohmann::json> ofTheBlocks;
    const nlohmann::json map = nlohmann::json::parse(folder.Read("map.geojson"));
    for (const nlohmann::json& feature : map["features"]) {
        const nlohmann::json& told = feature["properties"];
        if (told["layer"] == "blocks" && told["areacode"] == kArea)
            ofTheBlocks[told["block"].get<std::string>()] = told["map_label"];
    }
    EXPECT_EQ(ofTheBlocks[kBlock], "Ölfeld \"7\"");
    EXPECT_EQ(ofTheBlocks["392"], "392");
}

TEST_F(WorkbenchExports, GeoJsonIsOnItsOwnDatum) {
    if (!KVGUICTL_HAS_GDAL) GTEST_SKIP() << "There is no GDAL here";
    if (!HasGrid()) GTEST_SKIP() << "The datum grid us_noaa_conus.tif is not installed here";
    Export("GeoJSON", "map.geojson");
    EXPECT_THAT(failures, IsEmpty());
    const ReadTable all = ReadBack(Path("map.geojson"), "");
    EXPECT_THAT(all.layer->ReferenceSystem(), HasSubstr("WGS 84"));
    Spots shifted;
    for (const Spot& corner : CornersOf(kArea, kBlock)) {
        const Place place = OnNad83({corner.y, corner.x});
        EXPECT_GT(std::hypot(place.lon - corner.x, place.lat - corner.y), 1e-5);
        shifted.push_back({place.lon, place.lat});
    }
    int blocks = 0, wells = 0;
    for (const Feature& row : all.rows) {
        wells += all.Cell(row, "layer") == "wells";
        if (all.Cell(row, "layer") != "blocks" || all.Cell(row, "areacode") != kArea ||
            all.Cell(row, "block") != kBlock)
            continue;
        ++blocks;
        EXPECT_TRUE(IsRingOf(row.shape.parts[0][0], shifted));
    }
    EXPECT_EQ(blocks, 1);
    EXPECT_GT(wells, 0);
}

TEST_F(WorkbenchExports, GeoJsonIsRefusedWhereTheGridDoesNotReach) {
    MapDocument next = host->History().Current();
    auto drawings = std::make_shared<Drawings>();
    // From what is seen to where no grid is.
    const Spots corners = CornersOf(kArea, kBlock);
    drawings->lines = {{{{corners[0].y, corners[0].x}, {-40, 10}}}};
    next.drawings = drawings;
    host->History().Do(next, "far");
    Export("GeoJSON", "map.geojson");
    EXPECT_THAT(failures, ElementsAre(HasSubstr(HasGrid() ? "a place lies outside of the grid"
                                                          : "projsync --file us_noaa_conus")));
    EXPECT_FALSE(folder.Has("map.geojson"));
}

TEST_F(WorkbenchExports, WithoutGdalThePersonIsToldWhatToInstall) {
    folder.Set("KVGUICTL_ENGINES", folder.Native());
    Trigger("Export GeoPackage...", {});
    EXPECT_THAT(failures, ElementsAre(HasSubstr("apt-get install libgdal-dev")));
}

TEST_F(ExportJobs, WhatCannotBeWrittenLeavesTheOldFileAndIsTold) {
    folder.Write("map.gpkg", "good");
    for (int call = 1;; ++call) {
        std::optional<test::FileFaults> faults;
        written = [&] { faults.emplace(call); };
        const ExportEnd end = Run(Path("map.gpkg"));
        const bool reached = faults->Calls() >= call;
        faults.reset();
        EXPECT_EQ(end.whole, !reached) << call;
        EXPECT_EQ(end.failure.isEmpty(), !reached) << call;
        EXPECT_EQ(folder.Read("map.gpkg"), reached ? "good" : "bytes") << call;
        if (!reached) break;
    }
    written = [] {};
    EXPECT_FALSE(Run(Path("nowhere/map.gpkg")).failure.isEmpty());
    EXPECT_FALSE(Run("/dev/full").failure.isEmpty());
}

TEST_F(ExportJobs, ADatabaseThatFailsOnTheWayIsTold) {
    folder.Write("map.gpkg", "good");
    kv::db::SetDatabaseFault([](std::string_view call) { return call == "step"; });
    const ExportEnd end = Run(Path("map.gpkg"));
    kv::db::SetDatabaseFault(nullptr);
    EXPECT_FALSE(end.whole);
    EXPECT_THAT(end.failure.toStdString(), HasSubstr("Database error"));
    EXPECT_EQ(folder.Read("map.gpkg"), "good");
}

TEST_F(ExportJobs, AQueryThatIsCancelledIsNoFailure) {
    written = [] { throw CKvCancelled(); };
    const ExportEnd end = Run(Path("map.gpkg"));
    EXPECT_FALSE(end.whole);
    EXPECT_EQ(end.failure, QString());
    EXPECT_FALSE(folder.Has("map.gpkg"));
}

TEST_F(ExportJobs, AFullDiskIsTold) {
    folder.Write("map.gpkg", "good");
    std::optional<test::FileSizeLimit> limit;
    written = [&] { limit.emplace(3); };
    const ExportEnd end = Run(Path("map.gpkg"));
    limit.reset();
    EXPECT_THAT(end.failure.toStdString(), HasSubstr("File too large"));
    EXPECT_EQ(folder.Read("map.gpkg"), "good");
}

TEST_F(ExportJobs, AnExportThatIsCancelledWritesNothing) {
    const ExportEnd end = Run(Path("map.gpkg"), 1);
    EXPECT_FALSE(end.whole);
    EXPECT_TRUE(end.failure.isEmpty());
    EXPECT_FALSE(folder.Has("map.gpkg"));
}

TEST_F(ExportJobs, WhereNothingIsSeenThereIsNothingToExport) {
    seen = Box();
    seen.Include(ToMap({-40, 10}));
    EXPECT_EQ(Run(Path("map.gpkg")).failure.toStdString(),
              "There is nothing on this part of the map to export.");
    EXPECT_FALSE(folder.Has("map.gpkg"));
}

TEST_F(WorkbenchExports, AnotherDatabaseEndsAnExportAndSaysSo) {
    Begin("GeoJSON", "map.geojson");
    ASSERT_TRUE(host->Runner().Writing());
    std::filesystem::copy_file(test::SampleServer().substr(7), Path("copy.db"));
    QString failure;
    ASSERT_TRUE(host->UseDatabase({"", "", ("sqlite:" + Path("copy.db")).c_str()}, failure));
    EXPECT_EQ(Said(), "The export was cancelled.");
    host->Runner().Finish();
    EXPECT_FALSE(folder.Has("map.geojson")) << "it would hold rows of both";
    EXPECT_FALSE(host->Model().Areas().empty());
}

TEST_F(WorkbenchExports, ADatabaseThatCannotBeOpenedLeavesAnExportGoingOn) {
    if (!HasGrid()) GTEST_SKIP() << "The datum grid us_noaa_conus.tif is not installed here";
    Begin("GeoJSON", "map.geojson");
    QString failure;
    EXPECT_FALSE(host->UseDatabase({"", "", "sqlite:/nowhere/any.db"}, failure));
    host->Runner().Finish();
    EXPECT_TRUE(folder.Has("map.geojson"));
}

TEST_F(WorkbenchExports, AnExportThatIsNotFinishedIsAskedAboutAtClosing) {
    if (!HasGrid()) GTEST_SKIP() << "The datum grid us_noaa_conus.tif is not installed here";
    Begin("GeoJSON", "map.geojson");
    const QPointer<QMainWindow> window = &host->Window();
    person.start(0);
    window->close();
    person.stop();
    EXPECT_THAT(boxes,
                ElementsAre("Exporting the map is not finished yet. End it, with nothing kept?"));
    EXPECT_TRUE(window && window->isVisible()) << "the answer was no";
    host->Runner().Finish();
    EXPECT_TRUE(folder.Has("map.geojson"));
    Begin("GeoJSON", "again.geojson");
    answer = QMessageBox::Yes;
    person.start(0);
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    person.stop();
    EXPECT_FALSE(window && window->isVisible());
}

TEST_F(WorkbenchExports, AReportIsSavedAsAWorkbookWhereItsNameSaysSo) {
    host->PickInBar(*host->Canvas().GetPick().block);
    Report("Wells");
    Trigger("Save results...", {NameFile(Path("wells.xlsx"))});
    Trigger("Save results...", {NameFile(Path("wells.csv"))});
    EXPECT_THAT(failures, IsEmpty());
    EXPECT_THAT(folder.Read("wells.xlsx"), testing::StartsWith("PK"));
    EXPECT_THAT(folder.Read("wells.csv"), testing::StartsWith("API number,"));
}

TEST_F(WorkbenchExports, AReportDoesNotReplaceAFileOfAnotherSpellingUnasked) {
    host->PickInBar(*host->Canvas().GetPick().block);
    Report("Wells");
    folder.Write("Wells.csv", "good");
    const auto giveUp = [] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog) dialog->reject();
        return dialog != nullptr;
    };
    Trigger("Save results...", {NameFile(Path("wells.csv")), giveUp});
    EXPECT_THAT(boxes, ElementsAre(HasSubstr("Wells.csv already exists")));
    EXPECT_EQ(folder.Read("Wells.csv"), "good");
    answer = QMessageBox::Yes;
    Trigger("Save results...", {NameFile(Path("wells.csv"))});
    EXPECT_THAT(folder.Read("Wells.csv"), testing::StartsWith("API number,"));
}

TEST(GeoTables, TakeForANumberOnlyWhatComesBackAsItStands) {
    for (const char* number : {"0", "-0.5", "12", "700.50", "28.123456789"})
        EXPECT_TRUE(geofiles::NumberOf(number)) << number;
    for (const char* text : {"", "007", "-01", "1e5", "0x1", "12 ", "1,5", "inf", "nan", "+1", "-"})
        EXPECT_FALSE(geofiles::NumberOf(text)) << text;
}

TEST(GeoTables, TurnRingsAgainstTheClock) {
    const std::vector<Place> against = {{0, 0}, {0, 1}, {1, 1}, {1, 0}};
    const std::vector<Place> with = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    const std::vector<Place> ring = {{0, 0}, {0, 1}, {1, 1}, {1, 0}, {0, 0}};
    EXPECT_EQ(geofiles::RingOf(against), ring);
    EXPECT_EQ(geofiles::RingOf(with), ring);
}

}  // namespace
}  // namespace workbench
