#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QDockWidget>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <utility>

#include "qt/qt_desktop.h"
#include "qt/replace_question.h"
#include "window/window_system.h"
#include "workbench/command_palette.h"
#include "workbench/exports/exports.h"
#include "workbench/key_help.h"
#include "workbench/open_database_dialog.h"
#include "workbench/workbench.h"

namespace workbench {

namespace {

constexpr double kZoom = 1.5;

struct LayerEntry {
    const char* text;
    bool MapLayers::*shown;
};
constexpr LayerEntry kLayerEntries[] = {
    {"&Wells", &MapLayers::wells},         {"&Platforms", &MapLayers::platforms},
    {"P&ipelines", &MapLayers::pipelines}, {"&Names", &MapLayers::labels},
    {"&Graticule", &MapLayers::graticule}, {"&Legend", &MapLayers::legend},
    {"&Drawings", &MapLayers::drawings},
};

/// Puts the mark of a mnemonic ahead of the first letter, of words first, that is not among
/// `taken`, and takes it.
QString WithMnemonic(const QString& text, QString& taken) {
    const auto isFree = [&](qsizetype at) {
        return text[at].isLetter() && !taken.contains(text[at], Qt::CaseInsensitive);
    };
    for (const bool anywhere : {false, true}) {
        for (qsizetype at = 0; at < text.size(); ++at) {
            const bool begins = at == 0 || text[at - 1].isSpace();
            if ((!begins && !anywhere) || !isFree(at)) continue;
            taken += text[at];
            return QString(text).insert(at, u'&');
        }
    }
    return text;
}

/// Where the user wants to begin looking for files: where the last one was.
QString& LastFolder() {
    static QString folder;
    return folder;
}

}  // namespace

void Workbench::MakeMenus() {
    MakeFileMenu();
    MakeEditMenu();
    MakeViewMenu();
    documents_->MakeMenu(*window_->menuBar()->addMenu(tr("&Map")));
    drawing_->MakeMenu(*window_->menuBar()->addMenu(tr("D&raw")), [this] { return NoMap(); });
    readouts_->MakeMenu(*window_->menuBar()->addMenu(tr("&Tools")));
    records_->MakeMenus(*window_->menuBar(), *commands_);
    MakeDialogsMenu();
    MakeHelpMenu();
}

void Workbench::MakeFileMenu() {
    QMenu& menu = *window_->menuBar()->addMenu(tr("&File"));
    commands_->Add(menu, tr("&Open database..."), QKeySequence::Open, [this] { OpenDatabase(); });
    commands_->Add(menu, tr("&Read map again"), Qt::CTRL | Qt::Key_R, [this] {
        if (drawing_->MayLeave()) LoadMap();
    });
    menu.addSeparator();
    commands_->Add(menu, tr("R&un"), Qt::Key_F5, [this] { Run(); });
    menu.addSeparator();
    commands_->Add(
        menu, tr("&Save results..."), QKeySequence::Save, [this] { SaveResults(); },
        [this] { return NoRows(); });
    menu.addSeparator();
    printing_->AddTo(menu, *commands_, [this] { return NoMap(); });
    menu.addSeparator();
    auto* exports = new Exports({frame_, model_, *canvas_, runner_, *status_, history_,
                                 [this](const QString& words) { Fail(words); }},
                                window_);
    exports->AddTo(menu, *commands_, [this] { return NoMap(); });
    menu.addSeparator();
    commands_->Add(menu, tr("E&xit"), Qt::CTRL | Qt::Key_Q, [this] { window_->close(); });
}

void Workbench::MakeEditMenu() {
    QMenu& menu = *window_->menuBar()->addMenu(tr("&Edit"));
    documents_->AddUndo(menu);
    menu.addSeparator();
    // Ctrl+C and Ctrl+A belong to whatever has the focus.
    commands_->Add(
        menu, tr("&Copy rows"), {}, [this] { results_->Copy(); },
        [this] { return NoSelectedRows(); });
    commands_->Add(
        menu, tr("Select &all rows"), {}, [this] { results_->SelectAll(); },
        [this] { return NoRows(); });
    menu.addSeparator();
    commands_->Add(
        menu, tr("&Find in results"), QKeySequence::Find,
        [this] {
            resultsDock_->show();
            resultsDock_->raise();
            results_->Find();
        },
        [this] { return NoRows(); });
}

void Workbench::MakeViewMenu() {
    QMenu& menu = *window_->menuBar()->addMenu(tr("&View"));
    const auto noMap = [this] { return NoMap(); };
    commands_->Add(
        menu, tr("Zoom &in"), QKeySequence::ZoomIn, [this] { canvas_->ZoomBy(kZoom); }, noMap);
    commands_->Add(
        menu, tr("Zoom &out"), QKeySequence::ZoomOut, [this] { canvas_->ZoomBy(1 / kZoom); },
        noMap);
    commands_->Add(
        menu, tr("Zoom to &all"), Qt::CTRL | Qt::Key_0, [this] { canvas_->ShowAll(); }, noMap);
    commands_->Add(
        menu, tr("Zoom to &pick"), Qt::CTRL | Qt::Key_1,
        [this] { canvas_->ShowPick(canvas_->GetPick()); }, [this] { return NoPick(); });
    commands_->Add(
        menu, tr("&Zoom to..."), Qt::CTRL | Qt::Key_G, [this] { ZoomTo(); }, noMap);
    commands_->Add(
        menu, tr("Show &neighbors of the selected blocks"), Qt::CTRL | Qt::Key_N,
        [this] { ShowNeighbors(); }, [this] { return NoSelectedBlocks(); });
    QAction* follows = menu.addAction(tr("Map &follows the results"));
    follows->setCheckable(true);
    connect(follows, &QAction::toggled, this, &Workbench::SetMapFollows);
    commands_->Add(menu, tr("Ar&ea order..."), {}, [this] { records_->AskAreaOrder(); });
    menu.addSeparator();
    MakeLayersMenu(menu);
    menu.addSeparator();
    for (QToolBar* bar : window_->findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly)) {
        QAction* shown = bar->toggleViewAction();
        shown->setText(tr("Area and &block bar"));
        menu.addAction(shown);
    }
    commands_->Add(menu, tr("&Go to the bar"), Qt::CTRL | Qt::Key_L,
                   [this] { frame_.m_bar.GoToArea(); });
    resultsDock_->toggleViewAction()->setText(tr("&Results"));
    outcomeDock_->toggleViewAction()->setText(tr("&Dialog outcome"));
    menu.addAction(resultsDock_->toggleViewAction());
    menu.addAction(outcomeDock_->toggleViewAction());
}

