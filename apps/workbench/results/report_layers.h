#pragma once

#include <functional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/catalogue.h"
#include "workbench/dataset.h"
#include "workbench/results/result_table.h"
#include "workbench/step_work.h"

namespace workbench {

/// What a report shows of one layer.
struct ReportLayer {
    struct Column {
        /// SQL; "t" is the layer's table, "a" that of the areas, whose name is "{areas}".
        std::string_view expression;
        std::string_view heading;
        bool number = false;
    };

    E_Layer layer;
    std::string_view title;
    std::string_view table;  ///< suffix of the dataset's table
    /// SQL that is true for the rows of an area, and of a block: "{area}" and "{block}" stand for
    /// the literals.
    std::string_view ofArea;
    std::string_view ofBlock;
    std::string_view order;
    std::span<const Column> columns;
    /// Whether a row may belong to several areas; the first column then tells rows apart.
    bool reachesOut = false;
};

/// All layers that there are reports of.
std::span<const ReportLayer> ReportLayers();
/// Null for a layer without a report.
const ReportLayer* FindReportLayer(E_Layer layer);

/// SQL that is true for the rows of an area, given as an SQL literal, and of one block of it, or of
/// all its blocks where that is "ALL".
std::string BlockCondition(const ReportLayer& layer, const std::string& quotedArea,
                           const std::string& block);

/// The statement for the rows for which a condition holds. Behind the columns stand two that tell
/// the row's block.
std::string ReportStatement(const ReportLayer& layer, const std::string& condition);

/// The literals in what `GetAreacode(true)` of the bar gives: 'c1', or ('c1','c2').
std::vector<std::string> AreaLiterals(const std::string& areacode);

/// Reads a report, the rows of a condition at a step.
class ReportLoader final : public StepWork {
public:
    /// `what` tells what the rows are; `finished` gets what was read, when all was read, or the
    /// user cancelled and there is something.
    ReportLoader(const ReportLayer& layer, std::string what, std::vector<std::string> conditions,
                 std::function<void(ResultTable)> finished);

    std::string Title() const override;
    int Done() const override { return static_cast<int>(next_); }
    int Total() const override { return static_cast<int>(conditions_.size()); }
    bool Step() override;
    void Finished(bool whole) override;

private:
    bool Read(const std::string& first) const;
    void AddRow(const Rows& rows, int row);

    const ReportLayer& layer_;
    std::vector<std::string> conditions_;
    std::function<void(ResultTable)> finished_;
    std::size_t next_ = 0;
    ResultTable table_;
    int latitude_ = -1;  ///< columns
    int longitude_ = -1;
    std::set<std::string> read_;  ///< first cells of the steps before
};

}  // namespace workbench
