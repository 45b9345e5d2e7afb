// What becomes of single rows.

#include "apps/kvload/load_fixture.h"

namespace test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class LoadRows : public LoadTest {
protected:
    LoadRows() { LoadArea(); }

    kvload::Outcome LoadBlocks(const std::string& rows) {
        folder.Write("blocks.csv", "area,block,WKT\n" + rows);
        return Load("blocks.csv", kBlocks);
    }
    static constexpr const char* kWells = R"({"table": "wells", "crs": "EPSG:4267",
        "place": {"x": "x", "y": "y"}, "fields": {"api_no": "api"}})";

    std::string Outline() const {
        return Rows("select lat, lon from gulf_mexico_lbv order by refnum, ptnum");
    }
};

TEST_F(LoadRows, ThatCannotBeTakenAreListedWithTheReason) {
    const auto outcome = LoadBlocks(std::string("43602,1,") + kSquare + "\n43602,2,\nXX,3," +
                                    kSquare + "\n43602,1B2C," + kSquare + "\n43602,1," + kSquare +
                                    "\n43602,5,POINT (-90 28)\n43602,6,POLYGON EMPTY\n"
                                    "43602,7,\"POLYGON ((-90 27,-90 28,-90 27))\"\n"
                                    "43602,8,\"POLYGON ((900 27,-90 28,-89 27,900 27))\"\n,9," +
                                    kSquare + "\n");
    EXPECT_EQ(outcome.rows, 10);
    EXPECT_EQ(outcome.loaded, 1);
    EXPECT_THAT(
        outcome.leftOut,
        ElementsAre("row 2, 43602, 2: it has no geometry",
                    "row 3, XX, 3: areacode: no area has the code \"XX\"",
                    HasSubstr("label: the label \"1B2C\" does not split"),
                    HasSubstr("its areacode, lbnum, lbext is that of row 1 already"),
                    HasSubstr("its geometry is a point, not an outline"),
                    HasSubstr("it has no geometry"), HasSubstr("its outline has no area"),
                    HasSubstr("900, 27 is no place in NAD27"), HasSubstr("its areacode is empty")));
}

TEST_F(LoadRows, OfSeveralPartsKeepTheLargestAndSaySo) {
    const auto outcome = LoadBlocks(
        "43602,1,\"MULTIPOLYGON (((-90 27,-90 27.1,-89.9 27.1,-90 27)),"
        "((-89 27,-89 28,-88 28,-88 27,-89 27)))\"\n");
    EXPECT_EQ(Outline(), "27|-89\n28|-89\n28|-88\n27|-88\n");
    EXPECT_THAT(
        outcome.notes,
        ElementsAre("row 1, 43602, 1: of 2 parts the largest is taken, with 99.5 percent of "
                    "the area"));
}

TEST_F(LoadRows, WithHolesAreFilledAndSaySo) {
    const auto outcome = LoadBlocks(
        "43602,1,\"POLYGON ((-90 27,-90 28,-89 28,-89 27,-90 27),"
        "(-89.6 27.4,-89.4 27.4,-89.4 27.6,-89.6 27.4))\"\n");
    EXPECT_EQ(Outline(), "27|-90\n28|-90\n28|-89\n27|-89\n");
    EXPECT_THAT(outcome.notes, ElementsAre("row 1, 43602, 1: 1 hole filled"));
}

TEST_F(LoadRows, ThatCrossThemselvesSaySo) {
    const auto outcome = LoadBlocks("43602,1,\"POLYGON ((-90 27,-88 29,-88 27,-90 30,-90 27))\"\n");
    EXPECT_THAT(outcome.notes, ElementsAre(HasSubstr("crosses itself near 28.2")));
}

TEST_F(LoadRows, AgainstTheClockAreTurned) {
    LoadBlocks("43602,1,\"POLYGON ((-90 27,-89 27,-89 28,-90 28,-90 27))\"\n");
    EXPECT_EQ(Outline(), "27|-90\n28|-90\n28|-89\n27|-89\n");
}

