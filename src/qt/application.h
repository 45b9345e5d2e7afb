#pragma once

#include <memory>

#include "base/export.h"
#include "qt/qt_desktop.h"

class QApplication;

namespace kv::qt {

/// What a host with no Qt of its own needs to show windows: a `QApplication` and the desktop.
class KVGUICTL_API Application {
public:
    /// `argc` and `argv` must outlive it.
    Application(int& argc, char** argv);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    QtDesktop& GetDesktop() { return *desktop_; }
    /// Lets the user work until the last window is closed, or the program quits. Its exit code.
    int Run();

private:
    std::unique_ptr<QApplication> application_;
    std::unique_ptr<QtDesktop> desktop_;
};

}  // namespace kv::qt
