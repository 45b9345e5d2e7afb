// Files of every kind that agencies hand out, and what is broken in them.

#include <filesystem>
#include <fstream>

#include "apps/kvload/load_fixture.h"
#include "apps/kvload/ogr_writer.h"

namespace test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kBlocksByFields =
    R"({"table": "blocks", "fields": {"areacode": "AreaCode", "label": "block_lab"}})";
constexpr const char* kPlainSquare = "POLYGON ((-90 27,-90 28,-89 28,-89 27,-90 27))";
constexpr const char* kCorners = "1|27|-90\n2|28|-90\n3|28|-89\n4|27|-89\n";

class LoadFormats : public LoadTest {
protected:
    LoadFormats() { LoadArea(); }

    /// A file with one block.
    OgrFile File(const std::string& name, const std::string& driver) const {
        return {.path = folder.Native(name),
                .driver = driver,
                .system = "EPSG:4267",
                .fields = {"AREACODE", "Block_Lab"},
                .rows = {{kPlainSquare, {"43602", "0123A"}}}};
    }

    void ExpectTheBlock(const kvload::Outcome& outcome) {
        EXPECT_THAT(outcome.leftOut, IsEmpty());
        EXPECT_EQ(Rows("select areacode, lbnum, lbext, refnum from gulf_mexico_lbi"),
                  "43602|123|A|1\n");
        EXPECT_EQ(
            Rows("select ptnum, lat, lon from gulf_mexico_lbv where refnum = 1 order by ptnum"),
            kCorners);
    }

    void CutShort(const std::string& name, std::uintmax_t bytes) {
        std::filesystem::resize_file(folder.Native(name), bytes);
    }
};

TEST_F(LoadFormats, TakeAShapefile) {
    WriteOgrFile(File("blocks.shp", "ESRI Shapefile"));
    ExpectTheBlock(Load("blocks.shp", kBlocksByFields));
}

TEST_F(LoadFormats, TakeAGeoPackage) {
    WriteOgrFile(File("blocks.gpkg", "GPKG"));
    ExpectTheBlock(Load("blocks.gpkg", kBlocksByFields));
}

TEST_F(LoadFormats, TakeAFileGeodatabase) {
    OgrFile file = File("blocks.gdb", "OpenFileGDB");
    file.type = "MULTIPOLYGON";
    WriteOgrFile(file);
    ExpectTheBlock(Load("blocks.gdb", kBlocksByFields));
}

TEST_F(LoadFormats, TakeGeoJsonByTheSystemThatTheMappingNames) {
    folder.Write("blocks.geojson", R"({"type": "FeatureCollection", "features": [
        {"type": "Feature", "properties": {"areacode": "43602", "block_lab": "123A"}, "geometry":
         {"type": "Polygon", "coordinates": [[[-90,27],[-90,28],[-89,28],[-89,27],[-90,27]]]}}]})");
    ExpectTheBlock(Load("blocks.geojson", R"({"table": "blocks", "crs": "EPSG:4267",
        "fields": {"areacode": "areacode", "label": "block_lab"}})"));
}

TEST_F(LoadFormats, TakeCsvWithWellKnownText) {
    folder.Write("blocks.csv", std::string("area,block,the_geom\n43602,0123A,") + kSquare + "\n");
    ExpectTheBlock(Load("blocks.csv", R"({"table": "blocks", "crs": "EPSG:4267",
        "place": {"wkt": "THE_GEOM"}, "fields": {"areacode": "area", "label": "block"}})"));
}

TEST_F(LoadFormats, TakeCsvWithSemicolonsAndAColumnNamedWkt) {
    folder.Write("blocks.csv", std::string("area;block;WKT\n43602;0123A;") + kSquare + "\n");
    ExpectTheBlock(Load("blocks.csv", kBlocks));
}

TEST_F(LoadFormats, TakeCsvWithXAndY) {
    folder.Write("wells.csv",
                 "API,LAT,LON\n0421140123,28.25,-89.5\n1771140124,,\n1771140125,0,0\n");
    const auto outcome = Load("wells.csv", R"({"table": "wells", "crs": "EPSG:4267",
        "place": {"x": "lon", "y": "lat"}, "fields": {"api_no": "api"}})");
    EXPECT_EQ(Rows("select api_no, surf_lat, surf_lon from gulf_mexico_well_hdr order by 1"),
              "042114012300|28.25|-89.5\n177114012400||\n177114012500||\n");
    EXPECT_THAT(outcome.notes, ElementsAre(HasSubstr("row 2, 1771140124: it has no place"),
                                           HasSubstr("row 3, 1771140125: it has no place")));
}

TEST_F(LoadFormats, TakeHeightsAndMeasuresForNothing) {
    OgrFile file = File("blocks.gpkg", "GPKG");
    file.rows[0].shape =
        "MULTIPOLYGON ZM (((-90 27 5 1,-90 28 5 1,-89 28 5 1,-89 27 5 1,-90 27 5 1)))";
    WriteOgrFile(file);
    ExpectTheBlock(Load("blocks.gpkg", kBlocksByFields));
}