TEST_F(LoadRows, OfAnAreaAreFoundByItsOtherNames) {
    folder.Write("leases.csv",
                 "no,area,blk,from\nG1,gc,1,03/04/1998\nG2,ZZ,1,\nG3,GC,1,1998-03-04\n");
    const auto outcome = Load("leases.csv", R"({"table": "leases", "fields": {"lease_no": "no",
        "areacode": {"field": "area", "by": "area_abbr"}, "label": "blk",
        "lease_date": {"field": "from", "format": "MM/DD/YYYY"}, "lplana": {"value": "c"}}})");
    EXPECT_EQ(Rows("select lease_no, areacode, lbnum, lplana, lease_date from gulf_mexico_lease"),
              "G1|43602|1|C|1998-03-04\n");
    EXPECT_THAT(outcome.leftOut, ElementsAre(HasSubstr("no area is called \"ZZ\""),
                                             HasSubstr("is no date of the form MM/DD/YYYY")));
}

TEST_F(LoadRows, OfAnMmsCodeThatSeveralAreasHaveAreLeftOut) {
    folder.Write("more.csv", "name,code,abbr\nGreen Canyon South,43603,GC\n");
    Load("more.csv", kAreas);
    folder.Write("leases.csv", "area,blk\nGC,1\n");
    const auto outcome = Load("leases.csv", R"({"table": "leases", "fields": {
        "areacode": {"field": "area", "by": "area_abbr"}, "label": "blk"}})");
    EXPECT_THAT(outcome.leftOut,
                ElementsAre(HasSubstr("several areas are called \"GC\": 43602, 43603")));
}

TEST_F(LoadRows, OfAnMmsCodeThatSeveralAreasHaveAreOfTheOneThatHasTheirBlock) {
    folder.Write("more.csv", "name,code,abbr\nGreen Canyon South,43603,GC\n");
    Load("more.csv", kAreas);
    LoadBlocks(std::string("43602,1,") + kSquare + "\n43603,2A," + kSquare + "\n43602,3," +
               kSquare + "\n43603,3," + kSquare + "\n");
    folder.Write("lines.csv",
                 "seg,area,blk,to,toblk,WKT\n1,GC,1,gc,A-2,\"LINESTRING (-90 28,-89 28)\"\n"
                 "2,GC,3,GC,,\"LINESTRING (-90 28,-89 28)\"\n");
    const auto outcome = Load("lines.csv", R"({"table": "pipelines", "crs": "EPSG:4267", "fields": {
        "segment_no": "seg", "areacode": {"field": "area", "by": "area_abbr"}, "label": "blk",
        "to_areacode": {"field": "to", "by": "area_abbr"}, "to_label": "toblk"}})");
    EXPECT_EQ(Rows("select segment_no, areacode, to_areacode from gulf_mexico_pipeline order by 1"),
              "1|43602|43603\n2||\n");
    EXPECT_THAT(outcome.notes, testing::SizeIs(2));
    EXPECT_THAT(outcome.notes, testing::Each(HasSubstr("several areas are called \"GC\"")));
}

TEST_F(LoadRows, TakeTheCodeThatStandsForTheirText) {
    folder.Write("wells.csv", "api,st,area\n1771140123,Completed,43602\n1771140124,odd,SHORE\n");
    const auto outcome = Load("wells.csv", R"({"table": "wells", "fields": {"api_no": "api",
        "areacode": "area", "status": {"field": "st", "codes": {"COMPLETED": "COM"}}}})");
    EXPECT_EQ(Rows("select api_no, status, areacode from gulf_mexico_well_hdr"),
              "177114012300|COM|43602\n");
    EXPECT_THAT(outcome.leftOut, ElementsAre(HasSubstr("status: \"odd\" is none of the codes")));
}

TEST_F(LoadRows, WithAnUnknownAreaThatNothingNeedsAreTakenWithoutIt) {
    folder.Write("wells.csv", "api,area\n1771140124,SHORE\n");
    const auto outcome =
        Load("wells.csv", R"({"table": "wells", "fields": {"api_no": "api", "areacode": "area"}})");
    EXPECT_EQ(outcome.loaded, 1);
    EXPECT_THAT(outcome.notes, ElementsAre(HasSubstr("areacode stays empty")));
}

