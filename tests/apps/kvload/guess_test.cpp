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
        return kvload::GuessMapping(*kvload::Open({folder.Native(file), "", ""}));
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

}  // namespace
}  // namespace test
