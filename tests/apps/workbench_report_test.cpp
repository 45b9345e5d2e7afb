#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "base/numbers.h"
#include "workbench/results/report_layers.h"
#include "workbench_fixture.h"

namespace workbench {
namespace {

using testing::ElementsAre;

class ReportTest : public test::SampleTest {
protected:
    static ResultTable Report(const ReportLayer& layer, const std::vector<std::string>& areas,
                              const std::string& block) {
        std::vector<std::string> conditions;
        for (const std::string& area : areas)
            conditions.push_back(BlockCondition(layer, area, block));
        ResultTable result;
        ReportLoader loader(layer, "Rows", std::move(conditions),
                            [&](ResultTable table) { result = std::move(table); });
        test::ReadAll(loader);
        return result;
    }
    static const ReportLayer& Of(E_Layer layer) { return *FindReportLayer(layer); }
};

TEST(ReportLayers, HaveTheTitlesOfTheBar) {
    std::vector<std::string> titles;
    for (const ReportLayer& layer : ReportLayers()) {
        titles.emplace_back(layer.title);
        EXPECT_EQ(kv::catalogue::LayerFromTitle(layer.title), layer.layer);
    }
    EXPECT_THAT(titles, ElementsAre("Wells", "Leases", "APDs", "Platforms", "Plans", "Pipelines",
                                    "Prospects", "Fields", "2D Shotpoints"));
    EXPECT_EQ(FindReportLayer(KV_LAYER_BIDS), nullptr);
}

TEST(ReportLayers, AreaLiteralsAreThoseOfTheBar) {
    EXPECT_THAT(AreaLiterals("('43112','43113')"), ElementsAre("'43112'", "'43113'"));
    EXPECT_THAT(AreaLiterals("'43112'"), ElementsAre("'43112'"));
    EXPECT_THAT(AreaLiterals(""), ElementsAre());
}

TEST_F(ReportTest, StatementNamesTableColumnsAreaAndBlock) {
    EXPECT_EQ(
        ReportStatement(Of(KV_LAYER_FIELDS), BlockCondition(Of(KV_LAYER_FIELDS), "'43113'", "12A")),
        "select t.field, a.areaname, t.lbnum||t.lbext, t.discovery_date, t.lat, t.lon, "
        "t.areacode, t.lbnum||t.lbext from NORVADON.GULF_MEXICO_field t, "
        "NORVADON.GULF_MEXICO_connam2 a where a.stcode = t.areacode and "
        "t.areacode = '43113' and t.lbnum||t.lbext = '12A' order by t.field");
}

TEST_F(ReportTest, AQuotationMarkInABlockStaysInItsLiteral) {
    const ReportLayer& layer = Of(KV_LAYER_FIELDS);
    const std::string statement =
        ReportStatement(layer, BlockCondition(layer, "'43113'", "1' or '1'='1"));
    EXPECT_THAT(statement, testing::HasSubstr("= '1'' or ''1''=''1' order by"));
    EXPECT_EQ(Rows(statement).Count(), 0);
}

TEST_F(ReportTest, OfAllBlocksHasEveryRowOfTheArea) {
    for (const ReportLayer& layer : ReportLayers()) {
        const std::string table = TableName(std::string(layer.table));
        const std::string area =
            Single("select areacode from " + table + " group by areacode order by count(*) desc");
        std::string where = " where areacode = '" + area + "'";
        if (layer.layer == KV_LAYER_PIPELINES) where += " or to_areacode = '" + area + "'";
        const int expected = Count(table + where);
        EXPECT_GT(expected, 0) << layer.title;
        const ResultTable report = Report(layer, {Quoted(area)}, "ALL");
        EXPECT_EQ(report.RowCount(), expected) << layer.title;
        EXPECT_EQ(report.title, layer.title);
        EXPECT_EQ(report.ColumnCount(), static_cast<int>(layer.columns.size()));
    }
}

TEST_F(ReportTest, OfABlockHasItsRowsAlone) {
    for (const ReportLayer& layer : ReportLayers()) {
        const std::string table = TableName(std::string(layer.table));
        const Rows some("select areacode, lbnum||lbext from " + table +
                        " where lbext is not null order by 1, 2");
        ASSERT_GT(some.Count(), 0) << layer.title;
        const std::string area = some.Cell(0, 0);
        const std::string block = some.Cell(0, 1);
        const std::string own = "areacode = '" + area + "' and lbnum||lbext = '" + block + "'";
        const std::string other =
            " or to_areacode = '" + area + "' and to_lbnum||to_lbext = '" + block + "'";
        const bool pipelines = layer.layer == KV_LAYER_PIPELINES;
        const int expected = Count(table + " where " + own + (pipelines ? other : ""));

        const ResultTable report = Report(layer, {Quoted(area)}, block);
        EXPECT_EQ(report.RowCount(), expected) << layer.title;
        for (const ResultTable::Key& key : report.keys) {
            if (!pipelines) {
                EXPECT_EQ(key.areaCode + key.block, area + block) << layer.title;
            }
        }
    }
}

TEST_F(ReportTest, APipelineIsListedOnceWhereSeveralAreasAreReported) {
    const std::vector<std::string> areas = {"'43112'", "'43113'"};
    const ResultTable report = Report(Of(KV_LAYER_PIPELINES), areas, "ALL");
    std::set<std::string> segments;
    for (int row = 0; row < report.RowCount(); ++row)
        segments.insert(report.Cell(row, 0));
    EXPECT_EQ(static_cast<int>(segments.size()), report.RowCount());
    const std::string in = "(" + areas[0] + "," + areas[1] + ")";
    EXPECT_GT(report.RowCount(), 0);
    EXPECT_EQ(report.RowCount(), Count(TableName("_pipeline") + " where areacode in " + in +
                                       " or to_areacode in " + in));
}

TEST_F(ReportTest, BothAreasOfAPipelineAreTheirNames) {
    const ResultTable report = Report(Of(KV_LAYER_PIPELINES), {"'43112'", "'43113'"}, "ALL");
    ASSERT_EQ(report.columns[1].heading, "From area");
    ASSERT_EQ(report.columns[3].heading, "To area");
    const Rows areas("select areaname from " + TableName("_connam2"));
    std::set<std::string> names;
    for (int row = 0; row < areas.Count(); ++row)
        names.insert(areas.Cell(row, 0));
    ASSERT_GT(report.RowCount(), 0);
    for (int row = 0; row < report.RowCount(); ++row) {
        EXPECT_TRUE(names.count(report.Cell(row, 1))) << report.Cell(row, 1);
        EXPECT_TRUE(names.count(report.Cell(row, 3))) << report.Cell(row, 3);
    }
}

TEST_F(ReportTest, ARowKnowsItsPlaceWhereTheLayerHasPlaces) {
    const ResultTable wells = Report(Of(KV_LAYER_WELLS), {"'43113'"}, "391");
    ASSERT_GT(wells.RowCount(), 0);
    ASSERT_TRUE(wells.keys[0].place);
    EXPECT_DOUBLE_EQ(wells.keys[0].place->lat, kv::Atof(wells.Cell(0, 10)));
    EXPECT_DOUBLE_EQ(wells.keys[0].place->lon, kv::Atof(wells.Cell(0, 11)));
    const ResultTable leases = Report(Of(KV_LAYER_LEASES), {"'43113'"}, "391");
    ASSERT_GT(leases.RowCount(), 0);
    EXPECT_FALSE(leases.keys[0].place);
}

TEST_F(ReportTest, LatitudesHaveTheSameDecimals) {
    const ResultTable wells = Report(Of(KV_LAYER_WELLS), {"'43113'"}, "ALL");
    std::set<std::size_t> decimals;
    for (int row = 0; row < wells.RowCount(); ++row)
        decimals.insert(wells.Cell(row, 10).size() - wells.Cell(row, 10).find('.'));
    EXPECT_EQ(decimals.size(), 1U);
}

TEST_F(ReportTest, TellsHowFarItIs) {
    ReportLoader loader(Of(KV_LAYER_WELLS), "Wells",
                        {"t.areacode = '43112'", "t.areacode = '43113'"}, [](ResultTable) {});
    EXPECT_EQ(loader.Title(), "Reading Wells");
    EXPECT_EQ(loader.Total(), 2);
    EXPECT_TRUE(loader.Step());
    EXPECT_EQ(loader.Done(), 1);
    EXPECT_FALSE(loader.Step());
}

TEST_F(ReportTest, OneThatIsCancelledSaysSoAndClaimsNothingOfWhatItHasNotRead) {
    std::vector<ResultTable> shown;
    const auto show = [&](ResultTable table) { shown.push_back(std::move(table)); };
    const std::vector<std::string> areas{"t.areacode = '43112'", "t.areacode = '43113'"};
    ReportLoader begun(Of(KV_LAYER_WELLS), "Wells", areas, show);
    EXPECT_TRUE(begun.Step());
    begun.Finished(false);
    ASSERT_EQ(shown.size(), 1U);
    ASSERT_GT(shown[0].RowCount(), 0);
    EXPECT_THAT(shown[0].Heading(shown[0].RowCount()),
                testing::MatchesRegex("Wells: [0-9,]+, cancelled"));
    ReportLoader notBegun(Of(KV_LAYER_WELLS), "Wells", areas, show);
    notBegun.Finished(false);
    EXPECT_EQ(shown.size(), 1U) << "whether there are none is not known";
    ReportLoader none(Of(KV_LAYER_WELLS), "Wells", {"t.areacode = 'none'"}, show);
    test::ReadAll(none);
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[1].Heading(0), "There are no wells.");
}

}  // namespace
}  // namespace workbench
