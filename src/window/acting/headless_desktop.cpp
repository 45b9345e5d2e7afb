#include "window/acting/headless_desktop.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "window/blocked_windows.h"
#include "window/dialogs/dialog.h"
#include "window/window_system.h"

namespace kv {

namespace {

const RegisterFallbackDesktop kFallback{
    [] { return std::unique_ptr<Desktop>(std::make_unique<HeadlessDesktop>()); }};

std::string Quoted(const std::string& text) {
    return "\"" + text + "\"";
}

bool Matches(Node& window, const std::string& name) {
    if (name.empty() || window.Text() == name) return true;
    const CWnd* handle = window.AnyHandle();
    return handle && ClassName(*handle) == name;
}

}  // namespace

HeadlessDesktop::~HeadlessDesktop() {
    SetPatience({});
    WindowSystem::Get().ForgetDesktop(*this);
}

void HeadlessDesktop::ExpectWindow(std::string name, std::function<void(User&)> act) {
    scenes_.push_back({SceneKind::kWindow, std::move(name), std::move(act), IDOK, {}, {}});
}

void HeadlessDesktop::ExpectMessage(std::string text, int answer) {
    scenes_.push_back({SceneKind::kMessage, std::move(text), {}, answer, {}, {}});
}

void HeadlessDesktop::ExpectFile(std::string path) {
    scenes_.push_back({SceneKind::kFile, {}, {}, IDOK, std::move(path), {}});
}

void HeadlessDesktop::ExpectFileCancel() {
    scenes_.push_back({SceneKind::kFile, {}, {}, IDCANCEL, {}, {}});
}

void HeadlessDesktop::ExpectPrintSetup(PrinterSettings settings) {
    scenes_.push_back({SceneKind::kPrintSetup, {}, {}, IDOK, {}, std::move(settings)});
}

void HeadlessDesktop::ExpectPrintSetupCancel() {
    scenes_.push_back({SceneKind::kPrintSetup, {}, {}, IDCANCEL, {}, {}});
}

void HeadlessDesktop::ExpectOther(std::string what, std::string answer) {
    scenes_.push_back({SceneKind::kOther, std::move(what), {}, IDOK, std::move(answer), {}});
}

void HeadlessDesktop::ExpectPump(std::function<void(User&)> act, int skip) {
    pumpScenes_.push_back({std::move(act), skip});
}

int HeadlessDesktop::ScenesLeft() const {
    return static_cast<int>(scenes_.size() + pumpScenes_.size());
}

void HeadlessDesktop::SetFailure(std::function<void(const std::string&)> failure) {
    failure_ = std::move(failure);
}

void HeadlessDesktop::Fail(const std::string& words) {
    if (failure_) failure_(words);
    std::fprintf(stderr, "The script does not fit: %s\n", words.c_str());
    std::fflush(nullptr);
    std::_Exit(2);
}

void HeadlessDesktop::SetPrinter(PrinterSettings settings) {
    printer_ = std::move(settings);
    hasPrinter_ = true;
}

void HeadlessDesktop::SetNow(std::chrono::system_clock::time_point now) {
    now_ = now;
    nowSet_ = true;
}

std::string HeadlessDesktop::Describe(const Scene& scene) {
    switch (scene.kind) {
        case SceneKind::kWindow:
            return "the window " + Quoted(scene.match);
        case SceneKind::kMessage:
            return "the message " + Quoted(scene.match);
        case SceneKind::kFile:
            return "a file dialog";
        case SceneKind::kPrintSetup:
            return "print setup";
        case SceneKind::kOther:
            return scene.match;
    }
    return {};
}

HeadlessDesktop::Scene HeadlessDesktop::TakeScene(SceneKind kind, const std::string& whatOpened) {
    if (scenes_.empty()) Fail(whatOpened + " opened, and no scene is left");
    if (scenes_.front().kind != kind) {
        Fail("expected " + Describe(scenes_.front()) + ", and " + whatOpened + " opened");
    }
    Scene scene = std::move(scenes_.front());
    scenes_.pop_front();
    return scene;
}

void HeadlessDesktop::PlayWindowScene(Node& window) {
    const std::string what = "the window " + kv::Describe(window);
    const Scene scene = TakeScene(SceneKind::kWindow, what);
    if (!Matches(window, scene.match)) {
        Fail("expected " + Describe(scene) + ", and " + what + " opened");
    }
    User user(window, [this](const std::string& words) { Fail(words); });
    if (scene.act) scene.act(user);
    WindowSystem::Get().Settle();
}

void HeadlessDesktop::RunModal(Node& dialog) {
    const auto keep = dialog.shared_from_this();
    PlayWindowScene(dialog);
    if (!static_cast<DialogNode&>(dialog).Ended()) {
        Fail("the scene of the window " + kv::Describe(dialog) + " is over, and it is still open");
    }
    if (closed_ && !dialog.Destroyed()) closed_(dialog);
}

void HeadlessDesktop::RunModeless(Node& window, Node& actOn) {
    const auto keep = window.shared_from_this();
    const auto keepPart = actOn.shared_from_this();
    WindowSystem::Get().Settle();
    PlayWindowScene(actOn);
    if (closed_ && !actOn.Destroyed()) closed_(actOn);
}

int HeadlessDesktop::RunMessageBox(const MessageBoxRequest& request) {
    const std::string what = "the message " + Quoted(request.text);
    const Scene scene = TakeScene(SceneKind::kMessage, what);
    if (!scene.match.empty() && scene.match != request.text) {
        Fail("expected " + Describe(scene) + ", and " + what + " opened");
    }
    messages_.push_back(request.text);
    return scene.answer;
}

int HeadlessDesktop::RunFileDialog(const FileDialogRequest& request, std::string& path) {
    const Scene scene = TakeScene(SceneKind::kFile, "the file dialog " + Quoted(request.title));
    fileDialogs_.push_back(request);
    if (scene.answer == IDOK) path = scene.text;
    return scene.answer;
}

int HeadlessDesktop::RunPrintSetup(PrinterSettings& settings) {
    const Scene scene = TakeScene(SceneKind::kPrintSetup, "print setup");
    if (scene.answer == IDOK) settings = scene.printer;
    return scene.answer;
}

std::string HeadlessDesktop::TakeOther(const std::string& what) {
    Scene scene = TakeScene(SceneKind::kOther, what);
    if (scene.match != what) Fail("expected " + Describe(scene) + ", and " + what + " opened");
    return std::move(scene.text);
}

bool HeadlessDesktop::DefaultPrinter(PrinterSettings& settings) {
    if (hasPrinter_) settings = printer_;
    return hasPrinter_;
}

bool HeadlessDesktop::HasPrinter(const std::string& device) {
    return hasPrinter_ && !gonePrinters_.contains(device);
}

std::chrono::system_clock::time_point HeadlessDesktop::Now() {
    return nowSet_ ? now_ : std::chrono::system_clock::now();
}

void HeadlessDesktop::Pump() {
    if (pumpScenes_.empty()) return;
    if (pumpScenes_.front().skip-- > 0) return;
    const PumpScene scene = std::move(pumpScenes_.front());
    pumpScenes_.pop_front();
    const auto& windows = WindowSystem::Get().TopLevels();
    const auto front = std::find_if(windows.rbegin(), windows.rend(), [](const auto& window) {
        return window->ReallyVisible() && window->ReallyEnabled();
    });
    if (front == windows.rend())
        Fail("the queue was pumped with a scene waiting, and no window is open");
    User user(**front, [this](const std::string& words) { Fail(words); });
    scene.act(user);
}

}  // namespace kv
