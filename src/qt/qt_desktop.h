#pragma once

#include <memory>

#include "base/export.h"
#include "window/desktop.h"

class QMainWindow;
class QWidget;

namespace kv::qt {

/// A desktop with a screen: shows windows with Qt's widgets. Made when there is a `QApplication`,
/// and gone before it; there is one at a time. The layer asks it as long as it lives.
class KVGUICTL_API QtDesktop : public Desktop {
public:
    QtDesktop();
    ~QtDesktop() override;
    QtDesktop(const QtDesktop&) = delete;
    QtDesktop& operator=(const QtDesktop&) = delete;

    void RunModal(Node& dialog) override;
    void RunModeless(Node& window, Node& actOn) override;
    int RunMessageBox(const MessageBoxRequest& request) override;
    int RunFileDialog(const FileDialogRequest& request, std::string& path) override;
    /// Without a printer the sheet can be chosen all the same.
    int RunPrintSetup(PrinterSettings& settings) override;
    bool DefaultPrinter(PrinterSettings& settings) override;
    bool HasPrinter(const std::string& device) override;

    CSize ScreenSize() override;
    CSize TextExtent(const std::string& text, const Font& font) override;
    COLORREF Color(SystemColor which) override;
    Font DefaultFont() override;
    std::chrono::system_clock::time_point Now() override;
    std::string ClipboardText() override;
    void SetClipboardText(const std::string& text) override;

    void Pump() override;
    void Wake() override;
    void Created(Node& node) override;

private:
    class Events;
    std::unique_ptr<Events> events_;
};

/// The widget that shows a window or a control; null for one that is not shown.
KVGUICTL_API QWidget* WidgetOf(const Node& node);

/// The main window that shows a frame, for the host to put its menus and its central widget in;
/// null when the frame is not shown. `QMainWindow::saveState` keeps where the bars are docked.
KVGUICTL_API QMainWindow* MainWindowOf(const Node& frame);

/// Writes a PNG file of a window as it looks, at a path of the machine; of one that scrolls, the
/// whole. False when it is not shown or cannot be written.
KVGUICTL_API bool SavePicture(const Node& window, const std::string& machinePath);

}  // namespace kv::qt
