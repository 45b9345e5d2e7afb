#include "workbench/workbench.h"

#include <QApplication>
#include <QDockWidget>
#include <QStatusBar>
#include <QTimer>

#include "base/text.h"
#include "frame/kvcom/profile.h"
#include "qt/qt_desktop.h"
#include "window/window_system.h"
#include "workbench/dataset.h"
#include "workbench/match.h"

namespace workbench {

namespace {

constexpr const char* kSection = "Workbench";
constexpr const char* kGeometry = "Geometry";
constexpr const char* kState = "State";
constexpr int kStateVersion = 1;
constexpr int kPaneHeight = 230;

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QByteArray Remembered(const char* entry) {
    return QByteArray::fromBase64(
        QByteArray::fromStdString(kv::profile::GetString(kSection, entry, "")));
}

void Remember(const char* entry, const QByteArray& value) {
    kv::profile::WriteString(kSection, entry, value.toBase64().toStdString());
}

/// Tells when a widget was painted for the first time.
class FirstPaint : public QObject {
public:
    FirstPaint(QWidget& widget, std::function<void()> painted)
        : QObject(&widget), painted_(std::move(painted)) {
        widget.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Paint) return false;
        // Behind the painting itself.
        QTimer::singleShot(0, this, [this] {
            painted_();
            deleteLater();
        });
        parent()->removeEventFilter(this);
        return false;
    }

private:
    std::function<void()> painted_;
};

QString Described(const Pick& pick) {
    if (pick.block) {
        return QStringLiteral("%1, block %2")
            .arg(Text(pick.block->area->name), Text(pick.block->Label()));
    }
    QStringList names;
    for (const AreaMap* area : pick.areas)
        names << Text(area->name);
    return QStringLiteral("%1, all blocks").arg(names.join(QStringLiteral(", ")));
}

QString Counted(const ResultTable& table) {
    return QStringLiteral("%1: %L2").arg(QString::fromStdString(table.title)).arg(table.RowCount());
}

}  // namespace

Workbench::Workbench(CKvDbInfo database) : database_(std::move(database)) {
    app_.m_pMainWnd = &frame_;
    if (!frame_.CreateWithBar()) qFatal("The bar has no template: was InitControlDll called?");
    window_ = kv::qt::MainWindowOf(*frame_.m_hWnd);
    MakePanes();
    status_ = new StatusLine(*window_->statusBar());
    MakeMenus();
    ConnectAll();
    Restore();
}

Workbench::~Workbench() {
    frame_.m_onClosed = nullptr;
    frame_.DestroyWindow();
}

void Workbench::MakePanes() {
    canvas_ = new MapCanvas(model_, window_);
    window_->setCentralWidget(canvas_);
    window_->setDockOptions(QMainWindow::AnimatedDocks | QMainWindow::AllowTabbedDocks |
                            QMainWindow::AllowNestedDocks);
    results_ = new ResultsPane;
    outcome_ = new OutcomePane;
    resultsDock_ = MakePane(tr("Results"), "results", results_);
    outcomeDock_ = MakePane(tr("Dialog outcome"), "outcome", outcome_);
    window_->tabifyDockWidget(resultsDock_, outcomeDock_);
    resultsDock_->raise();
    window_->resizeDocks({resultsDock_}, {kPaneHeight}, Qt::Vertical);
}

QDockWidget* Workbench::MakePane(const QString& title, const char* name, QWidget* widget) {
    auto* dock = new QDockWidget(title, window_);
    dock->setObjectName(QString::fromLatin1(name));
    dock->setWidget(widget);
    window_->addDockWidget(Qt::BottomDockWidgetArea, dock);
    return dock;
}

