#include "workbench/workbench.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <algorithm>

#include "base/text.h"
#include "frame/kvcom/misc.h"
#include "frame/kvcom/profile.h"
#include "frame/kvdbkvn/db_util.h"
#include "qt/qt_desktop.h"
#include "window/window_system.h"
#include "workbench/dataset.h"
#include "workbench/drawing_tools/text_scale.h"
#include "workbench/failure_words.h"
#include "workbench/map_search.h"
#include "workbench/match.h"
#include "workbench/sample_maker.h"

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

}  // namespace

Workbench::Workbench(CKvDbInfo database) : database_(std::move(database)) {
    app_.m_pMainWnd = &frame_;
    if (!frame_.CreateWithBar()) qFatal("The bar has no template: was InitControlDll called?");
    window_ = kv::qt::MainWindowOf(*frame_.m_hWnd);
    MakePanes();
    MakeRecordTools();
    status_ = new StatusLine(*window_->statusBar());
    commands_ = new Commands(*window_, *status_);
    const auto fail = [this](const QString& message) { Fail(message); };
    printing_ = new Printing(frame_, model_, *canvas_, runner_, *status_, fail);
    printing_->setParent(window_);
    mouse_ = std::make_unique<MapMouse>(*canvas_, *status_);
    readouts_ =
        std::make_unique<Readouts>(model_, tools_, *canvas_, *mouse_, *status_, *commands_, fail);
    MakeDocumentTools();
    drawing_ = std::make_unique<DrawingTools>(DrawingDesk{
        frame_, model_, *canvas_, *mouse_, tools_, runner_, *status_, *commands_, history_, fail});
    printing_->SetDrawings([this] {
        const MapDocument& document = history_.Current();
        return MapDrawings{document.drawings, FeetPerInch(document)};
    });
    MakeMenus();
    new FocusRound([this] { return FocusParts(); }, window_);
    ConnectAll();
    Restore();
    ShowTitle();
    commands_->Refresh();
}

