#include "kvload/guess.h"

#include <nlohmann/json.hpp>

#include "apps/kvload/load_fixture.h"
#include "apps/kvload/ogr_writer.h"
#include "kvload/source_module.h"

namespace test {
namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Guesses : public LoadTest {
protected:
    kvload::Guess GuessOf(const std::string& file) {
        return kvload::GuessMapping(*kvload::Open({folder.Native(file), "", ""}), "");
    }
    json GuessOfCsv(const std::string& text) {
        folder.Write("some.csv", text);
        guess = GuessOf("some.csv");
        return json::parse(guess.json);
    }

    kvload::Guess guess;
};

TEST_F(Guesses, OfBlocksCanBeLoadedAsTheyAre) {
    LoadArea();
    WriteOgrFile({.path = folder.Native("blocks.gpkg"),
                  .driver = "GPKG",
                  .system = "EPSG:4267",
                  .fields = {"AC_LAB", "BLOCK_LAB"},
                  .rows = {{"POLYGON ((-90 27,-90 28,-89 28,-89 27,-90 27))", {"GC", "0123A"}}},
                  .type = "POLYGON"});
    guess = GuessOf("blocks.gpkg");
    EXPECT_THAT(guess.notes, IsEmpty());
    EXPECT_EQ(Load("blocks.gpkg", guess.json).loaded, 1);
    EXPECT_EQ(Rows("select areacode, lbnum, lbext from gulf_mexico_lbi"), "43602|123|A\n");
}

TEST_F(Guesses, OfWellsNameTheirPlacesAndDates) {
    const json mapping = GuessOfCsv(
        "API_WELL_NUMBER,SURF_LATITUDE,SURF_LONGITUDE,BOTT_LATITUDE,BOTT_LONGITUDE,SPUD_DATE\n"
        "177114012300,28,-90,28,-90,03/25/1998\n");
    EXPECT_EQ(mapping["table"], "wells");
    EXPECT_EQ(mapping["fields"]["api_no"], "API_WELL_NUMBER");
    EXPECT_EQ(mapping["fields"]["spud_date"]["format"], "MM/DD/YYYY");
    EXPECT_EQ(mapping["place"]["x"], "SURF_LONGITUDE");
    EXPECT_EQ(mapping["bottom"]["y"], "BOTT_LATITUDE");
    EXPECT_THAT(guess.notes, ElementsAre(HasSubstr("does not tell its reference system")));
}

TEST_F(Guesses, NameTheLayerThatWasAskedFor) {
    folder.Write("areas.csv", "area_name,area_code\nGreen Canyon,43602\n");
    const auto layer = kvload::Open({folder.Native("areas.csv"), "areas", ""});
    EXPECT_EQ(json::parse(kvload::GuessMapping(*layer, "areas").json)["layer"], "areas");
    EXPECT_FALSE(json::parse(GuessOf("areas.csv").json).contains("layer"));
}

TEST_F(Guesses, SayWhereDatesMayBeReadInTwoWays) {
    GuessOfCsv("lease_number,area_code,block,lease_date\nG1,43602,1,03/04/1998\n");
    EXPECT_THAT(guess.notes, ElementsAre(HasSubstr("may be read in two ways")));
}

TEST_F(Guesses, LeaveWhatTheyDoNotFindEmptyAndALoadRefusesIt) {
    const json mapping =
        GuessOfCsv("one,two,WKT\n1,2,\"POLYGON ((-90 27,-90 28,-89 28,-90 27))\"\n");
    EXPECT_FALSE(guess.notes.empty());
    EXPECT_THROW(kvload::ReadMapping(mapping.dump()), kvload::BadMapping);
}

TEST_F(Guesses, TellAreasLeasesAndPipelinesApart) {
    EXPECT_EQ(GuessOfCsv("Area_Name,Area_Code,Area_Abbr\nGreen Canyon,43602,GC\n")["table"],
              "areas");
    EXPECT_EQ(GuessOfCsv("Lease_Number,Area_Code,Block,Lessee\nG1,43602,1,X\n")["table"], "leases");
    EXPECT_EQ(GuessOfCsv("Segment_Num,WKT\n1,\"LINESTRING (-90 28,-89 28)\"\n")["table"],
              "pipelines");
    EXPECT_EQ(GuessOfCsv("Complex_ID,Structure_Name,X,Y\n1,A,-90,28\n")["table"], "platforms");
}

/// A shapefile with one row: its fields as they come out of a table with long names, and what they
/// hold.
class GuessesOfShapefiles : public Guesses {
protected:
    json GuessOfShapefile(const std::string& shape, const std::vector<std::string>& fields,
                          const std::vector<std::string>& cells) {
        WriteOgrFile({.path = folder.Native("rows.shp"),
                      .driver = "ESRI Shapefile",
                      .system = "EPSG:4267",
                      .fields = fields,
                      .rows = {{shape, cells}},
                      .type = shape.substr(0, shape.find(' '))});
        guess = GuessOf("rows.shp");
        return json::parse(guess.json);
    }

