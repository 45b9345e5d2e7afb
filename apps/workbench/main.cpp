// workbench: the desktop host of KVGuiCtl, a map and reports of the dataset.

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QLoggingCategory>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "base/paths.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/module.h"
#include "map_picks/map_picks.h"
#include "qt/qt_desktop.h"
#include "workbench/host_style.h"
#include "workbench/pictures.h"
#include "workbench/workbench.h"

namespace {

enum ExitCode { kDone = 0, kWrongUse = 2, kFailure = 3 };

constexpr const char* kHelpFooter = R"(
The bar at the top picks an area and a block; Run shows it on the map, or lists what is there. The
menu Dialogs opens every dialog of the library with inputs that make sense on the sample data.
Ctrl+K finds any command by its name, F6 goes round the bar, the map and the table.

Exit codes: 0 done, 2 wrong use, 3 a failure of the database or of a file.)";

struct Options {
    std::string file;
    std::string database;
    std::string picture;
    std::string pictures;
    bool timeFirstPaint = false;
};

/// The server text as a connection record; an empty one is the default.
CKvDbInfo UseDatabase(const std::string& server) {
    CKvDbInfo info("", "", server.c_str());
    if (!server.empty()) CKvDbAbsDataMgr(KV_CONNECT_DEFAULT).SetDbInfo(info);
    return info;
}

/// Without a person, a failure ends the program.
void EndOnFailure(workbench::Workbench& host) {
    host.SetFailureShown([](const QString& message) {
        std::fprintf(stderr, "workbench: %s\n", message.toUtf8().constData());
        std::exit(kFailure);
    });
}

bool ForPictures(const Options& options) {
    return !options.picture.empty() || !options.pictures.empty();
}

/// Pictures need no display. False when a window is to open and there is none.
bool ChoosePlatform(const Options& options) {
    constexpr const char* kPlatform = "QT_QPA_PLATFORM";
    if (qEnvironmentVariableIsSet(kPlatform)) return true;
    if (ForPictures(options)) qputenv(kPlatform, "offscreen");
#ifdef __linux__
    return ForPictures(options) || qEnvironmentVariableIsSet("DISPLAY") ||
           qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

/// The file that is to be opened, as the dialogs name it.
std::string FileToOpen(const Options& options) {
    if (options.file.empty()) return {};
    return kv::FromNative(std::filesystem::absolute(options.file).string());
}

int TakePictures(workbench::Workbench& host, const Options& options) {
    EndOnFailure(host);
    // What the platform of no display cannot do is of no interest to a picture.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    host.Window().resize(1280, 860);
    host.Show(FileToOpen(options));
    while (host.Model().Areas().empty())
        QApplication::processEvents();
    if (!options.pictures.empty()) {
        return workbench::SavePictures(host, options.pictures) ? kDone : kFailure;
    }
    workbench::PlaySample(host);
    return workbench::SaveWindow(host, options.picture) ? kDone : kFailure;
}

}  // namespace

int main(int argc, char** argv) {
    const auto started = std::chrono::steady_clock::now();
    CLI::App app("The desktop host of KVGuiCtl: a map and reports of oil and gas data");
    app.footer(kHelpFooter);
    Options options;
    app.add_option("file", options.file, "Map to open, as the menu Map saves them (.kvmap)");
    app.add_option("--db", options.database,
                   "Server text, as sqlite:PATH or postgresql://...; the sample database if left "
                   "out");
    app.add_option("--picture", options.picture,
                   "PNG file for a picture of the workbench with a pick and a report; no window "
                   "opens for long");
    app.add_option("--pictures", options.pictures,
                   "Folder for a PNG file of every dialog and of the workbench");
    app.add_flag("--time-first-paint", options.timeFirstPaint,
                 "Prints how many milliseconds it took until the window was painted, and ends");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        return app.exit(e) == 0 ? kDone : kWrongUse;
    }

    if (!ChoosePlatform(options)) {
        std::fprintf(stderr, "workbench: there is no display; --pictures works without one\n");
        return kFailure;
    }
    QApplication::setApplicationName(QStringLiteral("Workbench"));
    QApplication::setDesktopFileName(QStringLiteral("kvguictl-workbench"));
    QApplication application(argc, argv);
    QApplication::setStyle(new workbench::HostStyle);
    InitControlDll();
    kv::qt::QtDesktop desktop;
    map_picks::Install();
    workbench::Workbench host(UseDatabase(options.database));
    if (ForPictures(options)) return TakePictures(host, options);
    if (options.timeFirstPaint) {
        QObject::connect(&host, &workbench::Workbench::FirstPainted, &application, [started] {
            const std::chrono::duration<double, std::milli> taken =
                std::chrono::steady_clock::now() - started;
            std::printf("%.0f ms\n", taken.count());
            std::fflush(stdout);
            std::_Exit(kDone);
        });
    }
    host.Show(FileToOpen(options));
    return QApplication::exec();
}