TEST_F(LoadRows, OfAnAreaAreFoundWithTheirNamesBlanksAndCodesFractions) {
    folder.Write("leases.csv", "area,blk\n Green   Canyon ,1\ngreen canyon,2\nGC,3\n");
    const auto byName = Load("leases.csv", R"({"table": "leases", "fields": {
        "areacode": {"field": "area", "by": "areaname"}, "label": "blk"}})");
    EXPECT_EQ(byName.loaded, 2);
    EXPECT_THAT(byName.leftOut, ElementsAre(HasSubstr("no area is called \"GC\"")));
    folder.Write("codes.csv", "area,blk\n43602.0,4\n");
    EXPECT_EQ(Load("codes.csv", R"({"table": "leases", "fields": {"areacode": "area",
        "label": "blk"}})")
                  .loaded,
              1);
}

TEST_F(LoadRows, WithAmountsThatTheDatasetHasWholeAreRoundedAndSaySo) {
    folder.Write("leases.csv", "area,blk,acres\n43602,1,4994.55\n43602,2,5760.00\n");
    const auto outcome = Load("leases.csv", R"({"table": "leases", "fields": {"areacode": "area",
        "label": "blk", "acres": "acres"}})");
    EXPECT_EQ(Rows("select lbnum, acres from gulf_mexico_lease"), "1|4995\n2|5760\n");
    EXPECT_THAT(outcome.notes, ElementsAre("row 1, 43602, 1: acres: 4994.55 is taken as 4995"));
}

TEST_F(LoadRows, WithANumberOfTheirOwnAreNeverRounded) {
    folder.Write("platforms.csv", "id,op\n23.5,X\n");
    const auto outcome =
        Load("platforms.csv", R"({"table": "platforms", "fields": {"complex_id": "id"}})");
    EXPECT_THAT(outcome.leftOut, ElementsAre(HasSubstr("\"23.5\" is no whole number")));
}

TEST_F(LoadRows, TakeTheWordsForNothingAsNothing) {
    folder.Write("wells.csv",
                 "api,x,y,depth,op\n1771140123,-90,28,<Null>,NULL\n1771140124,NULL,NULL,1,X\n"
                 "1771140125,-90,,1,X\n");
    const auto outcome = Load("wells.csv", R"({"table": "wells", "crs": "EPSG:4267",
        "place": {"x": "x", "y": "y"},
        "fields": {"api_no": "api", "total_depth": "depth", "operator": "op"}})");
    EXPECT_EQ(Rows("select api_no, surf_lat, surf_lon, total_depth, operator from "
                   "gulf_mexico_well_hdr order by 1"),
              "177114012300|28|-90||\n177114012400|||1|X\n177114012500|||1|X\n");
    EXPECT_THAT(outcome.notes, ElementsAre(HasSubstr("row 2, 1771140124: it has no place"),
                                           HasSubstr("row 3, 1771140125: it has no place")));
}

TEST_F(LoadRows, OverTheMeridianOf180DegreesAreLeftOut) {
    const auto outcome =
        LoadBlocks("43602,1,\"POLYGON ((179.9 52,179.9 53,180.1 53,180.1 52,179.9 52))\"\n");
    EXPECT_THAT(outcome.leftOut, ElementsAre(HasSubstr("goes over the meridian of 180 degrees")));
}

TEST_F(LoadRows, OfWellsHaveTheirBottomToo) {
    folder.Write("wells.csv", "api,x,y,bx,by\n1771140123,-90,28,-90.5,28.5\n");
    Load("wells.csv", R"({"table": "wells", "crs": "EPSG:4267", "place": {"x": "x", "y": "y"},
        "bottom": {"x": "bx", "y": "by"}, "fields": {"api_no": "api"}})");
    EXPECT_EQ(Rows("select surf_lat, surf_lon, bot_lat, bot_lon from gulf_mexico_well_hdr"),
              "28|-90|28.5|-90.5\n");
}

TEST_F(LoadRows, HaveTheirPlacesInDegreesMinutesAndSecondsAsWell) {
    folder.Write("wells.csv",
                 "api,x,y\n1771140101,90 15 30.6 W,28 30 15.2 N\n"
                 "1771140102,\"90\u00b015'30.6\"\"W\",\"28\u00b030'15.2\"\"N\"\n"
                 "1771140103,-90:15:30.6,28:30:15.2\n1771140104,90 15.51 W,28.5042222222 N\n"
                 "1771140105,W90-15-30.6,N28-30-15.2\n1771140106,-90.2585,28.5042222222\n");
    const auto outcome = Load("wells.csv", kWells);
    EXPECT_THAT(outcome.leftOut, IsEmpty());
    EXPECT_EQ(Rows("select count(*), round(surf_lat, 9), round(surf_lon, 9) from "
                   "gulf_mexico_well_hdr group by 2, 3"),
              "6|28.504222222|-90.2585\n");
}

