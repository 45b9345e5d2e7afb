// Measures the workbench on one dataset, and prints the figures.

#include <QApplication>
#include <QImage>
#include <QLoggingCategory>
#include <QPainter>
#include <cstdlib>
#include <fstream>

#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/module.h"
#include "growth/figure.h"
#include "map_picks/map_picks.h"
#include "qt/qt_desktop.h"
#include "window/acting/row_texts.h"
#include "workbench/host_style.h"
#include "workbench/pictures.h"
#include "workbench/workbench.h"

namespace {

using growth::Print;
using growth::Time;
using growth::Watch;
using workbench::MapView;

constexpr int kWidth = 1600;
constexpr int kHeight = 900;
/// Thirty frames a second.
constexpr double kLongestFrame = 1.0 / 30;
constexpr int kFrames = 48;
/// In MiB.
constexpr double kMostMemory = 600;

/// In the middle of the busiest areas, and the pixels for a degree at which all blocks' lines show.
constexpr workbench::Place kMiddle{28.4, -91.5};
constexpr double kAllBlocks = 115;

double ThingsOn(const workbench::MapModel& model) {
    std::size_t things = 0;
    for (const auto& area : model.Areas())
        things += area->blocks.Size() + area->wells.Size() + area->platforms.Size() +
                  area->pipelines.Size();
    return static_cast<double>(things);
}

void MeasureFirstMap(workbench::Workbench& host) {
    bool painted = false;
    QObject::connect(&host, &workbench::Workbench::FirstPainted, &host, [&] { painted = true; });
    host.Window().resize(kWidth, kHeight);
    const Watch watch;
    host.Show();
    while (!painted)
        QApplication::processEvents();
    host.Runner().Finish();
    QApplication::processEvents();
    Print({"workbench: first complete map", watch.Seconds(), false, ThingsOn(host.Model())});
}

double MemoryInUse() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:")) return std::atof(line.c_str() + 6) / 1024;
    return 0;
}

MapView Whole(const workbench::MapModel& model) {
    MapView view;
    view.Resize(kWidth, kHeight);
    view.SetBounds(model.Bounds());
    view.ShowAll();
    return view;
}

/// The mean of a movement to and fro, behind one that finds no label drawn yet.
template <typename Move>
void MeasureFrames(const char* name, const workbench::MapModel& model, MapView view,
                   const Move& move) {
    workbench::MapPainter map;
    map.SetFont(QApplication::font());
    QImage screen(kWidth, kHeight, QImage::Format_RGB32);
    const auto toAndFro = [&] {
        for (int frame = 0; frame < kFrames; ++frame) {
            move(view, frame < kFrames / 2);
            QPainter painter(&screen);
            map.Draw(painter, model, view, {}, {});
        }
    };
    Print({name, Time(3, toAndFro) / kFrames, false, 1, kLongestFrame});
}

void MeasureMap(const workbench::MapModel& model) {
    MapView near = Whole(model);
    near.SetMiddle(workbench::ToMap(kMiddle), kAllBlocks);
    MeasureFrames("workbench: frame of all areas", model, Whole(model), [](MapView&, bool) {});
    MeasureFrames("workbench: frame of pan", model, near,
                  [](MapView& view, bool fro) { view.Pan(fro ? 7 : -7, 0); });
    MeasureFrames("workbench: frame of zoom", model, near, [](MapView& view, bool in) {
        constexpr double kStep = 1.25;
        view.Zoom({kWidth / 2.0, kHeight / 2.0}, in ? kStep : 1 / kStep);
    });
}

double RowsIn(kv::Node& window) {
    double rows = kv::HasRows(window) ? static_cast<double>(kv::RowTexts(window).size()) : 0;
    for (const auto& child : window.Children())
        rows += RowsIn(*child);
    return rows;
}

/// All dialogs in turn, again and again, so that a moment in which the machine is busy with
/// something else falls on a few openings of each. The first round is left out.
bool MeasureOpening(workbench::Workbench& host) {
    constexpr int kRounds = 45;
    struct Opened {
        std::vector<double> taken;
        double rows = 0;
    };
    const std::vector<const adaptors::Adaptor*> dialogs = adaptors::All();
    std::vector<Opened> opened(dialogs.size());
    for (int round = 0; round <= kRounds; ++round) {
        for (std::size_t i = 0; i < opened.size(); ++i) {
            const Watch watch;
            workbench::LookAtDialog(host, *dialogs[i], [&](kv::Node& window) {
                if (round > 0) opened[i].taken.push_back(watch.Seconds());
                opened[i].rows = RowsIn(window);
                return true;
            });
        }
    }
    bool all = true;
    for (std::size_t i = 0; i < opened.size(); ++i) {
        const auto& [taken, rows] = opened[i];
        const std::string& name = dialogs[i]->className;
        all = all && !taken.empty();
        if (taken.empty()) std::fprintf(stderr, "%s did not open\n", name.c_str());
        if (taken.empty()) continue;
        Print({"open " + name, growth::Median(taken), false, std::max(rows, 1.0)});
    }
    return all;
}

}  // namespace

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    QApplication::setApplicationName(QStringLiteral("Workbench"));
    const QApplication application(count, arguments);
    QApplication::setStyle(new workbench::HostStyle);
    if (count != 2) {
        std::fputs("usage: kv_growth_workbench SERVER\n", stderr);
        return 2;
    }
    InitControlDll();
    const kv::qt::QtDesktop desktop;
    map_picks::Install();
    CKvDbInfo info("", "", arguments[1]);
    CKvDbAbsDataMgr(KV_CONNECT_DEFAULT).SetDbInfo(info);
    workbench::Workbench host(info);
    host.SetFailureShown(
        [](const QString& message) { std::fprintf(stderr, "%s\n", message.toUtf8().constData()); });
    MeasureFirstMap(host);
    MeasureMap(host.Model());
    Print({"workbench: memory in use", MemoryInUse(), true, 1, kMostMemory});
    return MeasureOpening(host) ? 0 : 1;
}
