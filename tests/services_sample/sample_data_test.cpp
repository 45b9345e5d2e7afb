#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

#include "collected_rows.h"
#include "sampledata/areas.h"
#include "sampledata/digest.h"
#include "sampledata/geo_point.h"
#include "sampledata/random.h"

namespace test {
namespace {

using kv::sample::Row;
using kv::sample::Table;
using testing::AllOf;
using testing::Ge;
using testing::IsSupersetOf;
using testing::Le;

std::set<std::string> ValuesOf(const std::string& table, const std::string& column) {
    const std::vector<std::string> cells = Dataset().Column(table, column);
    return {cells.begin(), cells.end()};
}

std::size_t RowsOf(const std::string& table) {
    return Dataset().Of(table).size();
}

TEST(SampleDigest, IsTheSameForTheSameRowsOnly) {
    auto digestOf = [](const Row& row) {
        kv::sample::Digest digest;
        digest.Begin(kv::sample::TableNamed("gulf_mexico_connam2"));
        digest.Add(row);
        digest.End();
        return digest.Text();
    };
    EXPECT_EQ(digestOf({"BRAZOS", "43008", "BA"}), digestOf({"BRAZOS", "43008", "BA"}));
    EXPECT_NE(digestOf({"BRAZOS", "43008", "BA"}), digestOf({"BRAZOS", "43008B", "A"}));
    EXPECT_NE(digestOf({"BRAZOS", "43008", "BA"}), digestOf({"BRAZOS", "43008", ""}));
}

TEST(SampleDigest, IsEqualWheneverTheDatasetIsMade) {
    kv::sample::Digest digest;
    kv::sample::WriteDataset(digest, [](const std::string&) {});
    EXPECT_EQ(digest.Text(), "836a972efba1ed1c");
}

TEST(SampleRandom, GivesTheKnownSequenceOfItsSeed) {
    kv::sample::Random random(1234567);
    EXPECT_EQ(random.Next(), 6457827717110365317U);
    EXPECT_EQ(random.Next(), 3203168211198807973U);
    EXPECT_EQ(random.Next(), 9817491932198370423U);
}

TEST(SampleDegrees, AreWrittenWithoutTrailingZeros) {
    EXPECT_EQ(kv::sample::DegreesText(280000000), "28");
    EXPECT_EQ(kv::sample::DegreesText(-901234500), "-90.12345");
    EXPECT_EQ(kv::sample::DegreesText(-1), "-0.0000001");
    EXPECT_EQ(kv::sample::DegreesText(0), "0");
    EXPECT_EQ(kv::sample::Units(-97.3), -973000000);
}

TEST(SampleDataset, FillsEveryTableButTheWorkTable) {
    EXPECT_EQ(Dataset().All().size(), kv::sample::Tables().size());
    for (const auto& [table, rows] : Dataset().All()) {
        EXPECT_EQ(rows.empty(), table == "nvd2000_tmp_abe2") << table;
    }
}

TEST(SampleDataset, HasTheSizeOfARealOne) {
    EXPECT_THAT(RowsOf("gulf_mexico_connam2"), AllOf(Ge(100U), Le(130U)));
    EXPECT_THAT(RowsOf("gulf_mexico_lbi"), AllOf(Ge(28'000U), Le(30'000U)));
    EXPECT_THAT(RowsOf("gulf_mexico_lbv"), AllOf(Ge(112'000U), Le(125'000U)));
    EXPECT_THAT(RowsOf("gulf_mexico_lease"), AllOf(Ge(38'000U), Le(46'000U)));
    EXPECT_THAT(RowsOf("gulf_mexico_well_hdr"), AllOf(Ge(48'000U), Le(55'000U)));
    EXPECT_THAT(RowsOf("gulf_mexico_platform"), AllOf(Ge(6'500U), Le(8'500U)));
    EXPECT_EQ(RowsOf("gulf_mexico_pipeline"), 15'000U);
}

TEST(SampleDataset, KeepsItsUniqueKeys) {
    for (const Table& table : kv::sample::Tables()) {
        for (const std::string keys : table.indexes) {
            if (!keys.starts_with("unique ")) continue;
            std::set<std::vector<std::string>> seen;
            std::vector<std::vector<std::string>> columns;
            std::istringstream names(keys.substr(7));
            for (std::string name; std::getline(names >> std::ws, name, ',');) {
                columns.push_back(Dataset().Column(table.name, name));
            }
            for (std::size_t row = 0; row < Dataset().Of(table.name).size(); ++row) {
                std::vector<std::string> key;
                for (const auto& column : columns)
                    key.push_back(column[row]);
                EXPECT_TRUE(seen.insert(key).second) << table.name << ": " << key.front();
            }
        }
    }
}

TEST(SampleDataset, HoldsNoTextThatIsLongerThanItsColumn) {
    for (const Table& table : kv::sample::Tables()) {
        for (const Row& row : Dataset().Of(table.name)) {
            for (std::size_t i = 0; i < row.size(); ++i) {
                if (table.columns[i].kind != kv::sample::CellKind::kText) continue;
                ASSERT_LE(row[i].size(), static_cast<std::size_t>(table.columns[i].length))
                    << table.name << "." << table.columns[i].name << ": " << row[i];
            }
        }
    }
}

TEST(SampleDataset, IsDocumentedColumnByColumn) {
    std::ifstream file(SAMPLE_DATA_PAGE);
    const std::string page(std::istreambuf_iterator<char>(file), {});
    for (const Table& table : kv::sample::Tables()) {
        const std::size_t at = page.find(std::string("### `") + table.name + "`");
        ASSERT_NE(at, std::string::npos) << table.name;
        for (const kv::sample::Column& column : table.columns) {
            const std::size_t next = page.find(std::string("| `") + column.name + "` |", at);
            ASSERT_LT(next, page.find("### ", at + 4)) << table.name << "." << column.name;
        }
    }
}

TEST(SampleAreas, CarryTheirKnownCodes) {
    std::map<std::string, std::string> codes;
    for (const Row& row : Dataset().Of("gulf_mexico_connam2"))
        codes[row[0]] = row[2];
    EXPECT_EQ(codes.at("VERMILION"), "VR");
    EXPECT_EQ(codes.at("SOUTH MARSH ISLAND NORTH ADDITION"), "SM");
    EXPECT_EQ(codes.at("HIGH ISLAND EAST ADDITION SOUTH EXTENSION"), "HI");
    EXPECT_EQ(codes.at("MISSISSIPPI CANYON"), "MC");
    EXPECT_EQ(codes.at("DE SOTO CANYON"), "DC");
    EXPECT_EQ(codes.at("LAKE PONTCHARTRAIN"), "");
}

TEST(SampleAreas, CoverEveryWater) {
    const std::set<std::string> areaCodes = ValuesOf("gulf_mexico_lbi", "areacode");
    std::set<std::string> waters;
    for (const std::string& code : areaCodes)
        waters.insert(code.substr(0, 3));
    EXPECT_THAT(waters, IsSupersetOf({"420", "421", "422", "423", "424", "425", "426", "427", "428",
                                      "429", "430", "431"}));
    EXPECT_EQ(areaCodes, ValuesOf("gulf_mexico_connam2", "stcode"));
}

TEST(SampleAreas, HaveAProjectionThatTheZoneTableKnows) {
    const std::set<std::string> zones = ValuesOf("gulf_mexico_zone_code", "zone_code");
    for (const std::string& text : Dataset().Column("gulf_mexico_area_projection", "projection")) {
        const int code = std::stoi(text);
        EXPECT_TRUE(zones.contains(std::to_string(code < 100 ? code : code - code % 100))) << text;
    }
}

TEST(SampleAreas, StandInTheirOwnOrderAtFirst) {
    int place = 0;
    for (const Row& row : Dataset().Of("nvd2000_area_order")) {
        ++place;
        EXPECT_EQ(row[0], Dataset().Of("gulf_mexico_connam2")[place - 1][0]);
        EXPECT_EQ(row[1], std::to_string(place));
        EXPECT_EQ(row[2], row[1]);
    }
}

TEST(SampleLeases, HaveEveryStatusAndEveryPlanningArea) {
    EXPECT_EQ(ValuesOf("gulf_mexico_lease", "status"),
              (std::set<std::string>{"DIR SUS OF OPER",
                                     "EXTENDED TERM-OP",
                                     "OPERATIONS",
                                     "PRELIMINARY",
                                     "PRIMARY DSO",
                                     "PRIMARY TERM",
                                     "SUSPENS OF OPER",
                                     "CONSOLIDATED",
                                     "EXPIRED",
                                     "NOT ISSUED",
                                     "FORFEITED",
                                     "REJECTED",
                                     "RELINQUISHED OR CANCELLED",
                                     "TERMINATED",
                                     "ACTIVE HBP",
                                     "ACTIVE 3 YRS",
                                     "ACTIVE 5 YRS",
                                     "SUSPENS OF PROD",
                                     "UNIT",
                                     "PRODUCING",
                                     "NBL",
                                     "NO INFO",
                                     "DEFERRED"}));
    EXPECT_EQ(ValuesOf("gulf_mexico_lease", "lplana"),
              (std::set<std::string>{"C", "E", "W", "L", "T"}));
}

TEST(SampleLeases, BelongToOwnersWhoseSharesSumUpToTheWhole) {
    std::map<std::string, int> sums;
    for (const Row& row : Dataset().Of("gulf_mexico_lease_owner")) {
        EXPECT_GE(std::stoi(row[2]), 1);
        sums[row[0]] += std::stoi(row[2]);
    }
    for (const auto& [lease, sum] : sums)
        EXPECT_EQ(sum, 100) << lease;
    std::set<std::string> numbered = ValuesOf("gulf_mexico_lease", "lease_no");
    EXPECT_EQ(numbered.erase(""), 1U);
    EXPECT_EQ(sums.size(), numbered.size());
}

TEST(SampleLeases, AreHeldByTheCompanyWithTheGreatestShare) {
    std::map<std::string, std::map<std::string, int>> shares;
    for (const Row& row : Dataset().Of("gulf_mexico_lease_owner")) {
        shares[row[0]][row[1]] = std::stoi(row[2]);
    }
    for (const Row& row : Dataset().Of("gulf_mexico_lease")) {
        if (row[0].empty()) continue;
        const auto& owners = shares.at(row[0]);
        for (const auto& [company, share] : owners)
            EXPECT_LE(share, owners.at(row[6])) << row[0];
    }
}

TEST(SamplePipelines, HaveEveryStatusAndEveryProduct) {
    EXPECT_EQ(ValuesOf("gulf_mexico_pipeline", "status"),
              (std::set<std::string>{"ACT", "ABN", "A/C", "CNCL", "OUT", "O/C", "RELQ", "RR", "REM",
                                     "PREM", "RA", "RC", "PROP", "COMB", "PABN"}));
    EXPECT_EQ(ValuesOf("gulf_mexico_pipeline", "product"),
              (std::set<std::string>{"G/O",  "O/W",  "BLKO", "BO/L", "BO/S", "COND", "OIL",  "BG/S",
                                     "BLKG", "G/C",  "GAS",  "LPRO", "BLGH", "ACID", "AIR",  "CHEM",
                                     "DIES", "FLG",  "H2O",  "INU",  "LGER", "LIFT", "METH", "NGER",
                                     "SERV", "SPLY", "SPRE", "SULF", "TEST", "TOW",  "UMB"}));
}

TEST(SamplePipelines, HaveTwoVerticesAtLeast) {
    std::map<std::string, int> points;
    for (const Row& row : Dataset().Of("gulf_mexico_pipeline_pt")) {
        EXPECT_EQ(row[1], std::to_string(++points[row[0]]));
    }
    EXPECT_EQ(points.size(), RowsOf("gulf_mexico_pipeline"));
    for (const auto& [segment, count] : points)
        EXPECT_GE(count, 2) << segment;
}

/// First and last place of each segment, as texts.
std::vector<std::pair<std::string, std::string>> EndsOfSegments() {
    std::vector<std::pair<std::string, std::string>> ends;
    for (const Row& row : Dataset().Of("gulf_mexico_pipeline_pt")) {
        const std::string place = row[2] + " " + row[3];
        if (row[1] == "1") ends.push_back({place, place});
        ends.back().second = place;
    }
    return ends;
}

std::set<std::string> PlacesOfPlatforms() {
    std::set<std::string> places;
    const auto lat = Dataset().Column("gulf_mexico_platform", "lat");
    const auto lon = Dataset().Column("gulf_mexico_platform", "lon");
    for (std::size_t i = 0; i < lat.size(); ++i)
        places.insert(lat[i] + " " + lon[i]);
    return places;
}

TEST(SamplePipelines, RunFromPlatformToPlatformAndAshore) {
    const std::set<std::string> platforms = PlacesOfPlatforms();
    const auto ends = EndsOfSegments();
    const std::vector<std::string> to = Dataset().Column("gulf_mexico_pipeline", "to_areacode");
    ASSERT_EQ(ends.size(), to.size());
    int ashore = 0;
    for (std::size_t i = 0; i < ends.size(); ++i) {
        EXPECT_TRUE(platforms.contains(ends[i].first)) << i;
        if (platforms.contains(ends[i].second)) continue;
        ++ashore;
        EXPECT_THAT(to[i].substr(0, 3), testing::AnyOf("434", "435", testing::StartsWith("42")));
    }
    EXPECT_GT(ashore, 100);
    EXPECT_LT(ashore, 2000);
}

TEST(SamplePipelines, LeadFromEveryPlatformAshore) {
    std::map<std::string, std::vector<std::string>> next;
    for (const auto& [from, to] : EndsOfSegments())
        next[from].push_back(to);
    const std::set<std::string> platforms = PlacesOfPlatforms();
    for (const std::string& platform : platforms) {
        std::string at = platform;
        int steps = 0;
        while (platforms.contains(at) && steps < 1000) {
            ASSERT_TRUE(next.contains(at)) << at;
            at = next[at].front();
            ++steps;
        }
        EXPECT_LT(steps, 1000) << platform;
    }
}

TEST(SamplePipelines, AreMostlyShort) {
    int shorter = 0;
    const auto ends = EndsOfSegments();
    for (const auto& [from, to] : ends) {
        double fromLat = 0, fromLon = 0, toLat = 0, toLon = 0;
        std::istringstream(from + " " + to) >> fromLat >> fromLon >> toLat >> toLon;
        if (std::hypot(fromLat - toLat, fromLon - toLon) < 0.15) ++shorter;
    }
    EXPECT_GT(shorter, static_cast<int>(ends.size()) * 9 / 10);
}

TEST(SampleLayers, PointToBlocksThatExist) {
    std::set<std::vector<std::string>> blocks;
    for (const Row& row : Dataset().Of("gulf_mexico_lbi"))
        blocks.insert({row[0], row[1], row[2]});
    for (const char* table :
         {"gulf_mexico_lease", "gulf_mexico_bid", "gulf_mexico_well_hdr", "gulf_mexico_completion",
          "gulf_mexico_apd", "gulf_mexico_platform", "gulf_mexico_plan", "gulf_mexico_prospect",
          "gulf_mexico_field", "gulf_mexico_shotpoint2d", "gulf_mexico_pipeline"}) {
        const std::vector<std::string> areas = Dataset().Column(table, "areacode");
        const std::vector<std::string> numbers = Dataset().Column(table, "lbnum");
        const std::vector<std::string> exts = Dataset().Column(table, "lbext");
        for (std::size_t i = 0; i < areas.size(); ++i) {
            ASSERT_TRUE(blocks.contains({areas[i], numbers[i], exts[i]}))
                << table << ": " << areas[i] << " " << numbers[i] << exts[i];
        }
    }
}

TEST(SampleWells, HaveApiNumbersOfTwelveDigits) {
    for (const std::string& number : Dataset().Column("gulf_mexico_well_hdr", "api_no")) {
        ASSERT_EQ(number.size(), 12U);
        ASSERT_EQ(number.find_first_not_of("0123456789"), std::string::npos) << number;
    }
}

TEST(SampleCounties, LieWithinTheirBounds) {
    for (const Row& row : Dataset().Of("nvd2000_county")) {
        EXPECT_LT(std::stod(row[4]), std::stod(row[5])) << row[2];
        EXPECT_LT(std::stod(row[6]), std::stod(row[7])) << row[2];
        EXPECT_EQ(row[0].size(), 5U);
        EXPECT_EQ(std::stoi(row[0].substr(2)), std::stoi(row[3])) << row[2];
    }
}

}  // namespace
}  // namespace test