QString Workbench::NoMap() const {
    return model_.Areas().empty() ? tr("The map is empty.") : QString();
}

QString Workbench::NoPick() const {
    return canvas_->GetPick().Empty() ? tr("Nothing is picked on the map yet: Run with Map, or a "
                                           "click on a block, does so.")
                                      : QString();
}

QString Workbench::NoSelectedBlocks() const {
    return selected_
               ? QString()
               : tr("No blocks were selected yet: a block dialog among the dialogs does that.");
}

QString Workbench::NoRows() const {
    return results_->Model().Table().RowCount() == 0 ? tr("There are no results.") : QString();
}

QString Workbench::NoSelectedRows() const {
    return results_->HasSelection() ? QString() : tr("No row of the results is selected.");
}

void Workbench::MakeLayersMenu(QMenu& view) {
    QMenu* menu = view.addMenu(tr("On the &map"));
    for (const LayerEntry& entry : kLayerEntries) {
        QAction* action = menu->addAction(tr(entry.text));
        action->setCheckable(true);
        action->setChecked(canvas_->Layers().*entry.shown);
        connect(action, &QAction::toggled, canvas_, [this, shown = entry.shown](bool on) {
            MapLayers layers = canvas_->Layers();
            layers.*shown = on;
            canvas_->SetLayers(layers);
        });
    }
}

void Workbench::MakeDialogsMenu() {
    QMenu* menu = window_->menuBar()->addMenu(tr("&Dialogs"));
    commands_->Add(*menu, tr("&Find a command..."), Qt::CTRL | Qt::Key_K,
                   [this] { FindCommand(); });
    menu->addSeparator();
    std::string family;
    QMenu* submenu = nullptr;
    QString families = QStringLiteral("f");
    QString taken;
    for (const adaptors::Adaptor* adaptor : adaptors::All()) {
        if (!submenu || adaptor->family != family) {
            family = adaptor->family;
            submenu = menu->addMenu(WithMnemonic(QString::fromStdString(family), families));
            submenu->setToolTipsVisible(true);
            taken.clear();
        }
        MakeDialogRow(*submenu, *adaptor, taken);
    }
}

void Workbench::MakeDialogRow(QMenu& menu, const adaptors::Adaptor& adaptor, QString& taken) {
    const QString name = QString::fromStdString(adaptor.className);
    const QString purpose = WithMnemonic(QString::fromStdString(adaptor.purpose), taken);
    QAction* action = commands_->Add(menu, purpose + QStringLiteral("..."), {},
                                     [this, &adaptor] { OpenDialog(adaptor); });
    action->setObjectName(name);
    action->setStatusTip(name);
    action->setToolTip(name);
}

void Workbench::FindCommand() {
    CommandPalette palette(*window_->menuBar(), window_);
    if (palette.exec() != QDialog::Accepted) return;
    QAction* chosen = palette.Chosen();
    if (chosen->isEnabled()) {
        chosen->trigger();
    } else {
        status_->Say(chosen->statusTip());
    }
}

void Workbench::MakeHelpMenu() {
    QMenu& menu = *window_->menuBar()->addMenu(tr("&Help"));
    commands_->Add(menu, tr("&Mouse and keys..."), QKeySequence::HelpContents,
                   [this] { ExplainKeys(); });
    recordRow_ = commands_->Add(menu, tr("&Record what I do..."), {}, [this] { RecordDialogs(); });
    recordRow_->setCheckable(true);
}

// F6 goes round these.

void Workbench::BringUpMain() {
    window_->raise();
    window_->activateWindow();
}

