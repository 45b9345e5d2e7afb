#include "workbench/pictures.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QTimer>
#include <cstdio>
#include <optional>

#include "pickers/abe_bar_ids.h"
#include "qt/qt_desktop.h"
#include "window/acting/input.h"
#include "window/controls/button.h"
#include "window/controls/combo_box.h"
#include "window/window_system.h"

namespace workbench {

namespace {

constexpr const char* kSampleArea = "43113";
constexpr const char* kSampleBlock = "391";
constexpr const char* kSampleLayer = "Wells";

/// How many times something is looked for that does not open, or does not close.
constexpr int kMostTurns = 200;

/// A block with much in it; of a dataset without it, the first that there is.
std::optional<BlockRef> BlockToShow(const MapModel& model) {
    if (const auto pick = model.FindPick({kSampleArea}, kSampleBlock); pick.block) {
        return pick.block;
    }
    for (const auto& area : model.Areas()) {
        if (area->blocks.Size() > 0) return BlockRef{area.get(), 0};
    }
    return {};
}

void PressRun(MainFrame& frame) {
    kv::WindowSystem::Get().Settle();
    kv::input::Click(*frame.m_bar.GetDlgItem(kv::abe_bar::kRun)->m_hWnd);
}

/// The window in front that is not the main window: the innermost modal one, else the newest one
/// that is shown.
kv::Node* Opened(const kv::Node& mainWindow) {
    auto& windows = kv::WindowSystem::Get();
    if (!windows.Modals().empty()) return windows.Modals().back();
    kv::Node* newest = nullptr;
    for (const auto& window : windows.TopLevels()) {
        if (window.get() != &mainWindow && window->Visible() && !window->Destroyed()) {
            newest = window.get();
        }
    }
    return newest;
}

/// Waits inside a dialog's loop, looks at it, and closes all that is open.
class Onlooker : public QObject {
public:
    Onlooker(kv::Node& mainWindow, const std::function<bool(kv::Node&)>& look)
        : mainWindow_(mainWindow), look_(look) {
        connect(&timer_, &QTimer::timeout, this, &Onlooker::Look);
        timer_.start(0);
    }
    bool HasLooked() const { return looked_; }

private:
    void Look() {
        // What a dialog tells while it opens stands in front of it.
        if (auto* message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            message->reject();
            return;
        }
        kv::Node* window = Opened(mainWindow_);
        // What has the focus is seen in the window in front alone.
        const QWidget* shown = window ? kv::qt::WidgetOf(*window) : nullptr;
        const bool inFront = shown && shown->isActiveWindow();
        if (!looked_ && window && (inFront || turns_ == kMostTurns)) {
            kv::WindowSystem::Get().Settle();
            looked_ = look_(*window);
        }
        if (looked_ || ++turns_ > kMostTurns) Close(window);
    }
    void Close(kv::Node* window) {
        if (QWidget* box = QApplication::activeModalWidget(); box && !window) {
            box->close();
        } else if (window) {
            kv::input::CloseWindow(*window);
            kv::WindowSystem::Get().GetDesktop().Wake();
        }
    }

    kv::Node& mainWindow_;
    const std::function<bool(kv::Node&)>& look_;
    QTimer timer_;
    bool looked_ = false;
    int turns_ = 0;
};

}  // namespace

bool LookAtDialog(Workbench& host, const adaptors::Adaptor& adaptor,
                  const std::function<bool(kv::Node&)>& look) {
    const Onlooker onlooker(*host.Frame().m_hWnd, look);
    host.RunDialog(adaptor);
    return onlooker.HasLooked();
}

bool SaveDialog(Workbench& host, const adaptors::Adaptor& adaptor, const std::string& folder) {
    const std::string path = folder + "/" + adaptor.className + ".png";
    if (LookAtDialog(host, adaptor,
                     [&](kv::Node& window) { return kv::qt::SavePicture(window, path); }))
        return true;
    std::fprintf(stderr, "workbench: no picture of %s\n", adaptor.className.c_str());
    return false;
}

void PlaySample(Workbench& host) {
    host.Runner().Finish();
    CVZABEBar& bar = host.Frame().m_bar;
    if (const auto block = BlockToShow(host.Model())) host.PickInBar(*block);
    bar.SetRadioState(false);
    PressRun(host.Frame());
    bar.SetRadioState(true);
    auto& layers = bar.Control<CComboBox>(kv::abe_bar::kLayer);
    layers.SetCurSel(layers.FindStringExact(-1, kSampleLayer));
    PressRun(host.Frame());
    host.Runner().Finish();
}

bool SaveWindow(Workbench& host, const std::string& path) {
    QApplication::processEvents();
    if (kv::qt::SavePicture(*host.Frame().m_hWnd, path)) return true;
    std::fprintf(stderr, "workbench: %s cannot be written\n", path.c_str());
    return false;
}

bool SavePictures(Workbench& host, const std::string& folder) {
    const QDir place(QString::fromStdString(folder));
    if (!place.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "workbench: the folder %s cannot be made\n", folder.c_str());
        return false;
    }
    bool all = true;
    for (const adaptors::Adaptor* adaptor : adaptors::All()) {
        all = SaveDialog(host, *adaptor, folder) && all;
    }
    host.Outcome().clear();
    PlaySample(host);
    return SaveWindow(host, place.filePath("workbench.png").toStdString()) && all;
}

}  // namespace workbench