void Workbench::ConnectAll() {
    frame_.m_onRun = [this] { OnRun(); };
    frame_.m_onClosing = [this] { Save(); };
    frame_.m_onClosed = [] { QCoreApplication::quit(); };

    connect(canvas_, &MapCanvas::Pointed, status_, [this](const Place& place) {
        status_->ShowPlace(place, model_.BlockAt(ToMap(place)));
    });
    connect(canvas_, &MapCanvas::PointedNowhere, status_, &StatusLine::ShowNoPlace);
    connect(canvas_, &MapCanvas::BlockClicked, this, [this](const BlockRef& block) {
        canvas_->MarkPick({{}, block});
        PickInBar(block);
    });
    connect(canvas_, &MapCanvas::PlaceClicked, this,
            [this](const Place& place) { tools_.SetPosition(place); });
    connect(results_, &ResultsPane::BlockWanted, this,
            [this](const QString& area, const QString& block) {
                ShowOnMap({area.toStdString()}, block.toStdString());
            });
    connect(&runner_, &WorkRunner::Progress, status_, &StatusLine::ShowProgress);
    connect(&runner_, &WorkRunner::Idle, status_, &StatusLine::HideProgress);
    connect(&runner_, &WorkRunner::Failed, this, &Workbench::Fail);
    connect(status_, &StatusLine::CancelPressed, &runner_, &WorkRunner::Cancel);
}

void Workbench::Restore() {
    window_->restoreGeometry(Remembered(kGeometry));
    window_->restoreState(Remembered(kState), kStateVersion);
}

void Workbench::Save() {
    if (!window_) return;
    Remember(kGeometry, window_->saveGeometry());
    Remember(kState, window_->saveState(kStateVersion));
}

void Workbench::Show() {
    new FirstPaint(*canvas_, [this] {
        emit FirstPainted();
        LoadMap();
    });
    frame_.ShowWindow(SW_SHOW);
    canvas_->setFocus();
}

void Workbench::LoadMap() {
    if (loader_) runner_.Drop(loader_);
    canvas_->ModelGoes();
    model_.Clear();
    loader_ = std::make_shared<MapLoader>(model_, [this] {
        if (canvas_) canvas_->ModelChanged();
    });
    runner_.Begin(loader_);
}

bool Workbench::UseDatabase(const CKvDbInfo& info, QString& failure) {
    CKvDbInfo wanted = info;
    CKvDbAbsDataMgr(KV_CONNECT_DEFAULT).SetDbInfo(wanted);
    try {
        const Rows areas("select count(*) from " + TableName(kv::catalogue::kAreaTable));
    } catch (const CKvException& e) {
        failure = QString::fromStdString(e.GetErrorMessage(true, true));
        CKvDbAbsDataMgr(KV_CONNECT_DEFAULT).SetDbInfo(database_);
        return false;
    }
    database_ = wanted;
    frame_.m_bar.GetAreaCombo()->SetWindowText("");
    frame_.m_bar.SetBlkExt("");
    frame_.m_bar.GetAreaCombo()->V_InitializeCombo();
    results_->SetTable({});
    LoadMap();
    return true;
}

void Workbench::Fail(const QString& message) {
    if (failure_) {
        failure_(message);
    } else {
        frame_.MessageBox(message.toUtf8().constData(), "Workbench", MB_OK | MB_ICONEXCLAMATION);
    }
}

void Workbench::OnRun() {
    if (frame_.m_bar.IsMapSelected()) {
        RunMap();
    } else {
        RunReport();
    }
}

void Workbench::RunMap() {
    const std::string codes = frame_.m_bar.GetAreacode(false);
    if (codes.empty()) {
        Fail(UnknownArea());
        return;
    }
    ShowOnMap(kv::Split(codes, ','), frame_.m_bar.GetBlk(true));
}

QString Workbench::UnknownArea() const {
    return tr("The database knows no such block of the area \"%1\".")
        .arg(Text(frame_.m_bar.GetArea()));
}

void Workbench::ShowOnMap(const std::vector<std::string>& areaCodes, const std::string& block) {
    try {
        if (loader_) loader_->Need(areaCodes);
    } catch (const CKvException& e) {
        Fail(QString::fromStdString(e.GetErrorMessage(true, true)));
        return;
    }
    const Pick pick = model_.FindPick(areaCodes, block);
    if (pick.Empty()) {
        Fail(tr("There is no block \"%1\" there on the map.").arg(QString::fromStdString(block)));
        return;
    }
    canvas_->ShowPick(pick);
    status_->Say(Described(pick));
}

