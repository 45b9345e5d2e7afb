#include <QAction>
#include <QCoreApplication>
#include <QDockWidget>
#include <QFileDialog>
#include <QInputDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolBar>

#include "workbench/map_search.h"
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
};

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
    MakeDialogsMenu();
    MakeHelpMenu();
}

void Workbench::MakeFileMenu() {
    QMenu* menu = window_->menuBar()->addMenu(tr("&File"));
    menu->addAction(tr("&Open database..."), QKeySequence::Open, this, &Workbench::OpenDatabase);
    menu->addAction(tr("&Read map again"), QKeySequence(Qt::CTRL | Qt::Key_R), this,
                    &Workbench::LoadMap);
    menu->addSeparator();
    menu->addAction(tr("R&un"), QKeySequence(Qt::Key_F5), this, &Workbench::Run);
    menu->addSeparator();
    menu->addAction(tr("&Save results as CSV..."), QKeySequence::Save, this,
                    &Workbench::SaveResults);
    menu->addSeparator();
    menu->addAction(tr("E&xit"), QKeySequence(Qt::CTRL | Qt::Key_Q), window_.data(),
                    &QWidget::close);
}

void Workbench::MakeEditMenu() {
    QMenu* menu = window_->menuBar()->addMenu(tr("&Edit"));
    // Ctrl+C and Ctrl+A belong to whatever has the focus.
    menu->addAction(tr("&Copy rows"), results_.data(), &ResultsPane::Copy);
    menu->addAction(tr("Select &all rows"), results_.data(), &ResultsPane::SelectAll);
    menu->addSeparator();
    menu->addAction(tr("&Find in results"), QKeySequence::Find, this, [this] {
        resultsDock_->show();
        resultsDock_->raise();
        results_->Find();
    });
}

void Workbench::MakeViewMenu() {
    QMenu* menu = window_->menuBar()->addMenu(tr("&View"));
    menu->addAction(tr("Zoom &in"), QKeySequence::ZoomIn, this, [this] { canvas_->ZoomBy(kZoom); });
    menu->addAction(tr("Zoom &out"), QKeySequence::ZoomOut, this,
                    [this] { canvas_->ZoomBy(1 / kZoom); });
    menu->addAction(tr("Zoom to &all"), QKeySequence(Qt::CTRL | Qt::Key_0), canvas_.data(),
                    &MapCanvas::ShowAll);
    menu->addAction(tr("Zoom to &pick"), QKeySequence(Qt::CTRL | Qt::Key_1), this,
                    &Workbench::ZoomToPick);
    menu->addAction(tr("&Zoom to..."), QKeySequence(Qt::CTRL | Qt::Key_G), this,
                    &Workbench::ZoomTo);
    menu->addAction(tr("Show &neighbors of the selected blocks"),
                    QKeySequence(Qt::CTRL | Qt::Key_N), this, &Workbench::ShowNeighbors);
    menu->addSeparator();
    MakeLayersMenu(*menu);
    menu->addSeparator();
    for (QToolBar* bar : window_->findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly)) {
        QAction* shown = bar->toggleViewAction();
        shown->setText(tr("Area and &block bar"));
        menu->addAction(shown);
    }
    menu->addAction(tr("&Go to the bar"), QKeySequence(Qt::CTRL | Qt::Key_L), this,
                    [this] { frame_.m_bar.GoToArea(); });
    resultsDock_->toggleViewAction()->setText(tr("&Results"));
    outcomeDock_->toggleViewAction()->setText(tr("&Dialog outcome"));
    menu->addAction(resultsDock_->toggleViewAction());
    menu->addAction(outcomeDock_->toggleViewAction());
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
    menu->setToolTipsVisible(true);
    std::string family;
    QMenu* submenu = nullptr;
    for (const adaptors::Adaptor* adaptor : adaptors::All()) {
        if (!submenu || adaptor->family != family) {
            family = adaptor->family;
            submenu = menu->addMenu(QString::fromStdString(family));
            submenu->setToolTipsVisible(true);
        }
        const QString name = QString::fromStdString(adaptor->className);
        const QString caption = QString::fromStdString(adaptor->caption);
        QAction* action = submenu->addAction(caption.isEmpty() ? name : caption, this,
                                             [this, adaptor] { OpenDialog(*adaptor); });
        action->setObjectName(name);
        action->setStatusTip(name);
        action->setToolTip(name);
    }
}

