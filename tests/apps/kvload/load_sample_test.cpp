// The sample dataset's blocks out to a file of each kind, and in again.

#include <cmath>
#include <cstdlib>
#include <map>

#include "apps/kvload/load_fixture.h"
#include "apps/kvload/ogr_writer.h"

namespace test {
namespace {

using kv::sample::Row;

/// Areas of each water, with extensions, and of each kind of layout.
constexpr const char* kSome = "('42601', '43002', '43102', '43602')";

class LoadOnTheSample : public LoadTest, public testing::WithParamInterface<const char*> {
protected:
    static std::string Sample() {
        return std::string("sqlite:") + std::getenv("KVGUICTL_SAMPLE_DB");
    }

    static std::vector<Row> Query(const std::string& server, const std::string& sql) {
        return OpenStore(server, kvload::Purpose::kCheck)->Query(sql);
    }

    static std::vector<Row> Blocks(const std::string& server) {
        return Query(server, std::string("select areacode, lbnum, lbext from gulf_mexico_lbi where "
                                         "areacode in ") +
                                 kSome + " order by refnum");
    }
    /// Corners by block, in their order.
    static std::vector<Row> Corners(const std::string& server) {
        return Query(server,
                     std::string("select b.areacode, b.lbnum, b.lbext, v.ptnum, v.lat, v.lon "
                                 "from gulf_mexico_lbi b, gulf_mexico_lbv v where v.refnum = "
                                 "b.refnum and b.areacode in ") +
                         kSome + " order by b.refnum, v.ptnum");
    }

    OgrFile File(const std::string& path, const std::string& driver) const {
        OgrFile file{.path = path,
                     .driver = driver,
                     .system = "EPSG:4267",
                     .fields = {"area", "label"},
                     .rows = {}};
        const std::vector<Row> corners = Corners(Sample());
        for (size_t i = 0; i < corners.size();) {
            std::string ring, first;
            const Row& block = corners[i];
            for (; i < corners.size() &&
                   std::equal(block.begin(), block.begin() + 3, corners[i].begin());
                 ++i) {
                const std::string corner = corners[i][5] + " " + corners[i][4];
                if (first.empty()) first = corner;
                ring += corner + ",";
            }
            file.rows.push_back(
                {"POLYGON ((" + ring + first + "))", {block[0], block[1] + block[2]}});
        }
        return file;
    }
};

TEST_P(LoadOnTheSample, OutAndInAgainGivesTheSameRowsAndOutlines) {
    const std::string driver = GetParam();
    const std::string name = driver == "GPKG" ? "blocks.gpkg" : "blocks.shp";
    WriteOgrFile(File(folder.Native(name), driver));
    folder.Write("areas.csv", "name,code,abbr\nA,42601,\nB,43002,\nC,43102,\nD,43602,\n");
    const auto outcomes = LoadAll(
        {JobOf("areas.csv", kAreas),
         JobOf(name, R"({"table": "blocks", "fields": {"areacode": "area", "label": "label"}})")});
    EXPECT_THAT(outcomes[1].leftOut, testing::IsEmpty());

    const std::vector<Row> blocks = Blocks(Sample());
    ASSERT_GT(blocks.size(), 100u);
    EXPECT_EQ(Blocks(Server()), blocks);
    const std::vector<Row> before = Corners(Sample()), after = Corners(Server());
    ASSERT_EQ(after.size(), before.size());
    for (size_t i = 0; i < before.size(); ++i) {
        ASSERT_TRUE(std::equal(before[i].begin(), before[i].begin() + 4, after[i].begin())) << i;
        for (const size_t angle : {4u, 5u})
            ASSERT_NEAR(std::stod(after[i][angle]), std::stod(before[i][angle]), 1e-9) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, LoadOnTheSample, testing::Values("ESRI Shapefile", "GPKG"));

}  // namespace
}  // namespace test
