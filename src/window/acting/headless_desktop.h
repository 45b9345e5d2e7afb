#pragma once

#include <deque>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "base/export.h"
#include "window/acting/user.h"
#include "window/desktop.h"

namespace kv {

/// A desktop without a screen: what opens is answered from a script of scenes, one for each modal
/// thing, in the order in which they open, and scenes that are taken when messages are pumped.
///
/// What opens without a scene of its kind, a scene that does not match, an action on a control that
/// is not there or cannot be acted on, and a dialog that its scene leaves open end the run: see
/// `SetFailure`.
class KVGUICTL_API HeadlessDesktop : public Desktop {
public:
    HeadlessDesktop() = default;
    ~HeadlessDesktop() override;

    // The script.

    /// A window opens whose class or caption is `name` (empty: any); `act` does what the user does
    /// and has to end it.
    void ExpectWindow(std::string name, std::function<void(User&)> act);
    /// A message box opens with that text (empty: any), and is answered with that button.
    void ExpectMessage(std::string text, int answer = IDOK);
    /// A file dialog opens, and that path is chosen; it is a path in drive-letter form.
    void ExpectFile(std::string path);
    void ExpectFileCancel();
    /// Print setup opens, and ends with these settings; or is cancelled.
    void ExpectPrintSetup(PrinterSettings settings);
    void ExpectPrintSetupCancel();
    /// The host opens something of its own, which `what` names, such as "the map"; it gives that
    /// text.
    void ExpectOther(std::string what, std::string answer);
    /// The queue is pumped inside long work; `act` acts on the window in front. `skip` pumpings go
    /// by first.
    void ExpectPump(std::function<void(User&)> act, int skip = 0);
    /// Scenes not taken yet.
    int ScenesLeft() const;

    /// Text of each message box so far.
    const std::vector<std::string>& Messages() const { return messages_; }
    /// What each file dialog was asked with.
    const std::vector<FileDialogRequest>& FileDialogs() const { return fileDialogs_; }

    /// What happens to the run when the script and the windows do not fit: gets the words, and must
    /// not return. Without one, the words go to the standard error output and the process ends at
    /// once with the code 2: no handler can catch it, and nothing waits.
    void SetFailure(std::function<void(const std::string&)> failure);
    [[noreturn]] void Fail(const std::string& words);

    /// For what a host opens of its own: takes its scene, and answers the text that it gives.
    std::string TakeOther(const std::string& what);

    /// Called when a window is about to go, with its controls as they stand.
    void SetWindowClosed(std::function<void(Node&)> closed) { closed_ = std::move(closed); }

    /// The outside, as the script sets it.
    void SetPrinter(PrinterSettings settings);
    void SetNoPrinter() { hasPrinter_ = false; }
    /// A printer that was chosen in print setup is there no more.
    void RemovePrinter(const std::string& device) { gonePrinters_.insert(device); }
    void SetScreenSize(CSize size) { screen_ = size; }
    void SetNow(std::chrono::system_clock::time_point now);
    void SetColor(SystemColor which, COLORREF color) { look_.SetColor(which, color); }

    // Desktop.
    void RunModal(Node& dialog) override;
    /// Takes one window scene; the window may be left open.
    void RunModeless(Node& window, Node& actOn) override;
    int RunMessageBox(const MessageBoxRequest& request) override;
    int RunFileDialog(const FileDialogRequest& request, std::string& path) override;
    int RunPrintSetup(PrinterSettings& settings) override;
    bool DefaultPrinter(PrinterSettings& settings) override;
    bool HasPrinter(const std::string& device) override;
    CSize ScreenSize() override { return screen_; }
    CSize TextExtent(const std::string& text, const Font& font) override {
        return look_.TextExtent(text, font);
    }
    COLORREF Color(SystemColor which) override { return look_.Color(which); }
    Font DefaultFont() override { return look_.DefaultFont(); }
    std::chrono::system_clock::time_point Now() override;
    std::string ClipboardText() override { return clipboard_; }
    void SetClipboardText(const std::string& text) override { clipboard_ = text; }
    void Pump() override;
    void Wake() override {}
    void Created(Node&) override {}

private:
    enum class SceneKind { kWindow, kMessage, kFile, kPrintSetup, kOther };
    struct Scene {
        SceneKind kind;
        std::string match;
        std::function<void(User&)> act;
        int answer = IDOK;
        /// The path of a file, or the text of something else.
        std::string text;
        PrinterSettings printer;
    };
    struct PumpScene {
        std::function<void(User&)> act;
        int skip;
    };

    void PlayWindowScene(Node& window);
    Scene TakeScene(SceneKind kind, const std::string& whatOpened);
    static std::string Describe(const Scene& scene);

    std::deque<Scene> scenes_;
    std::deque<PumpScene> pumpScenes_;
    std::vector<std::string> messages_;
    std::vector<FileDialogRequest> fileDialogs_;
    std::function<void(const std::string&)> failure_;
    std::function<void(Node&)> closed_;
    bool hasPrinter_ = true;
    PrinterSettings printer_;
    std::set<std::string> gonePrinters_;
    CSize screen_{1920, 1080};
    std::chrono::system_clock::time_point now_{};
    bool nowSet_ = false;
    PlainLook look_;
    std::string clipboard_;
};

}  // namespace kv
