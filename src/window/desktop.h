#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "base/export.h"
#include "base/types.h"
#include "window/drawing/look.h"
#include "window/messages.h"

class CFileDialog;
class CWnd;

namespace kv {

class Node;

struct MessageBoxRequest {
    std::string text;
    std::string caption;
    UINT type = MB_OK;  ///< MB_... bits: buttons and icon
    CWnd* parent = nullptr;
};

struct FileDialogRequest {
    bool open = true;
    std::string title;
    std::string defaultExtension;  ///< without a dot
    std::string fileName;          ///< name or path to begin with
    std::string initialFolder;
    std::string filter;  ///< description | pattern | description | pattern ||
    DWORD flags = 0;     ///< OFN_... bits
    CWnd* parent = nullptr;
};

/// Paper and orientation of a printer.
struct PrinterSettings {
    std::string device;
    int paper = 1;  ///< number of the paper size, 1 being Letter
    bool landscape = false;
    int widthTenthMm = 2159;  ///< of the sheet as it lies in portrait, tenths of a millimetre
    int heightTenthMm = 2794;
    std::string form = {};  ///< name of the paper; empty where its number tells it
};

/// What lies outside the windows.
class KVGUICTL_API Desktop : public Look {
public:
    /// Runs a modal dialog that stands ready on the screen, until `DialogEnded(dialog)`.
    virtual void RunModal(Node& dialog) = 0;
    /// Lets the user work on a modeless window until it is closed or hidden. `actOn` is the part of
    /// it that a script's scene acts on: itself, or a bar in it.
    virtual void RunModeless(Node& window, Node& actOn) = 0;
    /// Each runs one modal thing and answers with the id of the button that ended it.
    virtual int RunMessageBox(const MessageBoxRequest& request) = 0;
    /// `path` is the full path that was chosen, in drive-letter form.
    virtual int RunFileDialog(const FileDialogRequest& request, std::string& path) = 0;
    virtual int RunPrintSetup(PrinterSettings& settings) = 0;
    /// False when the machine has no printer.
    virtual bool DefaultPrinter(PrinterSettings& settings) = 0;
    /// Whether there is a printer of that name now.
    virtual bool HasPrinter(const std::string& device) = 0;

    /// What the screen has for the contents of a window.
    virtual CSize ScreenSize() = 0;
    virtual std::chrono::system_clock::time_point Now() = 0;
    /// The text on the clipboard.
    virtual std::string ClipboardText() = 0;
    virtual void SetClipboardText(const std::string& text) = 0;

    /// Lets the windows live for a moment inside long work: takes what the user did meanwhile.
    /// Called ahead of each pumping of the queue.
    virtual void Pump() = 0;
    /// Something waits in the queue, or idle updates are due.
    virtual void Wake() = 0;
    /// A top-level window came to be, or a child was added to one that is shown; it is to be shown
    /// when its visible style says so.
    virtual void Created(Node& node) = 0;
};

}  // namespace kv
