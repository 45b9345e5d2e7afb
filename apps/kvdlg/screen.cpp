#include "kvdlg/screen.h"

#include <QApplication>
#include <QLoggingCategory>
#include <cstdlib>
#include <iostream>
#include <optional>

#include "kvdlg/failure.h"
#include "map_picks/map_picks.h"
#include "qt/qt_desktop.h"
#include "window/window_system.h"

namespace kvdlg {

namespace {

constexpr const char* kPlatform = "QT_QPA_PLATFORM";

/// Shows windows, and tells what became of them.
class PersonsDesktop : public kv::qt::QtDesktop {
public:
    PersonsDesktop(Records& records, WindowClosed closed)
        : records_(records), closed_(std::move(closed)) {}

    void RunModal(kv::Node& dialog) override {
        const auto keep = dialog.shared_from_this();
        QtDesktop::RunModal(dialog);
        Tell(dialog);
    }
    void RunModeless(kv::Node& window, kv::Node& actOn) override {
        const auto keep = actOn.shared_from_this();
        QtDesktop::RunModeless(window, actOn);
        Tell(actOn);
    }
    int RunMessageBox(const kv::MessageBoxRequest& request) override {
        records_.messages.push_back(request.text);
        return QtDesktop::RunMessageBox(request);
    }

private:
    void Tell(kv::Node& window) {
        if (!window.Destroyed()) closed_(window);
    }

    Records& records_;
    WindowClosed closed_;
};

/// A platform that cannot be had ends the program from within Qt; better with a line than a crash.
void EndInWords(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    std::cerr << "kvdlg: The display cannot be reached:";
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", kPlatform}) {
        if (qEnvironmentVariableIsSet(name)) std::cerr << " " << name << "=" << getenv(name);
    }
    std::cerr << "; --script plays the user without one" << std::endl;
    std::_Exit(kDataFailure);
}

/// What Qt needs to start, where it has not been started.
class Application {
public:
    Application() {
        if (!QApplication::instance()) {
            const QtMessageHandler before = qInstallMessageHandler(EndInWords);
            application_.emplace(count_, names_);
            qInstallMessageHandler(before);
        }
        QApplication::setApplicationName(QStringLiteral("kvdlg"));
        // Between two dialogs no window is open, and the program goes on.
        QApplication::setQuitOnLastWindowClosed(false);
    }

private:
    char name_[6] = "kvdlg";
    char* names_[2] = {name_, nullptr};
    int count_ = 1;
    std::optional<QApplication> application_;
};

void Save(kv::Node& node, const std::string& path) {
    if (!kv::qt::SavePicture(*node.Root(), path)) {
        throw FileFailure("The picture " + path + " cannot be written");
    }
}

class Display : public Screen {
public:
    Display(Records& records, WindowClosed closed) : desktop_(records, std::move(closed)) {
        map_picks::Install();
    }
    void SavePicture(kv::Node& node, const std::string& path) override { Save(node, path); }

private:
    Application application_;
    PersonsDesktop desktop_;
};

/// As long as it lives, the windows ask another desktop than the one that plays the user.
class DesktopScope {
public:
    explicit DesktopScope(kv::Desktop& desktop) { kv::WindowSystem::Get().SetDesktop(&desktop); }
    ~DesktopScope() { kv::WindowSystem::Get().SetDesktop(&before_); }
    DesktopScope(const DesktopScope&) = delete;
    DesktopScope& operator=(const DesktopScope&) = delete;

private:
    kv::Desktop& before_ = kv::WindowSystem::Get().GetDesktop();
};

class HiddenScreen : public Screen {
public:
    void SavePicture(kv::Node& node, const std::string& path) override {
        const DesktopScope colors(desktop_);
        desktop_.Created(*node.Root());
        Save(node, path);
    }

private:
    Application application_;
    kv::qt::QtDesktop desktop_;
};

bool HasDisplay() {
#ifdef __linux__
    return qEnvironmentVariableIsSet(kPlatform) || qEnvironmentVariableIsSet("DISPLAY") ||
           qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

}  // namespace

std::unique_ptr<Screen> OpenDisplay(Records& records, WindowClosed closed) {
    if (!HasDisplay()) {
        throw BadUse(
            "There is no display to open a window on; --script plays the user without one");
    }
    return std::make_unique<Display>(records, std::move(closed));
}

std::unique_ptr<Screen> OpenHiddenScreen() {
    if (!qEnvironmentVariableIsSet(kPlatform)) qputenv(kPlatform, "offscreen");
    // What that platform cannot do is of no interest to a picture.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    return std::make_unique<HiddenScreen>();
}

}  // namespace kvdlg