void Workbench::RunReport() {
    const ReportLayer* layer = FindReportLayer(frame_.m_bar.GetLayer());
    if (!layer) {
        Fail(tr("There is no report of this layer."));
        return;
    }
    std::vector<std::string> conditions;
    for (const std::string& area : AreaLiterals(frame_.m_bar.GetAreacode(true))) {
        conditions.push_back(BlockCondition(*layer, area, frame_.m_bar.GetBlk(true)));
    }
    if (conditions.empty()) {
        Fail(UnknownArea());
        return;
    }
    runner_.Begin(std::make_shared<ReportLoader>(
        *layer, std::move(conditions), [this](ResultTable table) { ShowTable(std::move(table)); }));
}

void Workbench::ShowTable(ResultTable table) {
    if (!results_) return;
    status_->Say(Counted(table));
    results_->SetTable(std::move(table));
    resultsDock_->show();
    resultsDock_->raise();
}

void Workbench::PickInBar(const BlockRef& block) {
    CVZABEBar& bar = frame_.m_bar;
    const bool named = bar.GetAreaMode() != kv::catalogue::kMmsCode || !block.area->mmsCode.empty();
    if (!named || !bar.GetEnableABE()) return;
    try {
        // The block box shows the water behind the number.
        const Rows label(kv::catalogue::BlockLabelExpression() + "lbnum||lbext) from " +
                         TableName(kv::catalogue::kBlockTable) +
                         " where areacode = " + Quoted(block.area->code) +
                         " and lbnum||lbext = " + Quoted(std::string(block.Label())));
        bar.SetArea(block.area->code);
        bar.SetBlkExt(label.Cell(0, 0));
    } catch (const CKvException& e) {
        Fail(QString::fromStdString(e.GetErrorMessage(true, true)));
    }
    kv::WindowSystem::Get().Settle();
}

void Workbench::OpenDialog(const adaptors::Adaptor& adaptor) {
    if (adaptor.makeTool) {
        tools_.Show(adaptor);
    } else {
        RunDialog(adaptor);
    }
}

void Workbench::RunDialog(const adaptors::Adaptor& adaptor) {
    adaptors::Run run(adaptor.SampleInputs());
    try {
        adaptor.run(run);
    } catch (const std::exception& e) {
        Fail(QString::fromUtf8(e.what()));
        return;
    }
    if (!outcome_) return;
    outcome_->Add(adaptor, run);
    outcomeDock_->show();
    outcomeDock_->raise();
    ShowMatch(adaptor, run);
    ShowSelected(adaptor, run);
}

void Workbench::ShowSelected(const adaptors::Adaptor& adaptor, const adaptors::Run& run) {
    auto selected = SelectedBlocksOf(adaptor, run);
    if (!selected) return;
    selected_ = std::move(selected);
    canvas_->ShowSelected(OnTheMap(model_, *selected_));
}

void Workbench::ShowNeighbors() {
    if (!selected_) {
        Fail(tr("No blocks were selected yet: a block dialog among the dialogs does that."));
        return;
    }
    canvas_->ShowNeighbors(OnTheMap(model_, NeighborsOf(*selected_)));
}

void Workbench::ShowMatch(const adaptors::Adaptor& adaptor, const adaptors::Run& run) {
    try {
        const auto match = MatchOf(adaptor, run);
        if (!match) return;
        outcome_->AddNote(tr("Matching rows: %1 where %2")
                              .arg(Text(match->layer->title), Text(match->condition)));
        runner_.Begin(std::make_shared<ReportLoader>(*match->layer, std::vector{match->condition},
                                                     [this](ResultTable table) {
                                                         table.title = "Matching " + table.title;
                                                         ShowTable(std::move(table));
                                                     }));
    } catch (const std::exception& e) {
        Fail(QString::fromUtf8(e.what()));
    }
}

}  // namespace workbench