Workbench::~Workbench() {
    frame_.m_onClosed = nullptr;
    frame_.m_bar.m_onIdle = nullptr;
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

void Workbench::MakeRecordTools() {
    well_ = new WellPane;
    QDockWidget* dock = MakePane(tr("Well"), "well", well_);
    records_ =
        new RecordTools({frame_, *canvas_, *results_, runner_, database_, history_, *dock, *well_,
                         [this](ResultTable table) {
                             reported_ = PickOfBar();
                             ShowTable(std::move(table));
                         },
                         [this](const QString& words) { Fail(words); },
                         [this](const QString& note) { Tell(note); }},
                        window_);
}

void Workbench::MakeDocumentTools() {
    documents_ =
        new DocumentTools({frame_, model_, *canvas_, *status_, *commands_, history_, *readouts_,
                           *printing_, [this](const QString& words) { Fail(words); },
                           [this](const QString& note) { Tell(note); }, [this] { ShowTitle(); }},
                          window_);
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
    frame_.m_bar.m_onIdle = [this] {
        if (results_) results_->SetCurrent(PickOfBar() == reported_);
    };
    frame_.m_onClosing = [this] {
        if (!MayLeave()) return false;
        Save();
        return true;
    };
    frame_.m_onClosed = [] { QCoreApplication::quit(); };

    connect(canvas_, &MapCanvas::Pointed, status_, [this](const Place& place) {
        status_->ShowPlace(place, model_.BlockAt(ToMap(place)));
    });
    connect(canvas_, &MapCanvas::PointedNowhere, status_, &StatusLine::ShowNoPlace);
    connect(canvas_, &MapCanvas::BlockClicked, this, [this](const BlockRef& block) {
        canvas_->MarkPick({{}, block});
        PickInBar(block);
    });
    connect(canvas_, &MapCanvas::PickChanged, this, [this] {
        ShowTitle();
        documents_->TakePicks(PicksOf(canvas_->GetPick()));
        commands_->Refresh();
    });
    connect(canvas_, &MapCanvas::PlaceClicked, this, [this](const Place& place) {
        if (!drawing_->HasMouse()) tools_.SetPosition(place);
    });
    connect(results_, &ResultsPane::BlockWanted, this,
            [this](const QString& area, const QString& block) {
                ShowOnMap({area.toStdString()}, block.toStdString());
            });
    connect(results_, &ResultsPane::RowChosen, this, &Workbench::ShowChosenRow);
    connect(results_, &ResultsPane::Changed, commands_, &Commands::Refresh);
    connect(&runner_, &WorkRunner::Progress, status_, &StatusLine::ShowProgress);
    connect(&runner_, &WorkRunner::Idle, status_, &StatusLine::HideProgress);
    connect(&runner_, &WorkRunner::Failed, this, &Workbench::Fail);
    connect(status_, &StatusLine::CancelPressed, &runner_, &WorkRunner::Cancel);
}

void Workbench::Restore() {
    window_->restoreGeometry(Remembered(kGeometry));
    window_->restoreState(Remembered(kState), kStateVersion);
    // The screen may be another one than that time.
    if (window_->isMaximized() || window_->isFullScreen()) return;
    constexpr int kBorder = 8;
    constexpr int kTitle = 32;
    const QRect screen =
        window_->screen()->availableGeometry().adjusted(kBorder, kTitle, -kBorder, -kBorder);
    QRect place = window_->geometry();
    place.setSize(place.size().boundedTo(screen.size()));
    place.moveRight(std::min(place.right(), screen.right()));
    place.moveBottom(std::min(place.bottom(), screen.bottom()));
    window_->setGeometry(place);
}

void Workbench::Save() {
    if (!window_) return;
    Remember(kGeometry, window_->saveGeometry());
    Remember(kState, window_->saveState(kStateVersion));
}

void Workbench::Show(const std::string& file) {
    new FirstPaint(*canvas_, [this, file] {
        emit FirstPainted();
        if (const auto missing = MissingSample(database_)) {
            OfferSample(*missing);
        } else {
            LoadMap();
        }
        if (!file.empty()) documents_->OpenFile(file);
    });
    frame_.ShowWindow(SW_SHOW);
    canvas_->setFocus();
}

void Workbench::LoadMap() {
    if (loader_) runner_.Drop(loader_);
    readouts_->MapGoes();
    drawing_->MapGoes();
    canvas_->ModelGoes();
    model_.Clear();
    const auto areaAdded = [this] {
        if (!canvas_) return;
        canvas_->ModelChanged();
        if (model_.Areas().size() == 1) commands_->Refresh();
    };
    loader_ = std::make_shared<MapLoader>(model_, areaAdded,
                                          [this](const QString& words) { Fail(words); });
    runner_.Begin(loader_);
    commands_->Refresh();
}

/// Whoever has not yet made the sample database is told how, and may do so here.
void Workbench::OfferSample(const QString& path) {
    if (failure_) {
        failure_(tr("There is no sample database %1.").arg(path));
        return;
    }
    if (!AskForSample(path, window_)) return;
    QString failure;
    if (MakeSample(SampleProgram(), path, window_, failure)) {
        LoadMap();
    } else if (!failure.isEmpty()) {
        Fail(failure);
    }
}

bool Workbench::UseDatabase(const CKvDbInfo& info, QString& failure) {
    CKvDbInfo wanted = info;
    CKvDbAbsDataMgr(KV_CONNECT_DEFAULT).SetDbInfo(wanted);
    try {
        const Rows areas("select count(*) from " + TableName(kv::catalogue::kAreaTable));
    } catch (const CKvException& e) {
        failure = FailureWords(e);
        CKvDbAbsDataMgr(KV_CONNECT_DEFAULT).SetDbInfo(database_);
        return false;
    }
    // What was begun would read on from this one.
    runner_.DropAll();
    database_ = wanted;
    ShowTitle();
    frame_.m_bar.GetAreaCombo()->SetWindowText("");
    frame_.m_bar.SetBlkExt("");
    frame_.m_bar.GetAreaCombo()->V_InitializeCombo();
    results_->SetTable({});
    selected_.reset();
    documents_->Reset();
    LoadMap();
    return true;
}

bool Workbench::MayLeave() {
    return drawing_->MayLeave() && documents_->MayLeave() && MayEndWork();
}

/// Asks where a file or pages would be lost.
bool Workbench::MayEndWork() {
    const StepWork* writing = runner_.Writing();
    if (!writing) return true;
    const QString question = tr("%1 is not finished yet. End it, with nothing kept?")
                                 .arg(QString::fromStdString(writing->Title()));
    return frame_.MessageBox(question.toUtf8().constData(), "Workbench",
                             MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void Workbench::Fail(const QString& message) {
    if (message.isEmpty()) return;
    if (failure_) {
        failure_(message);
    } else {
        frame_.MessageBox(message.toUtf8().constData(), "Workbench", MB_OK | MB_ICONEXCLAMATION);
    }
}

void Workbench::Tell(const QString& note) {
    if (note_) {
        note_(note);
    } else {
        frame_.MessageBox(note.toUtf8().constData(), "Workbench", MB_OK | MB_ICONINFORMATION);
    }
}

void Workbench::OnRun() {
    status_->Clear();
    if (frame_.m_bar.IsMapSelected()) {
        RunMap();
    } else {
        RunReport();
    }
}

void Workbench::RunMap() {
    if (const auto codes = CodesOfPick(false))
        ShowOnMap(kv::Split(*codes, ','), frame_.m_bar.GetBlk(true));
}

/// The codes of the bar's area, as SQL where they are `quoted`. None, which is told, where there is
/// no such area or block, or the database fails.
std::optional<std::string> Workbench::CodesOfPick(bool quoted) {
    QString failure = UnknownArea();
    try {
        const kv::db::LookUpsThrow failures;
        std::string codes = frame_.m_bar.GetAreacode(quoted);
        if (!codes.empty()) return codes;
    } catch (const CKvException& e) {
        failure = FailureWords(e);
    }
    Fail(failure);
    return {};
}

QString Workbench::UnknownArea() const {
    return tr("The database knows no such block of the area \"%1\".")
        .arg(Text(frame_.m_bar.GetArea()));
}

void Workbench::ShowOnMap(const std::vector<std::string>& areaCodes, const std::string& block) {
    try {
        if (loader_) loader_->Need(areaCodes);
    } catch (const CKvException& e) {
        Fail(FailureWords(e));
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
    const auto codes = CodesOfPick(true);
    if (!codes) return;
    const std::vector<std::string> areas = AreaLiterals(*codes);
    std::vector<std::string> conditions;
    for (const std::string& area : records_->InOrder(areas))
        conditions.push_back(BlockCondition(*layer, area, frame_.m_bar.GetBlk(true)));
    const BarPick asked = PickOfBar();
    std::string words;
    try {
        words = WordsOfPick(areas);
    } catch (const CKvException& e) {
        Fail(FailureWords(e));
        return;
    }
    runner_.Begin(std::make_shared<ReportLoader>(*layer, std::string(layer->title) + " in " + words,
                                                 std::move(conditions),
                                                 [this, asked](ResultTable table) {
                                                     reported_ = asked;
                                                     ShowTable(std::move(table));
                                                 }));
    if (follows_) RunMap();
}

Workbench::BarPick Workbench::PickOfBar() const {
    return {frame_.m_bar.GetArea(), frame_.m_bar.GetBlk(false)};
}

/// The area by its name, where the bar's text means one alone, and the block if it is one.
std::string Workbench::WordsOfPick(const std::vector<std::string>& areas) const {
    std::string words = frame_.m_bar.GetArea();
    if (areas.size() == 1) {
        const Rows names(std::string("select ") + kv::catalogue::kColumnAreaName + " from " +
                         TableName(kv::catalogue::kAreaTable) + " where " +
                         kv::catalogue::kColumnAreaCode + " = " + areas.front());
        if (names.Count() > 0) words = names.Cell(0, 0);
    }
    const std::string block = frame_.m_bar.GetBlk(true);
    return block == kv::catalogue::kAllBlocks ? words : words + " " + block;
}

/// The document, what of the map is picked, and the database.
void Workbench::ShowTitle() {
    std::string user, password, server;
    CKvMisc::GetParsedConnectString(user, password, server, false);
    server = server.substr(0, server.find('?'));
    QStringList parts;
    if (const QString title = documents_->Title(); !title.isEmpty()) parts << title;
    if (!canvas_->GetPick().Empty()) parts << Described(canvas_->GetPick());
    parts << Text(std::string_view(server).substr(server.rfind('/') + 1)) << tr("Workbench");
    frame_.SetWindowText(parts.join(QStringLiteral(" - ")).toUtf8().constData());
}

void Workbench::SetMapFollows(bool follows) {
    follows_ = follows;
    if (follows_) ShowChosenRow(results_->ChosenRow());
}

/// Marks on the map what a row of the table tells of.
void Workbench::ShowChosenRow(int row) {
    if (row < 0) {
        canvas_->MarkRow({}, {});
        return;
    }
    const ResultTable::Key& key = results_->Model().Table().keys[static_cast<std::size_t>(row)];
    canvas_->MarkRow(model_.FindPick({key.areaCode}, key.block).block, key.place);
    if (follows_) canvas_->BringRowUp();
}

void Workbench::ShowTable(ResultTable table) {
    if (!results_) return;
    documents_->AddCoordinates(table);
    status_->Say(Text(table.Heading(table.RowCount())));
    results_->SetTable(std::move(table));
    resultsDock_->show();
    resultsDock_->raise();
}

void Workbench::PickInBar(const AreaMap& area, std::string_view block) {
    CVZABEBar& bar = frame_.m_bar;
    const bool named = bar.GetAreaMode() != kv::catalogue::kMmsCode || !area.mmsCode.empty();
    if (!named || !bar.GetEnableABE()) return;
    try {
        std::string label(block);
        if (block != kv::catalogue::kAllBlocks) {
            // The block box shows the water behind the number.
            const Rows rows(kv::catalogue::BlockLabelExpression() + "lbnum||lbext) from " +
                            TableName(kv::catalogue::kBlockTable) + " where areacode = " +
                            Quoted(area.code) + " and lbnum||lbext = " + Quoted(label));
            label = rows.Cell(0, 0);
        }
        bar.SetArea(area.code);
        bar.SetBlkExt(label);
    } catch (const CKvException& e) {
        Fail(FailureWords(e));
    }
    kv::WindowSystem::Get().Settle();
}

bool Workbench::GoTo(const QString& text) {
    const auto hit = Search(model_, text.toStdString());
    if (!hit) return false;
    if (hit->place) {
        canvas_->ShowPlace(*hit->place);
        if (const auto block = model_.BlockAt(ToMap(*hit->place))) PickInBar(*block);
    } else {
        canvas_->ShowPick(hit->pick);
        if (hit->pick.block) {
            PickInBar(*hit->pick.block);
        } else {
            PickInBar(*hit->pick.areas.front(), kv::catalogue::kAllBlocks);
        }
    }
    canvas_->setFocus(Qt::ShortcutFocusReason);
    return true;
}

void Workbench::OpenDialog(const adaptors::Adaptor& adaptor) {
    if (!tools_.Show(adaptor)) {
        RunDialog(adaptor);
    } else if (recorder_.Records()) {
        status_->Say(tr("What is done in a tool beside the map is not recorded."));
    }
}

void Workbench::RunDialog(const adaptors::Adaptor& adaptor) {
    status_->Clear();
    adaptors::Run run(adaptor.SampleInputs());
    try {
        const QString lost = recorder_.Run(adaptor, run);
        if (!lost.isEmpty()) {
            recorder_.End();
            recordRow_->setChecked(false);
            Fail(tr("%1 cannot be written. Nothing is recorded any more.").arg(lost));
            return;
        }
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
    documents_->TakePicks(PicksOf(*selected_));
    commands_->Refresh();
}

void Workbench::ShowNeighbors() {
    if (!selected_) return;
    canvas_->ShowNeighbors(OnTheMap(model_, NeighborsOf(*selected_)));
}

void Workbench::ShowMatch(const adaptors::Adaptor& adaptor, const adaptors::Run& run) {
    try {
        const auto match = MatchOf(adaptor, run);
        if (!match) return;
        if (!match->cut.empty()) outcome_->AddNote(Text(match->cut));
        outcome_->AddNote(tr("Matching rows: %1 where %2")
                              .arg(Text(match->layer->title), Text(match->condition)));
        const std::string what = "Matching " + std::string(match->layer->title);
        runner_.Begin(std::make_shared<ReportLoader>(
            *match->layer, what, std::vector{match->condition}, [this](ResultTable table) {
                table.title = table.what;
                reported_ = PickOfBar();
                ShowTable(std::move(table));
            }));
    } catch (const std::exception& e) {
        Fail(QString::fromUtf8(e.what()));
    }
}

}  // namespace workbench
