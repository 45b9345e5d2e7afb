#include "workbench/records/record_tools.h"

#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <memory>

#include "base/text.h"
#include "records/create_user_table.h"
#include "records/well_search.h"
#include "window/window_system.h"
#include "workbench/dataset.h"
#include "workbench/document/map_shape.h"
#include "workbench/failure_words.h"
#include "workbench/records/area_order.h"
#include "workbench/records/well_comments.h"
#include "workbench/records/well_finder.h"
#include "workbench/results/report_layers.h"

namespace workbench {

namespace {

constexpr std::string_view kApiNumber = "API number";

bool IsOfWells(const ResultTable& table) {
    return table.ColumnCount() > 0 && table.columns.front().heading == kApiNumber;
}

/// Puts the connection record back that was in force.
class KeptConnection {
public:
    explicit KeptConnection(const CKvDbInfo& database) : database_(database) {}
    ~KeptConnection() { CKvDbAbsDataMgr(KV_CONNECT_DEFAULT).SetDbInfo(database_); }
    KeptConnection(const KeptConnection&) = delete;
    KeptConnection& operator=(const KeptConnection&) = delete;

private:
    CKvDbInfo database_;
};

}  // namespace

RecordTools::RecordTools(Host host, QObject* parent)
    : QObject(parent), host_(std::move(host)), order_(&host_.frame) {
    host_.dock.hide();
    connect(&host_.results, &ResultsPane::RowChosen, this, &RecordTools::ShowChosen);
    connect(&host_.pane, &WellPane::Failed, this,
            [this](const QString& words) { host_.fail(words); });
}

void RecordTools::MakeMenus(QMenuBar& bar, Commands& commands) {
    QMenu& find = *bar.addMenu(tr("F&ind"));
    commands.Add(find, tr("&Well..."), Qt::CTRL | Qt::SHIFT | Qt::Key_F, [this] { FindWell(); });
    commands.Add(
        find, tr("&Record and comments of the well"), Qt::CTRL | Qt::Key_I, [this] { ShowPane(); },
        [this] { return NoWell(); });
    QMenu& database = *bar.addMenu(tr("D&atabase"));
    commands.Add(database, tr("&Create comment table..."), {}, [this] { CreateCommentTable(); });
}

void RecordTools::AskAreaOrder() {
    orderAsked_ = order_.DoModal() == IDOK || orderAsked_;
}

std::vector<std::string> RecordTools::InOrder(std::vector<std::string> areaLiterals) {
    if (!orderAsked_) return areaLiterals;
    try {
        return Ordered(areaLiterals, order_.GetbCustom());
    } catch (const CKvException& failure) {
        host_.fail(FailureWords(failure));
        return areaLiterals;
    }
}

/// Of the map that was built; without one, of what is seen.
std::pair<Place, Place> RecordTools::CornersOfSearch() const {
    const auto& map = host_.history.Current().map;
    Box degrees;
    for (const Place& place : map ? EdgeOf(*map) : std::vector<Place>())
        degrees.Include(Point{place.lon, place.lat});
    if (!degrees.Empty()) return {{degrees.minY, degrees.minX}, {degrees.maxY, degrees.maxX}};
    const Box box = host_.canvas.Seen();
    return {ToPlace({box.minX, box.minY}), ToPlace({box.maxX, box.maxY})};
}

void RecordTools::FillIn(CKvGuiWellSearch& dialog) const {
    const auto [southWest, northEast] = CornersOfSearch();
    dialog.SetMinLatLon(southWest.lon, southWest.lat);
    dialog.SetMaxLatLon(northEast.lon, northEast.lat);
    const ResultTable& report = host_.results.Model().Table();
    const bool offers = IsOfWells(report) && report.RowCount() > 0;
    dialog.SearchByAPI(offers);
    for (int row = 0; offers && row < report.RowCount(); ++row)
        dialog.AddApiNum(report.Cell(row, 0));
    CVZABEBar& bar = host_.frame.m_bar;
    dialog.SetMode(bar.GetAreaMode());
    const std::string area = bar.GetAreacode(false);
    const std::string block = bar.GetBlk(false);
    const bool one = !area.empty() && area.find(',') == std::string::npos;
    if (one) dialog.SetAreaCode(area);
    if (one && block != kv::catalogue::kAllBlocks) dialog.SetBlockNumber(block);
}

void RecordTools::FindWell() {
    CKvGuiWellSearch dialog(&host_.frame);
    FillIn(dialog);
    if (dialog.DoModal() != IDOK) return;
    const auto [southWest, northEast] = CornersOfSearch();
    const std::string condition = WellCondition(dialog.GetSearchString(), dialog.IsSearchByAPI(),
                                                dialog.GetMode(), southWest, northEast);
    host_.runner.Begin(std::make_shared<ReportLoader>(
        *FindReportLayer(KV_LAYER_WELLS), "Wells found", std::vector{condition},
        [this](ResultTable table) { ShowFound(std::move(table)); }));
}

void RecordTools::ShowFound(ResultTable table) {
    if (table.RowCount() == 0) {
        host_.fail(tr("There is no such well."));
        return;
    }
    const auto place = table.keys.front().place;
    host_.showTable(std::move(table));
    if (place) host_.canvas.ShowPlace(*place);
    host_.results.View().selectRow(0);
    ShowPane();
}

void RecordTools::ShowChosen(int row) {
    const ResultTable& table = host_.results.Model().Table();
    if (!IsOfWells(table)) {
        host_.pane.Clear();
    } else if (row >= 0 && host_.dock.isVisible()) {
        host_.pane.ShowWell(table, row);
    }
}

QString RecordTools::NoWell() const {
    const bool chosen = IsOfWells(host_.results.Model().Table()) && host_.results.HasSelection();
    return chosen ? QString()
                  : tr("No well is chosen among the results: Find > Well... finds one.");
}

void RecordTools::ShowPane() {
    host_.dock.show();
    host_.dock.raise();
    ShowChosen(host_.results.ChosenRow());
}

/// The dialog ends with OK whether it made a table or not, and has told which.
void RecordTools::CreateCommentTable() {
    try {
        const std::vector<std::string> before = well_comments::Tables();
        CKvDbInfo login;
        {
            const KeptConnection kept(host_.database);
            CKvCreateUserTable dialog(&host_.frame);
            dialog.DoModal();
            login = LoginInForce();
        }
        for (const std::string& table : well_comments::Tables()) {
            if (std::ranges::find(before, table) == before.end()) LetAllRead(table, login);
        }
    } catch (const CKvException& failure) {
        host_.fail(FailureWords(failure));
    }
    host_.pane.Refresh();
}

/// With the login that made the table.
void RecordTools::LetAllRead(const std::string& table, CKvDbInfo login) {
    {
        const KeptConnection kept(host_.database);
        CKvDbAbsDataMgr(KV_CONNECT_DEFAULT).SetDbInfo(login);
        well_comments::LetAllRead(table);
    }
    const QString made = tr("The table %1 is made.").arg(QString::fromStdString(table));
    const bool hasLogins = !kv::StartsWithNoCase(login.GetServer(), "sqlite:");
    host_.tell(hasLogins ? made + tr("\nEverybody may read and write its comments who has the "
                                     "right to use the schema NORVADON: the statement \"grant "
                                     "usage on schema norvadon to public\", run by the schema's "
                                     "owner, gives it to all.")
                         : made);
}

}  // namespace workbench
