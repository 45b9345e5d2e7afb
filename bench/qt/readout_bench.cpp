// Feeding the readouts in windows, painting included. Their peer is the time that a moving mouse
// can wait for.

#include <QApplication>
#include <chrono>

#include "coordtools/coord_dialog.h"
#include "coordtools/coord_ids.h"
#include "coordtools/distance_dialog.h"
#include "coordtools/distance_ids.h"
#include "frame/module.h"
#include "peers.h"
#include "qt/qt_desktop.h"
#include "ratio.h"

namespace {

constexpr int kMapProjection = 115;
constexpr int kOtherProjection = 3;
constexpr const char* kUnit = "feet";
constexpr std::chrono::milliseconds kMostTime{1};

void CoordOurs(benchmark::State& state) {
    InitControlDll();
    bench::ConnectToSample();
    kv::qt::QtDesktop desktop;
    CKvCoordDialog dialog(nullptr);
    dialog.Create(kv::coord_dialog::kTemplate);
    dialog.ResetToDefault(kOtherProjection, CString(kUnit));
    QApplication::processEvents();
    double step = 0;
    for (auto _ : state) {
        step += 137.5;
        dialog.DialogUpdateText(2'000'000 + step, 10'200'000 + step, kMapProjection, kUnit);
        QApplication::processEvents();
    }
    dialog.CloseDlg();
    dialog.DestroyWindow();
}

void DistanceOurs(benchmark::State& state) {
    InitControlDll();
    bench::ConnectToSample();
    kv::qt::QtDesktop desktop;
    CKvDistanceDialog dialog(nullptr, nullptr);
    dialog.Create(kv::distance_dialog::kTemplate);
    dialog.ResetToDefault(kOtherProjection, CString(kUnit));
    QApplication::processEvents();
    double step = 0;
    for (auto _ : state) {
        step += 137.5;
        dialog.DialogUpdateText(2'000'000, 10'200'000, 2'000'000 + step, 10'200'000 + step,
                                kMapProjection, kUnit);
        QApplication::processEvents();
    }
    dialog.CloseDlg();
    dialog.DestroyWindow();
}

void MostTime(benchmark::State& state) {
    for (auto _ : state) {
        const auto until = std::chrono::steady_clock::now() + kMostTime;
        while (std::chrono::steady_clock::now() < until) {
        }
    }
}

const bench::Subject kCoord("readouts/feed a position in a window, to 1 ms", 1, CoordOurs, MostTime,
                            bench::Clock::kWall);
const bench::Subject kDistance("readouts/feed a line in a window, to 1 ms", 1, DistanceOurs,
                               MostTime, bench::Clock::kWall);

}  // namespace