void Workbench::MakeHelpMenu() {
    QMenu* menu = window_->menuBar()->addMenu(tr("&Help"));
    menu->addAction(tr("&Mouse and keys..."), QKeySequence::HelpContents, this,
                    &Workbench::ExplainKeys);
}

void Workbench::ExplainKeys() {
    const std::pair<QString, QString> rows[] = {
        {tr("Drag, arrow keys"), tr("move the map")},
        {tr("Wheel, +, -"), tr("zoom in and out")},
        {tr("Double click"), tr("zoom in; with Shift, out")},
        {tr("Home"), tr("show all of the map")},
        {tr("Click on a block"), tr("pick it in the bar")},
        {tr("Click with a converter open"), tr("hand the place to the converter")},
        {tr("Ctrl+G"), tr("go to an area, a block or a place")},
        {tr("Ctrl+L"), tr("go to the bar")},
        {tr("F5; Enter in the block box"), tr("run")},
        {tr("Click on a heading"), tr("sort the results")},
        {tr("Enter, double click on a row"), tr("show its block on the map")},
        {tr("Ctrl+F"), tr("find in the results")},
    };
    QString text = QStringLiteral("<table cellspacing=4>");
    for (const auto& [keys, does] : rows) {
        text +=
            QStringLiteral("<tr><td><b>%1</b>&nbsp;&nbsp;</td><td>%2</td></tr>").arg(keys, does);
    }
    QMessageBox box(window_);
    box.setWindowTitle(tr("Mouse and Keys"));
    box.setText(text + QStringLiteral("</table>"));
    box.exec();
}

void Workbench::OpenDatabase() {
    OpenDatabaseDialog dialog(database_, window_);
    while (dialog.exec() == QDialog::Accepted) {
        QString failure;
        if (UseDatabase(dialog.Info(), failure)) return;
        Fail(failure);
    }
}

void Workbench::SaveResults() {
    if (results_->Model().columnCount() == 0) {
        status_->Say(tr("There are no results to save."));
        return;
    }
    const QString name = QString::fromStdString(results_->Model().Table().title) + ".csv";
    QFileDialog dialog(window_, tr("Save Results"), LastFolder(),
                       tr("Comma-separated values (*.csv);;All files (*)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted) return;
    LastFolder() = dialog.directory().absolutePath();
    const QString path = dialog.selectedFiles().constFirst();
    QString error;
    if (results_->Save(path, error)) {
        status_->Say(tr("Saved %1").arg(path));
    } else {
        Fail(tr("%1 could not be saved.\n%2").arg(path, error));
    }
}

void Workbench::ZoomTo() {
    bool given = false;
    const QString text =
        QInputDialog::getText(window_, tr("Zoom To"),
                              tr("Area, area and block, or latitude and longitude\n"
                                 "(GREEN CANYON, GC 200, 28.5 -89.125):"),
                              QLineEdit::Normal, {}, &given);
    if (!given) return;
    const auto hit = Search(model_, text.toStdString());
    if (!hit) {
        Fail(tr("\"%1\" is not on the map.").arg(text));
    } else if (hit->place) {
        canvas_->ShowPlace(*hit->place);
    } else {
        canvas_->ShowPick(hit->pick);
    }
}

void Workbench::Run() {
    if (!frame_.m_bar.Run()) status_->Say(tr("Pick an area and a block in the bar first."));
}

void Workbench::ZoomToPick() {
    if (!canvas_->GetPick().Empty()) canvas_->ShowPick(canvas_->GetPick());
}

}  // namespace workbench