    static constexpr const char* kOutline = "POLYGON ((-90 27,-90 28,-89 28,-89 27,-90 27))";
    static constexpr const char* kPoint = "POINT (-90 27)";
};

TEST_F(GuessesOfShapefiles, KnowWellsByNamesThatWereCutShort) {
    const json mapping = GuessOfShapefile(
        kPoint,
        {"API_WELL_N", "WELL_NAME", "COMPANY_NA", "SURF_LEASE", "SURF_AREA_", "SURF_BLOCK",
         "WATER_DEPT", "WELL_SPUD_", "BH_TOTAL_M", "BOREHOLE_S", "SURF_LONGI", "SURF_LATIT"},
        {"608114012300", "001", "Some Oil", "G01234", "GC", "12", "1200", "3/25/1998", "12000",
         "COM", "-90", "27"});
    EXPECT_EQ(mapping["table"], "wells");
    const json& fields = mapping["fields"];
    EXPECT_EQ(fields["api_no"], "API_WELL_N");
    EXPECT_EQ(fields["lease_no"], "SURF_LEASE");
    EXPECT_EQ(fields["areacode"]["field"], "SURF_AREA_");
    EXPECT_EQ(fields["label"], "SURF_BLOCK");
    EXPECT_EQ(fields["status"], "BOREHOLE_S");
    EXPECT_EQ(fields["spud_date"]["format"], "MM/DD/YYYY");
    EXPECT_FALSE(mapping.contains("place")) << "the points are in the file";
}

TEST_F(GuessesOfShapefiles, KnowPlatformsLeasesAndPipelinesByNamesThatWereCutShort) {
    EXPECT_EQ(GuessOfShapefile(kPoint, {"COMPLEX_ID", "AREA_CODE", "BLOCK_NUM", "INSTALL_DA"},
                               {"23", "GC", "12", "1998-03-25"})["table"],
              "platforms");
    const json leases = GuessOfShapefile(
        kOutline,
        {"LEASE_NUMB", "LEASE_EFF_", "LEASE_EXPI", "LEASE_STAT", "AREA_CODE", "BLOCK_NUM",
         "ROYALTY_RA", "OPERATOR"},
        {"G01234", "1998-03-25", "2003-03-25", "PROD", "GC", "12", "12.5", "Some Oil"});
    EXPECT_EQ(leases["table"], "leases");
    EXPECT_EQ(leases["fields"]["lease_date"], "LEASE_EFF_");
    const json lines = GuessOfShapefile("LINESTRING (-90 27,-90 28)",
                                        {"SEGMENT_NU", "STATUS_COD", "PPL_SIZE_C", "ORIG_AREA_",
                                         "ORIG_BLOCK", "DEST_AREA_", "DEST_BLOCK"},
                                        {"12345", "ACT", "08", "GC", "12", "EI", "13"});
    EXPECT_EQ(lines["table"], "pipelines");
    EXPECT_EQ(lines["fields"]["to_areacode"]["by"], "area_abbr");
    EXPECT_EQ(lines["fields"]["to_label"], "DEST_BLOCK");
}

TEST_F(GuessesOfShapefiles, TakeNoAreaOfAnOutlineForItsName) {
    const json mapping = GuessOfShapefile(kOutline, {"AREA", "PERIMETER", "AREA_NAME", "BLK"},
                                          {"23304900.00000", "19200.0", "Green Canyon", "12"});
    EXPECT_EQ(mapping["fields"]["areacode"]["field"], "AREA_NAME");
}

TEST_F(Guesses, LeaveOutFieldsWhoseValuesTheDatasetCannotTake) {
    const json mapping =
        GuessOfCsv("Complex_ID,Structure_Name,X,Y\n1,A-CAISSON,-90,28\n2,B-CAISSON,-90,28\n");
    EXPECT_FALSE(mapping["fields"].contains("structure"));
    EXPECT_THAT(guess.notes, testing::Contains(HasSubstr(
                                 "Structure_Name is not taken for \"structure\": \"B-CAISSON\" "
                                 "is longer than 4")));
}

TEST_F(Guesses, OfAreasTakeTheLettersForACodeWhereThereIsNoOther) {
    const json mapping = GuessOfCsv("PROT_NAME,PROT_NUMBER,AREA_CODE\nGreen Canyon,NG15-03,GC\n");
    EXPECT_EQ(mapping["table"], "areas");
    EXPECT_EQ(mapping["fields"]["stcode"], "AREA_CODE");
    EXPECT_EQ(mapping["fields"]["area_abbr"], "AREA_CODE");
}

TEST_F(Guesses, KnowTheDatumOfCoordinatesThatNameIt) {
    const json mapping =
        GuessOfCsv("API,LONG83,LAT83,LONG27,LAT27\n6033000101,-90.1,28.1,-90,28\n");
    EXPECT_THAT(guess.notes, IsEmpty());
    EXPECT_EQ(mapping["place"], (json{{"x", "LONG27"}, {"y", "LAT27"}, {"crs", "EPSG:4267"}}));
    Load("some.csv", guess.json);
    EXPECT_EQ(Rows("select surf_lat, surf_lon from gulf_mexico_well_hdr"), "28|-90\n");
}

TEST_F(Guesses, KnowCoordinatesInDegreesMinutesAndSecondsByTheirNamesOrTheirLetters) {
    EXPECT_EQ(GuessOfCsv("API,LAT_NAD27,LONG_NAD27\n6033000101,28 30 15 N,90:15:30 W\n")["place"],
              (json{{"x", "LONG_NAD27"}, {"y", "LAT_NAD27"}, {"crs", "EPSG:4267"}}));
    EXPECT_EQ(GuessOfCsv("API,Lat_DMS,Long_DMS\n6033000101,28-30-15,-90-15-30\n")["place"],
              (json{{"x", "Long_DMS"}, {"y", "Lat_DMS"}}));
    const json mapping = GuessOfCsv(
        "API,Depth,North,West,BH_LAT,BH_LON\n6033000101,120,28 30 15 N,90 15 30 W,28 N,90 W\n"
        "6033000102,130,,90 15.5 W,28 N,90 W\n");
    EXPECT_EQ(mapping["table"], "wells");
    EXPECT_EQ(mapping["place"], (json{{"x", "West"}, {"y", "North"}}));
    EXPECT_EQ(mapping["bottom"], (json{{"x", "BH_LON"}, {"y", "BH_LAT"}}));
    EXPECT_FALSE(GuessOfCsv("API,From,To\n6033000101,28 30,95 30\n").contains("place"));
}

/// A file geodatabase with one well, whose fields have other names and lists of values.
class GuessesOfGeodatabases : public Guesses {
protected:
    json GuessOfWell(const std::vector<std::string>& cells) {
        OgrFile file = {.path = folder.Native("wells.gdb"),
                        .driver = "OpenFileGDB",
                        .system = "EPSG:4267",
                        .fields = {"F1", "F2", "F3", "F4"},
                        .rows = {{"POINT (-90 27)", cells}},
                        .type = "POINT"};
        file.aliases = {"API Well Number", "Borehole Stat Cd", "Operator", "Surf Area"};
        file.lists = {{"F2", {{"1", "Completed"}, {"2", "Abandoned"}}},
                      {"F3", {{"00276", "Some Oil"}, {"00277", "Other Oil"}}},
                      {"F4", {{"1", "Green Canyon"}, {"2", "Walker Ridge"}}}};
        WriteOgrFile(file);
        guess = GuessOf("wells.gdb");
        return json::parse(guess.json);
    }
};

TEST_F(GuessesOfGeodatabases, KnowFieldsByTheirOtherNamesAndShowTheTextsOfTheirLists) {
    const json mapping = GuessOfWell({"6033000101", "2", "00276", "1"});
    EXPECT_EQ(mapping["table"], "wells");
    const json& fields = mapping["fields"];
    EXPECT_EQ(fields["api_no"], "F1");
    EXPECT_EQ(fields["status"],
              (json{{"field", "F2"}, {"codes", {{"Completed", "1"}, {"Abandoned", "2"}}}}));
    EXPECT_EQ(fields["operator"]["codes"],
              (json{{"Some Oil", "Some Oil"}, {"Other Oil", "Other Oil"}}));
    EXPECT_EQ(fields["areacode"]["by"], "areaname");
    LoadArea();
    EXPECT_THAT(Load("wells.gdb", guess.json).notes, IsEmpty());
    EXPECT_EQ(Rows("select api_no, status, operator, areacode from gulf_mexico_well_hdr"),
              "603300010100|2|SOME OIL|43602\n");
}

TEST_F(GuessesOfGeodatabases, GiveCodesByTextsToALoadWhichKnowsOtherNamesToo) {
    GuessOfWell({"6033000101", "2", "00276", "1"});
    Load("wells.gdb", R"({"table": "wells", "fields": {"api_no": "api well number",
        "status": {"field": "F2", "codes": {"Abandoned": "PA", "1": "COM"}},
        "operator": "F3"}})");
    EXPECT_EQ(Rows("select api_no, status, operator from gulf_mexico_well_hdr"),
              "603300010100|PA|00276\n");
}

