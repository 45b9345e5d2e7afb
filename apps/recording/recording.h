#pragma once

#include <functional>
#include <string>

#include "frame/graphics.h"
#include "recording/recorder.h"
#include "window/desktop.h"
#include "window/query_waits.h"

namespace recording {

/// As long as it lives, what a person does is recorded: it listens, and stands ahead of the desktop
/// that the windows ask, which must outlive it, and ahead of the host's map. There is one at a
/// time.
class Recording : public kv::Desktop {
public:
    /// The head is that of the moment, with these inputs. `recorded` is called ahead of each deed,
    /// when that is part of the script already, and when something has been answered.
    explicit Recording(const Json& inputs, std::function<void()> recorded = {});
    ~Recording() override;
    Recording(const Recording&) = delete;
    Recording& operator=(const Recording&) = delete;

    /// The script so far.
    Json Script() const;

    void RunModal(kv::Node& dialog) override;
    void RunModeless(kv::Node& window, kv::Node& actOn) override;
    int RunMessageBox(const kv::MessageBoxRequest& request) override;
    int RunFileDialog(const kv::FileDialogRequest& request, std::string& path) override;
    int RunPrintSetup(kv::PrinterSettings& settings) override;
    bool DefaultPrinter(kv::PrinterSettings& settings) override;
    bool HasPrinter(const std::string& device) override;
    CSize ScreenSize() override;
    CSize TextExtent(const std::string& text, const kv::Font& font) override;
    COLORREF Color(kv::SystemColor which) override;
    kv::Font DefaultFont() override;
    std::chrono::system_clock::time_point Now() override;
    std::string ClipboardText() override;
    void SetClipboardText(const std::string& text) override;
    void Pump() override;
    void Wake() override;
    void Created(kv::Node& node) override;

private:
    /// Adds a scene, and its answer when `run` has got one.
    template <typename Run>
    auto Answered(Json scene, const Run& run);
    void ListenToQueries();
    void ListenToMap();
    void Recorded();

    kv::Desktop& inner_;
    Recorder::Time begin_;
    Json head_;
    std::function<void()> recorded_;
    Recorder recorder_;
    kv::input::Listener formerListener_;
    kv::QueryWaits formerWaits_;
    kv::Graphics map_;
};

/// A script as the text of a file.
std::string TextOf(const Json& script);

}  // namespace recording