TEST_F(LoadFormats, FollowCurves) {
    OgrFile file = File("blocks.gpkg", "GPKG");
    file.rows[0].shape = "CURVEPOLYGON (CIRCULARSTRING (-90 27,-89 28,-88 27,-89 26,-90 27))";
    WriteOgrFile(file);
    Load("blocks.gpkg", kBlocksByFields);
    EXPECT_EQ(Rows("select count(*) > 30 from gulf_mexico_lbv"), "1\n");
}

TEST_F(LoadFormats, TakeLettersOfEitherKindFromAShapefileThatNamesNone) {
    for (const char* encoding : {"UTF-8", "ISO-8859-1"}) {
        const std::string name = std::string("leases-") + encoding;
        OgrFile file = File(name + ".shp", "ESRI Shapefile");
        file.fields.push_back("Operator");
        file.rows[0].cells.push_back("Pétróleo");
        file.layerOptions = {std::string("ENCODING=") + encoding};
        WriteOgrFile(file);
        std::filesystem::remove(folder.Native(name + ".cpg"));
        Load(name + ".shp", R"({"table": "leases", "fields": {"areacode": "areacode",
            "label": "block_lab", "operator": "operator"}})",
             true);
        EXPECT_EQ(Rows("select operator from gulf_mexico_lease"), "PéTRóLEO\n") << encoding;
    }
}

TEST_F(LoadFormats, NeedAReferenceSystem) {
    OgrFile file = File("blocks.shp", "ESRI Shapefile");
    file.system.clear();
    WriteOgrFile(file);
    EXPECT_THAT(Complaint("blocks.shp", kBlocksByFields),
                HasSubstr("does not tell its reference system"));
    ExpectTheBlock(Load("blocks.shp", R"({"table": "blocks", "crs": "EPSG:4267",
        "fields": {"areacode": "areacode", "label": "block_lab"}})"));
}

TEST_F(LoadFormats, NameTheLayersOfAFileThatHasSeveral) {
    for (const char* name : {"one", "two"})
        folder.Write(std::string("many/") + name + ".csv", "name,code,abbr\nA,1,\n");
    EXPECT_THAT(Complaint("many", kAreas), HasSubstr("several layers: "));
    const std::string two = std::string("{\"layer\": \"two\", ") + (kAreas + 1);
    EXPECT_EQ(Load("many", two).loaded, 1);
    const std::string three = std::string("{\"layer\": \"three\", ") + (kAreas + 1);
    EXPECT_THAT(Complaint("many", three), HasSubstr("no layer \"three\": "));
}

TEST_F(LoadFormats, TakeWhatLiesInAnArchiveOrInAFolderOfIt) {
    const std::string areas = "name,code,abbr\nWalker Ridge,43610,WR\n";
    for (const char* name : {"areas.csv", "data/areas.csv"}) {
        const std::string archive = name == std::string("areas.csv") ? "flat.zip" : "deep.zip";
        WriteArchive(folder.Native(archive), name, areas);
        EXPECT_EQ(Load(archive, kAreas, true).loaded, 1) << name;
    }
    folder.Write("noise.zip", "no archive");
    EXPECT_THAT(Complaint("noise.zip", kAreas), HasSubstr("noise.zip cannot be read"));
}

TEST_F(LoadFormats, TakeTablesInTextByAnyName) {
    const std::string commas = "name,code,abbr\nWalker Ridge,43610,WR\n";
    for (const char* name : {"areas.txt", "areas.dat", "AREAS.TXT"}) {
        folder.Write(name, commas);
        EXPECT_EQ(Load(name, kAreas, true).loaded, 1) << name;
    }
    folder.Write("tabs.txt", "name\tcode\tabbr\nWalker Ridge\t43610\tWR\n");
    EXPECT_EQ(Load("tabs.txt", kAreas, true).loaded, 1);
    for (const char* name : {"strokes.txt", "strokes.csv"}) {
        folder.Write(name, "\"name\"|code|abbr\n\"Walker, Ridge\"|43610|WR\n");
        EXPECT_EQ(Load(name, kAreas, true).loaded, 1) << name;
        EXPECT_EQ(Rows("select areaname from gulf_mexico_connam2"), "WALKER, RIDGE\n");
    }
}

TEST_F(LoadFormats, TakeTablesInUtf16) {
    std::string bytes = "\xFF\xFE";
    for (const char ch : std::string("name,code,abbr\r\nWalker Ridge,43610,WR\r\n"))
        bytes.append(1, ch).append(1, '\0');
    folder.Write("areas.csv", bytes);
    EXPECT_EQ(Load("areas.csv", kAreas, true).loaded, 1);
}

TEST_F(LoadFormats, RefuseColumnsOfAFixedWidth) {
    for (const char* name : {"areas.csv", "areas.dat"}) {
        folder.Write(name, "name          code  abbr\nWalker Ridge  43610 WR\n");
        EXPECT_THAT(Complaint(name, kAreas), HasSubstr("columns are of a fixed width")) << name;
    }
}