TEST_F(GuessesOfGeodatabases, OfAListWhoseTextsAreNotOneEachGoByItsValues) {
    WriteOgrFile({.path = folder.Native("wells.gpkg"),
                  .driver = "GPKG",
                  .system = "EPSG:4267",
                  .fields = {"API", "STATUS"},
                  .rows = {{"POINT (-90 27)", {"6033000101", "A"}},
                           {"POINT (-90 27)", {"6033000102", "B"}},
                           {"POINT (-90 27)", {"6033000103", "C"}}},
                  .type = "POINT",
                  .lists = {{"STATUS", {{"A", "Other"}, {"B", "OTHER"}, {"C", ""}}}}});
    guess = GuessOf("wells.gpkg");
    EXPECT_EQ(json::parse(guess.json)["fields"]["status"]["codes"],
              (json{{"A", "A"}, {"B", "B"}, {"C", "C"}}));
    Load("wells.gpkg", guess.json);
    EXPECT_EQ(Rows("select status from gulf_mexico_well_hdr order by 1"), "A\nB\nC\n");
}

TEST_F(GuessesOfGeodatabases, OfATextThatIsAnotherValueTakeItForAText) {
    WriteOgrFile({.path = folder.Native("wells.gpkg"),
                  .driver = "GPKG",
                  .system = "EPSG:4267",
                  .fields = {"API", "STATUS"},
                  .rows = {{"POINT (-90 27)", {"6033000101", "OLD"}},
                           {"POINT (-90 27)", {"6033000102", "PAST"}}},
                  .type = "POINT",
                  .lists = {{"STATUS", {{"OLD", "past"}, {"PAST", "forever"}}}}});
    Load("wells.gpkg", GuessOf("wells.gpkg").json);
    EXPECT_EQ(Rows("select status from gulf_mexico_well_hdr order by api_no"), "OLD\nPAST\n");
}

TEST_F(Guesses, DoNotTakeFeetForDegreesOfADatum) {
    const json mapping = GuessOfCsv("API,X_NAD27,Y_NAD27\n6033000101,3000000,100000\n");
    EXPECT_FALSE(mapping.contains("place"));
}

}  // namespace
}  // namespace test
