#include "kvload/check.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace kvload {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A dataset with one area and one block that is sound.
class CheckedDataset : public testing::Test {
protected:
    CheckedDataset() {
        store_ = OpenStore("sqlite:" + folder_.Native("data.db"), Purpose::kLoad);
        for (const auto& table : kv::sample::Tables())
            store_->Create(table);
        store_->Run(
            "insert into gulf_mexico_connam2 values ('GREEN CANYON', '43602', 'GC');"
            "insert into gulf_mexico_area_projection values ('43602', 115);"
            "insert into gulf_mexico_lbi values ('43602', '1', null, 1)");
        Outline(1, "0 0, 0 1, 1 1, 1 0");
    }

    /// Corners as "longitude latitude, ...".
    void Outline(int refnum, const std::string& corners) {
        int point = 0;
        for (size_t from = 0; from < corners.size();) {
            const size_t blank = corners.find(' ', from);
            const size_t comma = std::min(corners.find(',', from), corners.size());
            store_->Run("insert into gulf_mexico_lbv values (" + std::to_string(refnum) + ", " +
                        std::to_string(++point) + ", " +
                        corners.substr(blank + 1, comma - blank - 1) + ", " +
                        corners.substr(from, blank - from) + ")");
            from = comma + 2;
        }
    }

    void Run(const std::string& sql) { store_->Run(sql); }

    /// What is found, each as "what: one; another".
    std::vector<std::string> Found() {
        std::vector<std::string> found;
        for (const Fault& fault : CheckDataset(*store_)) {
            std::string& text = found.emplace_back(fault.what + ":");
            for (const std::string& which : fault.which)
                text += " " + which + ";";
        }
        return found;
    }

    test::TempFolder folder_;
    std::unique_ptr<Store> store_;
};

TEST_F(CheckedDataset, ThatIsSoundHasNoFaults) {
    EXPECT_THAT(Found(), IsEmpty());
}

TEST_F(CheckedDataset, ShowsBlocksWithoutAnOutline) {
    Run("insert into gulf_mexico_lbi values ('43602', '2', 'A', 2)");
    EXPECT_THAT(Found(), ElementsAre("Blocks without an outline: 43602 2A;"));
}

TEST_F(CheckedDataset, ShowsAreasWithoutCodeOrBlocksOrProjection) {
    Run("insert into gulf_mexico_connam2 values ('A', null, null), ('B', '43603', 'B')");
    EXPECT_THAT(Found(), ElementsAre("Areas without a name or a code: A (none);",
                                     "Areas without a block: B 43603;",
                                     "Areas without a projection: B 43603;"));
}

TEST_F(CheckedDataset, ShowsNamesAndCodesThatAreShared) {
    Run("insert into gulf_mexico_connam2 values ('GREEN CANYON', '43602', 'GC')");
    EXPECT_THAT(Found(), ElementsAre("Names that two areas share: GREEN CANYON;",
                                     "Area codes that two areas share: 43602;"));
}

TEST_F(CheckedDataset, ShowsNamesInSmallLetters) {
    Run("update gulf_mexico_connam2 set areaname = 'Green Canyon'");
    EXPECT_THAT(Found(), ElementsAre(HasSubstr("which no search finds: Green Canyon;")));
}

TEST_F(CheckedDataset, ShowsLabelsThatTwoBlocksShare) {
    Run("insert into gulf_mexico_lbi values ('43602', '1', null, 2)");
    Outline(2, "5 5, 5 6, 6 6");
    EXPECT_THAT(Found(), ElementsAre("Labels that two blocks share: 43602 1;"));
}

TEST_F(CheckedDataset, ShowsLabelsThatOneMmsCodeHasInTwoAreas) {
    Run("insert into gulf_mexico_connam2 values ('B', '43603', 'GC'), ('C', '42601', 'GC');"
        "insert into gulf_mexico_area_projection values ('43603', 115), ('42601', 1);"
        "insert into gulf_mexico_lbi values ('43603', '1', null, 2), ('42601', '1', null, 3)");
    Outline(2, "5 5, 5 6, 6 6");
    Outline(3, "7 7, 7 8, 8 8");
    EXPECT_THAT(Found(),
                ElementsAre("Labels that one MMS code has in several areas: GC 1 in 43602 43603;"));
}

TEST_F(CheckedDataset, ShowsOutlinesThatAreNone) {
    Run("insert into gulf_mexico_lbi values ('43602', '2', null, 2), ('43602', '3', null, 3), "
        "('43602', '4', null, 4), ('43602', '5', null, 5)");
    Outline(2, "0 0, 2 2, 2 0, 0 3");
    Outline(3, "0 0, 1 1");
    Outline(4, "0 0, 0 95, 1 1");
    Outline(5, "270 27, 270 28, 271 27");
    Outline(9, "0 0, 0 1, 1 1");
    EXPECT_THAT(Found(),
                ElementsAre("Outlines of no block: 9;",
                            "Outlines with a corner that is no place on earth: 43602 4; 43602 5;",
                            "Outlines without an area: 43602 3;",
                            HasSubstr("Outlines that cross themselves: 43602 2 near 1.2")));
}

TEST_F(CheckedDataset, ShowsLabelsThatAreCutAndBlocksOfNoArea) {
    Run("insert into gulf_mexico_lbi values ('43602', '1-2', null, 2), ('XX', '7', null, 3), "
        "('43602', null, null, 4)");
    for (const int refnum : {2, 3, 4})
        Outline(refnum, "0 0, 0 1, 1 1");
    EXPECT_THAT(Found(),
                ElementsAre("Blocks of an area that is not there: XX 1 blocks;",
                            "Blocks without a number: 43602 4;",
                            "Labels with a hyphen, behind which they are cut: 43602 1-2;"));
}

TEST_F(CheckedDataset, ShowsWhatLiesInNoBlockOrHasNoPlace) {
    Run("insert into gulf_mexico_lease (lease_no, areacode, lbnum) values ('G1', '43602', '1'), "
        "('G2', '43602', '5');"
        "insert into gulf_mexico_well_hdr (api_no, areacode, lbnum) values ('177', '43602', '6');"
        "insert into gulf_mexico_platform (complex_id, areacode, lbnum, lat, lon) values "
        "(7, '43602', '7', 28, -90), (8, '43602', '1', null, null);"
        "insert into gulf_mexico_pipeline (segment_no) values (9)");
    EXPECT_THAT(Found(), ElementsAre("Leases on a block that is not there: G2 43602 5;",
                                     "Wells in a block that is not there: 177 43602 6;",
                                     "Platforms in a block that is not there: 7 43602 7;",
                                     "Wells without a place: 177;", "Platforms without a place: 8;",
                                     "Pipelines without a line: 9;"));
}

TEST_F(CheckedDataset, MustHaveItsTables) {
    Run("drop table gulf_mexico_lbv");
    try {
        CheckDataset(*store_);
        ADD_FAILURE() << "checks a dataset without outlines";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "The database lacks the tables gulf_mexico_lbv");
    }
}

TEST(CheckedFile, MustBeThere) {
    test::TempFolder folder;
    EXPECT_THROW(OpenStore("sqlite:" + folder.Native("none.db"), Purpose::kCheck),
                 std::runtime_error);
    EXPECT_FALSE(folder.Has("none.db"));
}

}  // namespace
}  // namespace kvload
