#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "window/export.h"
#include "window/node.h"
#include "window/types.h"

class CFileDialog;
class CWnd;

namespace kv {

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
};

/// A font, as far as text is measured and drawn with it.
struct Font {
    std::string face;
    int height = 13;  ///< of a line, in logical pixels
    bool bold = false;
    bool italic = false;
    bool operator==(const Font&) const = default;
};

/// Indices of the system's colours, as the platform numbers them.
enum class SystemColor {
    kWindow = 5,
    kWindowText = 8,
    kHighlight = 13,
    kHighlightText = 14,
    kButtonFace = 15,
    kButtonShadow = 16,
    kGrayText = 17,
    kButtonText = 18,
    kButtonHighlight = 20,
    kDarkShadow = 21,
    kLight = 22,
};

/// What lies outside the windows.
class KVGUICTL_API Desktop {
public:
    virtual ~Desktop() = default;

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

    virtual CSize ScreenSize() = 0;
    /// Extent of one line of text, in logical pixels.
    virtual CSize TextExtent(const std::string& text, const Font& font) = 0;
    virtual COLORREF Color(SystemColor which) = 0;
    virtual Font DefaultFont() = 0;
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
