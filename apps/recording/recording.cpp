#include "recording/recording.h"

#include <map>
#include <tuple>
#include <utility>
#include <vector>

#include "base/text.h"
#include "recording/outside.h"
#include "window/held_back.h"
#include "window/screens.h"
#include "window/window_system.h"

namespace recording {

namespace {

const char* WordOfAnswer(int id) {
    static const std::map<int, const char*> words{
        {IDOK, "ok"},       {IDCANCEL, "cancel"}, {IDYES, "yes"},      {IDNO, "no"},
        {IDRETRY, "retry"}, {IDABORT, "abort"},   {IDIGNORE, "ignore"}};
    const auto at = words.find(id);
    return at == words.end() ? "ok" : at->second;
}

/// The picks of a map, each "AREA,BLOCK,EXTENSION"; null for none.
Json PicksOf(const std::string& text) {
    constexpr std::size_t kFieldsOfTheMap = 2;
    constexpr std::size_t kFieldsOfAPick = 3;
    if (text.empty()) return nullptr;
    const std::vector<std::string> fields = kv::Split(text, ',');
    Json picks = Json::array();
    for (std::size_t at = kFieldsOfTheMap; at + kFieldsOfAPick <= fields.size();
         at += kFieldsOfAPick) {
        picks.push_back(fields[at] + "," + fields[at + 1] + "," + fields[at + 2]);
    }
    return picks;
}

}  // namespace

Recording::Recording(const Json& inputs, std::function<void()> recorded)
    : inner_(kv::WindowSystem::Get().GetDesktop()),
      begin_(std::chrono::floor<std::chrono::seconds>(inner_.Now())),
      head_({{"inputs", inputs}}),
      recorded_(std::move(recorded)) {
    head_.update(HeadOfNow(begin_));
    kv::SetScreens(*this, kv::ScreensOf(inner_));
    kv::WindowSystem::Get().SetDesktop(this);
    formerListener_ = kv::input::SetListener([this](const kv::input::Deed& deed) {
        recorder_.Did(deed, inner_.Now());
        Recorded();
    });
    ListenToQueries();
    ListenToMap();
}

Recording::~Recording() {
    kv::SetGraphics(std::move(map_));
    kv::SetQueryWaits(std::move(formerWaits_));
    kv::input::SetListener(std::move(formerListener_));
    kv::WindowSystem::Get().SetDesktop(&inner_);
    kv::SetScreens(*this, nullptr);
}

Json Recording::Script() const {
    Json script = head_;
    script["user"] = recorder_.Scenes();
    return script;
}

void Recording::Recorded() {
    if (recorded_) recorded_();
}

template <typename Run>
auto Recording::Answered(Json scene, const Run& run) {
    recorder_.QuestionOpens(std::move(scene));
    auto [result, key, answer] = run();
    recorder_.IsAnswered(key, std::move(answer));
    Recorded();
    return result;
}

void Recording::ListenToQueries() {
    formerWaits_ =
        kv::SetQueryWaits({[this](const std::string& sql) {
                               recorder_.QueryBegins(sql);
                               auto act = formerWaits_.begins ? formerWaits_.begins(sql) : nullptr;
                               if (act) recorder_.WaitIsSeen();
                               return act;
                           },
                           [this] {
                               recorder_.QueryEnds();
                               if (formerWaits_.ends) formerWaits_.ends();
                           }});
}

void Recording::ListenToMap() {
    map_ = kv::SetGraphics(nullptr);
    if (!map_) return;
    kv::SetGraphics([this](const auto&... asked) {
        return Answered({{"map", nullptr}}, [&] {
            std::string text = map_(asked...);
            Json picks = PicksOf(text);
            return std::tuple(std::move(text), "map", std::move(picks));
        });
    });
}

void Recording::RunModal(kv::Node& dialog) {
    recorder_.WindowOpens(dialog);
    inner_.RunModal(dialog);
    recorder_.WindowCloses();
}

void Recording::RunModeless(kv::Node& window, kv::Node& actOn) {
    recorder_.WindowOpens(actOn);
    inner_.RunModeless(window, actOn);
    recorder_.WindowCloses();
}

int Recording::RunMessageBox(const kv::MessageBoxRequest& request) {
    // One that cannot be told may be any.
    return Answered({{"message", IsWritable(request.text) ? request.text : ""}}, [&] {
        const int answer = inner_.RunMessageBox(request);
        return std::tuple(answer, "answer", Json(WordOfAnswer(answer)));
    });
}

int Recording::RunFileDialog(const kv::FileDialogRequest& request, std::string& path) {
    return Answered({{"file", nullptr}}, [&] {
        const int answer = inner_.RunFileDialog(request, path);
        return std::tuple(answer, "file", answer == IDOK ? Json(path) : Json());
    });
}

int Recording::RunPrintSetup(kv::PrinterSettings& settings) {
    return Answered({{"print", nullptr}}, [&] {
        const int answer = inner_.RunPrintSetup(settings);
        return std::tuple(answer, "print", answer == IDOK ? PrinterAsJson(settings) : Json());
    });
}

bool Recording::DefaultPrinter(kv::PrinterSettings& settings) {
    return inner_.DefaultPrinter(settings);
}

bool Recording::HasPrinter(const std::string& device) {
    return inner_.HasPrinter(device);
}

CSize Recording::ScreenSize() {
    return inner_.ScreenSize();
}

CSize Recording::TextExtent(const std::string& text, const kv::Font& font) {
    return inner_.TextExtent(text, font);
}

COLORREF Recording::Color(kv::SystemColor which) {
    return inner_.Color(which);
}

kv::Font Recording::DefaultFont() {
    return inner_.DefaultFont();
}

/// The clock stands, as it does where the script is played; a pause is a second.
std::chrono::system_clock::time_point Recording::Now() {
    return begin_ + std::chrono::seconds(recorder_.Pauses());
}

std::string Recording::ClipboardText() {
    std::string text = inner_.ClipboardText();
    recorder_.ClipboardIsRead(text);
    return text;
}

void Recording::SetClipboardText(const std::string& text) {
    recorder_.ClipboardIsSet();
    inner_.SetClipboardText(text);
}

void Recording::Pump() {
    if (kv::HoldsBack()) {
        // How often is a matter of time; that the window of a query comes up may lose a click.
        recorder_.WaitIsSeen();
        return inner_.Pump();
    }
    recorder_.PumpBegins();
    inner_.Pump();
    recorder_.PumpEnds();
}

void Recording::Wake() {
    inner_.Wake();
}

void Recording::Created(kv::Node& node) {
    inner_.Created(node);
}

std::string TextOf(const Json& script) {
    return script.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace recording