TEST_F(LoadRows, WhosePlaceCannotBeReadAreListedWithTheReason) {
    folder.Write("wells.csv",
                 "api,x,y\n1,90 15 30 W,near\n2,28 30 15 N,90 15 30 W\n3,-90 15 30 W,28\n"
                 "4,-90 15 30 E,28\n5,+90 15 30 W,28\n6,90 75 30 W,28\n7,\"100,000\",28\n"
                 "8,-90,90 15 W\n9,90 15 30,28 30 15\n");
    const auto outcome = Load("wells.csv", R"({"table": "platforms", "crs": "EPSG:4267",
        "place": {"x": "x", "y": "y"}, "fields": {"complex_id": "api"}})");
    EXPECT_EQ(outcome.loaded, 0);
    EXPECT_THAT(
        outcome.leftOut,
        ElementsAre("row 1, 1: the coordinate \"near\" is neither a number nor degrees, minutes "
                    "and seconds",
                    HasSubstr("\"28 30 15 N\" is a latitude, not a longitude"),
                    HasSubstr("\"-90 15 30 W\" has a sign and the letter of a hemisphere"),
                    HasSubstr("\"-90 15 30 E\" has a sign and the letter of a hemisphere"),
                    HasSubstr("has a sign and the letter of the other hemisphere"),
                    HasSubstr("\"90 75 30 W\" is neither"), HasSubstr("\"100,000\" is neither"),
                    HasSubstr("\"90 15 W\" is a longitude, not a latitude"),
                    HasSubstr("is far from where NAD27 is used (a longitude to the west needs a "
                              "minus or a W)")));
}

TEST_F(LoadRows, InAProjectionHaveNoPlacesInDegreesMinutesAndSeconds) {
    folder.Write("wells.csv", "api,x,y\n1771140101,90 15 30.6 W,28 30 15.2 N\n");
    const auto outcome = Load("wells.csv", R"({"table": "wells", "crs": "EPSG:32065",
        "place": {"x": "x", "y": "y"}, "fields": {"api_no": "api"}})");
    EXPECT_THAT(outcome.leftOut, ElementsAre(HasSubstr("are degrees, it seems")));
}

TEST_F(LoadRows, OfPipelinesAreJoinedWhereTheirPartsMeet) {
    folder.Write("lines.csv",
                 "seg,WKT\n7,\"MULTILINESTRING ((-90 28,-89 28),(-88 28,-89 28))\"\n"
                 "8,\"MULTILINESTRING ((-90 28,-89 28),(-80 28,-70 28))\"\n9,POINT (-90 28)\n");
    const auto outcome = Load("lines.csv", R"({"table": "pipelines", "crs": "EPSG:4267",
        "fields": {"segment_no": "seg"}})");
    EXPECT_EQ(
        Rows("select ptnum, lon from gulf_mexico_pipeline_pt where segment_no = 7 order by 1"),
        "1|-90\n2|-89\n3|-88\n");
    EXPECT_THAT(outcome.notes, ElementsAre(HasSubstr("of 2 parts that do not meet the longest")));
    EXPECT_THAT(outcome.leftOut, ElementsAre(HasSubstr("not a line")));
}

TEST_F(LoadRows, OfAreasBringTheirProjectionAndTheirPlaceInTheOrder) {
    folder.Write("more.csv",
                 "name,code,abbr,zone\nWalker Ridge,43610,WR,115\nWalker Ridge,43610,WR,115\n");
    const auto outcome = Load("more.csv", R"({"table": "areas", "fields": {"areaname": "name",
        "stcode": "code", "area_abbr": "abbr", "projection": "zone"}})");
    EXPECT_EQ(outcome.loaded, 1);
    EXPECT_EQ(outcome.repeated, 1);
    EXPECT_THAT(outcome.leftOut, IsEmpty());
    EXPECT_EQ(Rows("select areacode, projection from gulf_mexico_area_projection"), "43610|115\n");
    EXPECT_EQ(Rows("select areaname, seq, defseq from nvd2000_area_order order by seq"),
              "GREEN CANYON|1|1\nWALKER RIDGE|2|2\n");
}

}  // namespace
}  // namespace test
