#include "workbench/document/document_tools.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <utility>

#include "base/paths.h"
#include "mapbuild/builders/custom_dlg.h"
#include "mapbuild/builders/map_building_prop.h"
#include "mapbuild/builders/map_rpt_proj_chooser.h"
#include "mapbuild/builders/pick_bdry_dlg.h"
#include "qt/qt_desktop.h"
#include "window/dialogs/file_dialog.h"
#include "window/dialogs/message_box.h"
#include "workbench/dataset.h"
#include "workbench/document/boundary_text.h"
#include "workbench/document/county_dialog.h"
#include "workbench/document/map_file.h"
#include "workbench/document/map_shape.h"
#include "workbench/document/report_coordinates.h"
#include "workbench/failure_words.h"
#include "workbench/file_name.h"

namespace workbench {

namespace {

constexpr const char* kExtension = "kvmap";
constexpr const char* kFilter = "Maps (*.kvmap)|*.kvmap|All files (*.*)|*.*||";
constexpr const char* kBoundaryFilter =
    "Text files (*.txt)|*.txt|GeoJSON files (*.geojson)|*.geojson|All files (*.*)|*.*||";

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

/// The current dataset, as documents name it.
std::string CurrentDataset() {
    return TableName("");
}

/// Tells a builder how blocks were picked; of all blocks of an area it finds that out itself.
void SetMode(CKvGuiQuickOffBldDlg& dialog, const Picks& picks) {
    dialog.SetMode(picks.size() == 1, picks.size() > 1, 0);
}

void GivePicks(CKvGuiQuickOffBldDlg& dialog, const Picks& picks) {
    for (const CKvDbUtil::Pick& pick : picks) {
        dialog.SetBlock(pick.block);
        // A county is its identifier alone.
        if (pick.area.empty()) continue;
        dialog.SetArea(pick.area);
        dialog.SetExt(pick.ext);
    }
}

}  // namespace

DocumentTools::DocumentTools(Host host, QObject* parent)
    : QObject(parent), host_(std::move(host)), usual_(host_.model, host_.fail) {
    host_.history.Begin({CurrentDataset(), {}, {}});
    connect(&host_.history, &DocumentHistory::Changed, this, &DocumentTools::Show);
}

// The menus.

void DocumentTools::MakeMenu(QMenu& menu) {
    const auto noMap = [this] { return NoMap(); };
    const auto noPicks = [this] { return NoPicks(); };
    const auto nothing = [this] { return NothingToSave(); };
    Commands& commands = host_.commands;
    commands.Add(
        menu, tr("&New from picked blocks..."), Qt::CTRL | Qt::SHIFT | Qt::Key_N,
        [this] { NewFromPicks(); }, noPicks);
    commands.Add(menu, tr("New from &county..."), Qt::CTRL | Qt::SHIFT | Qt::Key_Y,
                 [this] { NewFromCounties(); });
    commands.Add(menu, tr("New custo&m map..."), Qt::CTRL | Qt::SHIFT | Qt::Key_M,
                 [this] { NewCustom(); });
    menu.addSeparator();
    commands.Add(
        menu, tr("&Properties..."), Qt::ALT | Qt::Key_Return, [this] { Properties(); }, noMap);
    commands.Add(
        menu, tr("Report pro&jection..."), {}, [this] { ChooseReportProjection(); }, noMap);
    commands.Add(
        menu, tr("&Zoom to the map"), Qt::CTRL | Qt::Key_2, [this] { host_.canvas.ShowFrame(); },
        noMap);
    commands.Add(
        menu, tr("&Export pick boundary..."), Qt::CTRL | Qt::SHIFT | Qt::Key_B,
        [this] { ExportBoundary(); }, noPicks);
    menu.addSeparator();
    commands.Add(menu, tr("&Open..."), Qt::CTRL | Qt::SHIFT | Qt::Key_O, [this] { Open(); });
    commands.Add(
        menu, tr("&Save"), Qt::CTRL | Qt::SHIFT | Qt::Key_S, [this] { Save(); }, nothing);
    commands.Add(
        menu, tr("Save &As..."), Qt::CTRL | Qt::ALT | Qt::Key_S, [this] { SaveAs(); }, nothing);
    recentMenu_ = menu.addMenu(tr("&Recent"));
    connect(recentMenu_, &QMenu::aboutToShow, this, &DocumentTools::FillRecent);
    FillRecent();
}

void DocumentTools::AddUndo(QMenu& edit) {
    undo_ = host_.commands.Add(
        edit, tr("&Undo"), QKeySequence::Undo, [this] { host_.history.Undo(); },
        [this] { return host_.history.CanUndo() ? QString() : tr("There is nothing to undo."); });
    redo_ = host_.commands.Add(
        edit, tr("&Redo"), QKeySequence::Redo, [this] { host_.history.Redo(); },
        [this] {
            return host_.history.CanRedo() ? QString() : tr("There is nothing to do again.");
        });
}

void DocumentTools::FillRecent() {
    recentMenu_->clear();
    int number = 0;
    for (const std::string& path : recent_.Paths()) {
        const QString shown = Text(kv::ToNative(path)).replace(u'&', QStringLiteral("&&"));
        QAction* row = recentMenu_->addAction(QStringLiteral("&%1 %2").arg(++number).arg(shown));
        connect(row, &QAction::triggered, this, [this, path] {
            if (MayLeave()) OpenFile(path);
        });
    }
    if (number == 0) recentMenu_->addAction(tr("&No map was saved yet"))->setEnabled(false);
}

QString DocumentTools::NoMap() const {
    return Document().map ? QString()
                          : tr("No map was built yet: the rows New of the menu Map do that.");
}

QString DocumentTools::NoPicks() const {
    return picks_.empty() ? tr("No blocks are picked yet: a click on a block, Run with Map, or a "
                               "block dialog among the dialogs does that.")
                          : QString();
}

bool DocumentTools::IsEmpty() const {
    return Document() == MapDocument{Document().dataset, {}, {}};
}

QString DocumentTools::NothingToSave() const {
    return IsEmpty() && path_.empty() ? tr("There is no map to save yet.") : QString();
}

QString DocumentTools::Title() const {
    QString name;
    if (Document().map) {
        name = Text(Document().map->name);
    } else if (!path_.empty()) {
        name = Text(kv::ToNative(path_)).section(u'/', -1);
    } else if (!IsEmpty()) {
        name = tr("Untitled");
    }
    return host_.history.IsSaved() ? name : (name.isEmpty() ? tr("Untitled") : name) + u'*';
}

// What is picked.

void DocumentTools::TakePicks(Picks picks) {
    if (picks.empty()) return;
    picks_ = std::move(picks);
    host_.commands.Refresh();
}

/// False where nothing is left, or the database failed, which is told.
bool DocumentTools::LeaveOutUnknown(Picks& picks) {
    try {
        const Picks unknown = TakeUnknown(picks, CurrentDataset());
        if (unknown.empty()) return true;
        const QString names = Text(NamesOf(unknown));
        if (picks.empty()) {
            host_.fail(tr("The database knows none of the blocks that are picked: %1.").arg(names));
            return false;
        }
        host_.tell(tr("The database does not know these blocks, and the map goes without them: "
                      "%1.")
                       .arg(names));
        return true;
    } catch (const CKvException& failure) {
        host_.fail(FailureWords(failure));
        return false;
    }
}

// New maps.

DocumentTools::Built DocumentTools::RunBuilder(CKvGuiQuickOffBldDlg& dialog, const Picks& picks) {
    GivePicks(dialog, picks);
    dialog.GetOwnerDataset(CurrentDataset());
    dialog.DoModal();
    if (!dialog.GetTermination()) return {};
    BuiltMap map{dialog.GetMapName(), dialog.GetBounds(), picks};
    map.bounds.SetScale(dialog.GetScale());
    if (HasExtent(map)) return map;
    host_.fail(tr("The bounds of what was picked could not be read: nothing is made of them."));
    return {};
}

void DocumentTools::NewFromPicks() {
    Picks picks = picks_;
    if (!MayBegin() || !LeaveOutUnknown(picks)) return;
    CKvGuiQuickOffBldDlg dialog(&host_.frame);
    SetMode(dialog, picks);
    dialog.SetXYBounded(true);
    if (auto map = RunBuilder(dialog, picks)) BeginWith(std::move(*map));
}

void DocumentTools::NewFromCounties() {
    if (!MayBegin()) return;
    Picks picks;
    try {
        CountyDialog counties(ReadCounties(), kv::qt::MainWindowOf(*host_.frame.m_hWnd));
        if (counties.exec() != QDialog::Accepted) return;
        for (const std::string& county : counties.Chosen())
            picks.push_back({"", county, ""});
    } catch (const CKvException& failure) {
        host_.fail(FailureWords(failure));
        return;
    }
    CKvGuiQuickOffBldDlg dialog(&host_.frame);
    SetMode(dialog, picks);
    dialog.SetTemplateType(KV_TEMPLATE_ONSHORE);
    dialog.SetXYBounded(true);
    if (auto map = RunBuilder(dialog, picks)) BeginWith(std::move(*map));
}

void DocumentTools::NewCustom() {
    if (!MayBegin()) return;
    CKvGuiCustomDlg dialog(&host_.frame);
    if (dialog.DoModal() != IDOK) return;
    BuiltMap map{dialog.GetMapName(), dialog.GetBounds(), {}};
    map.bounds.SetScale(dialog.GetScale());
    BeginWith(std::move(map));
}

/// A map is built into a document that has none yet, with what was drawn there; else into a new
/// one.
bool DocumentTools::MayBegin() {
    return !Document().map || MayLeave();
}

void DocumentTools::BeginWith(BuiltMap map) {
    if (Document().map) {
        path_.clear();
        host_.history.Begin({CurrentDataset(), {}, {}});
    }
    MapDocument next = Document();
    next.map = std::move(map);
    host_.history.Do(std::move(next), tr("new map"));
    host_.canvas.ShowFrame();
}

// The map there is.

void DocumentTools::Properties() {
    const BuiltMap map = *Document().map;
    CKvMapBounds bounds = map.bounds;
    CKvGuiMapBuildingProp dialog(&host_.frame);
    dialog.SetBounds(bounds);
    dialog.SetMapName(map.name);
    dialog.SetProj(map.Projection());
    dialog.SetXYBounded(bounds.GetXYBounded());
    dialog.SetTemplateType(bounds.GetTemplateType());
    dialog.SetScale(bounds.GetScale());
    dialog.SetMapWidth(bounds.GetPickMapWidth());
    dialog.SetMapHeight(bounds.GetPickMapHeight());
    dialog.SetMapPercent(bounds.GetPickMapPercent());
    dialog.SetMapSnapRange(bounds.GetSnapBoundsRange());
    const auto changed = RunBuilder(dialog, map.picks);
    if (!changed) return;
    MapDocument next = Document();
    next.map->name = changed->name;
    next.map->bounds = changed->bounds;
    host_.history.Do(std::move(next), tr("change of properties"));
}

void DocumentTools::ChooseReportProjection() {
    CKvGuiMapRptProjChooser dialog(&host_.frame);
    dialog.SetRptUseMapProjFlag(Document().map->reportsInMapProjection);
    if (dialog.DoModal() != IDOK) return;
    MapDocument next = Document();
    next.map->reportsInMapProjection = dialog.GetRptUseMapProjFlag();
    host_.history.Do(std::move(next), tr("choice of the reports' projection"));
}

void DocumentTools::AddCoordinates(ResultTable& table) {
    if (Document().map) workbench::AddCoordinates(table, *Document().map, usual_);
}

void DocumentTools::ExportBoundary() {
    Picks picks = picks_;
    if (!LeaveOutUnknown(picks)) return;
    CKvPickBdryDlg dialog(&host_.frame);
    SetMode(dialog, picks);
    dialog.SetXYBounded(false);
    const auto boundary = RunBuilder(dialog, picks);
    if (!boundary) return;
    const CKvMapBounds& bounds = boundary->bounds;
    const std::vector<Place> corners = {{bounds.GetLatMin(), bounds.GetLonMin()},
                                        {bounds.GetLatMin(), bounds.GetLonMax()},
                                        {bounds.GetLatMax(), bounds.GetLonMax()},
                                        {bounds.GetLatMax(), bounds.GetLonMin()}};
    CFileDialog file(FALSE, "txt", FileNameOf(boundary->name).c_str(),
                     OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY, kBoundaryFilter, &host_.frame);
    if (file.DoModal() != IDOK) return;
    const std::string path = file.GetPathName().str();
    const QString shown = Text(kv::ToNative(path));
    const bool geo = shown.endsWith(QStringLiteral("json"), Qt::CaseInsensitive);
    try {
        WriteWhole(path, geo ? BoundaryAsGeoJson(boundary->name, OnWgs84(corners))
                             : BoundaryAsText(corners));
        host_.status.Say(tr("Saved %1").arg(shown));
    } catch (const MapFileError& error) {
        host_.fail(tr("%1 could not be saved.\n%2").arg(shown, QString::fromUtf8(error.what())));
    }
}

// Files.

void DocumentTools::Open() {
    if (!MayLeave()) return;
    CFileDialog file(TRUE, kExtension, nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, kFilter,
                     &host_.frame);
    if (file.DoModal() == IDOK) OpenFile(file.GetPathName().str());
}

void DocumentTools::OpenFile(const std::string& path) {
    const QString shown = Text(kv::ToNative(path));
    try {
        MapDocument document = DocumentOf(ReadWhole(path), CurrentDataset());
        path_ = path;
        recent_.Add(path);
        host_.history.Begin(std::move(document));
        host_.canvas.ShowFrame();
        host_.status.Say(tr("Opened %1").arg(shown));
    } catch (const MapFileError& error) {
        host_.fail(tr("%1 could not be opened.\n%2").arg(shown, QString::fromUtf8(error.what())));
    }
}

bool DocumentTools::Save() {
    return path_.empty() ? SaveAs() : SaveTo(path_);
}

bool DocumentTools::SaveAs() {
    const std::string name = Document().map ? Document().map->name : "Untitled";
    CFileDialog file(FALSE, kExtension, FileNameOf(name).c_str(),
                     OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY, kFilter, &host_.frame);
    return file.DoModal() == IDOK && SaveTo(file.GetPathName().str());
}

bool DocumentTools::SaveTo(const std::string& path) {
    const QString shown = Text(kv::ToNative(path));
    try {
        WriteWhole(path, TextOf(Document()));
    } catch (const MapFileError& error) {
        host_.fail(tr("%1 could not be saved.\n%2").arg(shown, QString::fromUtf8(error.what())));
        return false;
    }
    path_ = path;
    recent_.Add(path);
    host_.history.MarkSaved();
    host_.status.Say(tr("Saved %1").arg(shown));
    return true;
}

bool DocumentTools::MayLeave() {
    if (host_.history.IsSaved()) return true;
    const QString question =
        tr("The map %1 has changes that are not saved. Save them?").arg(Title().chopped(1));
    switch (host_.frame.MessageBox(question.toUtf8().constData(), "Workbench",
                                   MB_YESNOCANCEL | MB_ICONQUESTION)) {
        case IDYES:
            return Save();
        case IDNO:
            return true;
        default:
            return false;
    }
}

void DocumentTools::Reset() {
    path_.clear();
    picks_.clear();
    usual_.Forget();
    host_.history.Begin({CurrentDataset(), {}, {}});
}

// What there is, on the canvas.

void DocumentTools::Show() {
    undo_->setText(tr("&Undo %1").arg(host_.history.UndoLabel()).trimmed());
    redo_->setText(tr("&Redo %1").arg(host_.history.RedoLabel()).trimmed());
    host_.commands.Refresh();
    host_.titleChanged();
    if (Document().map == shown_) return;
    shown_ = Document().map;
    ShowMap();
}

void DocumentTools::ShowMap() {
    const auto plane = shown_ ? std::optional(PlaneOf(*shown_)) : std::nullopt;
    const bool another = plane != plane_;
    plane_ = plane;
    if (another) Project();
    auto frame = shown_ ? FrameOf(*shown_, host_.canvas.Projection()) : std::nullopt;
    const bool missing = shown_ && !frame;
    host_.canvas.SetFrame(std::move(frame));
    host_.readouts.SetPlane(plane_);
    host_.printing.SetMap(shown_);
    if (missing) {
        host_.fail(tr("The projection %1 has no answer for this map, which is shown without its "
                      "edge.")
                       .arg(Text(ProjectionName(shown_->Projection()))));
    }
}

/// The map is drawn in Mercator's projection where its own has no answer for it.
void DocumentTools::Project() {
    const auto middle = shown_ ? MiddleOf(*shown_) : std::nullopt;
    const auto projection = middle ? MapProjection::Of(*plane_, *middle) : std::nullopt;
    host_.canvas.SetProjection(projection.value_or(MapProjection()));
    if (host_.canvas.LeftOut() > 0) {
        host_.status.Say(tr("%1 things are left out that the projection cannot show.")
                             .arg(host_.canvas.LeftOut()));
    }
}

}  // namespace workbench