TEST_F(LoadFormats, TakeTheOneTextOfAnArchive) {
    WriteArchive(folder.Native("areas.zip"), "data/areas.txt",
                 "name,code,abbr\nWalker Ridge,43610,WR\n");
    EXPECT_EQ(Load("areas.zip", kAreas, true).loaded, 1);
}

TEST_F(LoadFormats, PassOverWhatASystemKeepsInArchivesForItself) {
    OgrFile file = File("blocks.shp", "ESRI Shapefile");
    WriteOgrFile(file);
    for (const char* ending : {".shp", ".shx", ".dbf", ".prj"}) {
        WriteArchive(folder.Native("blocks.zip"), std::string("blocks/blocks") + ending,
                     folder.Read(std::string("blocks") + ending));
        WriteArchive(folder.Native("blocks.zip"), std::string("__MACOSX/blocks/._blocks") + ending,
                     std::string(100, '\0'));
    }
    ExpectTheBlock(Load("blocks.zip", kBlocksByFields));
}

TEST_F(LoadFormats, TellWhereTablesLieInAnArchiveThatHasSeveral) {
    for (const char* name : {"one/areas.csv", "two/areas.csv"})
        WriteArchive(folder.Native("areas.zip"), name, "name,code,abbr\nA,1,\n");
    EXPECT_THAT(Complaint("areas.zip", kAreas), HasSubstr("Tables lie in one and in two"));
}

TEST_F(LoadFormats, TellThatAShapefileLacksItsTable) {
    WriteOgrFile(File("blocks.shp", "ESRI Shapefile"));
    std::filesystem::remove(folder.Native("blocks.dbf"));
    EXPECT_THAT(Complaint("blocks.shp", kBlocksByFields), HasSubstr("it has none"));
}

TEST_F(LoadFormats, TellThatTheMappingNamesAnotherSystemThanTheSource) {
    OgrFile file = File("blocks.gpkg", "GPKG");
    file.system = "EPSG:4269";
    WriteOgrFile(file);
    const std::string named = std::string("{\"crs\": \"EPSG:4267\", ") + (kBlocksByFields + 1);
    EXPECT_EQ(Load("blocks.gpkg", named).system,
              "NAD27, the dataset's own datum, by the mapping; the source itself names NAD83");
}

TEST_F(LoadFormats, TellWhichFieldIsNotThere) {
    folder.Write("areas.csv", "name,CODE\nA,1\n");
    EXPECT_THAT(Complaint("areas.csv", kAreas),
                HasSubstr("has no field \"abbr\"; it has \"name\" \"CODE\""));
}

TEST_F(LoadFormats, TellWhatIsWrongWithAFile) {
    EXPECT_THAT(Complaint("none.shp", kBlocks), HasSubstr("There is no file"));
    folder.Write("empty.shp", "");
    EXPECT_THAT(Complaint("empty.shp", kBlocks), HasSubstr("empty.shp cannot be read"));
    folder.Write("noise.gpkg", "no database");
    EXPECT_THAT(Complaint("noise.gpkg", kBlocks), HasSubstr("noise.gpkg cannot be read"));
    folder.Write("noise.geojson", "{\"type\": \"FeatureCollection\", \"features\": [{");
    EXPECT_THAT(Complaint("noise.geojson", kBlocks), HasSubstr("noise.geojson cannot be read"));
    folder.Write("noise.gdb/a00000001.gdbtable", "no table");
    EXPECT_THAT(Complaint("noise.gdb", kBlocks), HasSubstr("noise.gdb cannot be read"));
    folder.Write("empty.csv", "");
    EXPECT_NE(Complaint("empty.csv", kBlocks), "");
}

TEST_F(LoadFormats, LoadNothingOfAShapefileThatBreaksOff) {
    OgrFile file = File("blocks.shp", "ESRI Shapefile");
    for (int i = 1; i < 20; ++i)
        file.rows.push_back({kPlainSquare, {"43602", std::to_string(i)}});
    WriteOgrFile(file);
    CutShort("blocks.shp", 1000);
    EXPECT_THAT(Complaint("blocks.shp", kBlocksByFields), HasSubstr("damaged at row"));
    EXPECT_EQ(Rows("select count(*) from gulf_mexico_lbi"), "0\n");
}

TEST_F(LoadFormats, LoadNothingOfAGeoPackageThatBreaksOff) {
    OgrFile file = File("blocks.gpkg", "GPKG");
    for (int i = 1; i < 2000; ++i)
        file.rows.push_back({kPlainSquare, {"43602", std::to_string(i)}});
    WriteOgrFile(file);
    CutShort("blocks.gpkg", std::filesystem::file_size(folder.Native("blocks.gpkg")) / 2);
    EXPECT_NE(Complaint("blocks.gpkg", kBlocksByFields), "");
    EXPECT_EQ(Rows("select count(*) from gulf_mexico_lbi"), "0\n");
}

}  // namespace
}  // namespace test