FocusPart Workbench::PanePart(QDockWidget& pane, std::function<void()> enter) {
    return {[&pane] {
                const QWidget* focus = QApplication::focusWidget();
                return focus && pane.isAncestorOf(focus);
            },
            [this, enter = std::move(enter)] {
                BringUpMain();
                enter();
            }};
}

std::vector<FocusPart> Workbench::FocusParts() {
    std::vector<FocusPart> parts;
    CVZABEBar& bar = frame_.m_bar;
    if (bar.IsVisible() && bar.GetEnableABE()) {
        parts.push_back({[&bar] {
                             const kv::Node* focus = kv::WindowSystem::Get().Focus();
                             return focus && focus->IsSelfOrDescendantOf(*bar.m_hWnd);
                         },
                         [this, &bar] {
                             BringUpMain();
                             bar.GoToArea();
                             kv::WindowSystem::Get().Settle();
                         }});
    }
    parts.push_back({[this] { return canvas_->hasFocus(); },
                     [this] {
                         BringUpMain();
                         canvas_->setFocus(Qt::TabFocusReason);
                     }});
    if (!results_->visibleRegion().isEmpty())
        parts.push_back(PanePart(*resultsDock_, [this] { results_->View().Enter(); }));
    if (!outcome_->visibleRegion().isEmpty())
        parts.push_back(
            PanePart(*outcomeDock_, [this] { outcome_->setFocus(Qt::TabFocusReason); }));
    if (!well_->visibleRegion().isEmpty())
        parts.push_back(
            PanePart(records_->Dock(), [this] { well_->setFocus(Qt::TabFocusReason); }));
    std::vector<CDialog*> tools = tools_.Shown();
    if (CDialog* dialog = drawing_->Dialog()) tools.push_back(dialog);
    for (CDialog* tool : tools) {
        parts.push_back({[tool] {
                             const QWidget* window = kv::qt::WidgetOf(*tool->m_hWnd);
                             return window && window->isActiveWindow();
                         },
                         [tool] { MapTools::Activate(*tool); }});
    }
    return parts;
}

void Workbench::ExplainKeys() {
    ShowKeyHelp(*window_->menuBar(), window_);
}

/// The row of the menu begins and ends it.
void Workbench::RecordDialogs() {
    if (recorder_.Records()) {
        const int count = recorder_.End();
        status_->Say(count == 1 ? tr("1 dialog recorded") : tr("%1 dialogs recorded").arg(count));
    } else {
        QFileDialog dialog(window_, tr("Folder for the Scripts of What I Do"), LastFolder());
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
        if (dialog.exec() == QDialog::Accepted) {
            LastFolder() = dialog.selectedFiles().constFirst();
            recorder_.Begin(LastFolder());
            status_->Say(tr("What is done in the dialogs of the menu Dialogs is recorded in %1")
                             .arg(LastFolder()));
        }
    }
    recordRow_->setChecked(recorder_.Records());
}

void Workbench::OpenDatabase() {
    if (!MayLeave()) return;
    OpenDatabaseDialog dialog(database_, window_);
    while (dialog.exec() == QDialog::Accepted) {
        QString failure;
        if (UseDatabase(dialog.Info(), failure)) return;
        Fail(failure);
    }
}

void Workbench::SaveResults() {
    const QString name = QString::fromStdString(results_->Model().Table().title) + ".csv";
    const QString workbooks = tr("Workbooks for spreadsheets (*.xlsx)");
    QFileDialog dialog(window_, tr("Save Results"), LastFolder());
    dialog.setNameFilters({tr("Comma-separated values (*.csv)"), workbooks, tr("All files (*)")});
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    connect(&dialog, &QFileDialog::filterSelected, this, [&](const QString& filter) {
        dialog.setDefaultSuffix(filter == workbooks ? QStringLiteral("xlsx")
                                                    : QStringLiteral("csv"));
    });
    dialog.selectFile(name);
    QString path;
    do {
        if (dialog.exec() != QDialog::Accepted) return;
        path = dialog.selectedFiles().constFirst();
    } while (!kv::qt::MayReplace(dialog, path));
    LastFolder() = dialog.directory().absolutePath();
    QString error;
    if (results_->Save(path, error)) {
        status_->Say(tr("Saved %1").arg(path));
    } else {
        Fail(tr("%1 could not be saved.\n%2").arg(path, error));
    }
}

/// Asks again where nothing was found; what was typed stands there still.
void Workbench::ZoomTo() {
    QInputDialog dialog(window_);
    dialog.setWindowTitle(tr("Zoom To"));
    dialog.setLabelText(
        tr("Area, area and block, or latitude and longitude\n"
           "(GREEN CANYON, GC 200, 28.5 -89.125, 28\u00b030'N 89\u00b007'30\"W):"));
    while (dialog.exec() == QDialog::Accepted) {
        // What has not been read yet cannot be found.
        runner_.Finish();
        if (GoTo(dialog.textValue())) return;
        Fail(tr("\"%1\" is not on the map.").arg(dialog.textValue()));
    }
}

void Workbench::Run() {
    if (!frame_.m_bar.Run()) status_->Say(tr("Pick an area and a block in the bar first."));
}

}  // namespace workbench
