#include "kvdlg/play.h"

#include <algorithm>
#include <map>

#include "frame/graphics.h"
#include "kvdlg/given_registry.h"
#include "kvdlg/report.h"
#include "kvdlg/script.h"
#include "kvdlg/script_lines.h"
#include "window/window_system.h"

namespace kvdlg {

namespace {

/// Says which scenes were left over. Those of long work are taken out of order, and so not counted.
std::string WordsOfScenesLeft(const Json& user, int left, const std::map<std::string, int>& lines) {
    const std::string words = "the run is over, and " + std::to_string(left) +
                              (left == 1 ? " scene was not taken" : " scenes were not taken");
    const bool ofWork = std::any_of(user.begin(), user.end(), [](const Json& scene) {
        return scene.contains("pump") || scene.contains("wait") || scene.contains("query");
    });
    if (ofWork) return words;
    const auto first = user.size() - static_cast<std::size_t>(left);
    const auto line = lines.find("/user/" + std::to_string(first));
    if (line == lines.end()) return words;
    return words + ": expected what line " + std::to_string(line->second) + " tells, " +
           user[first].dump();
}

}  // namespace

void Play(const adaptors::Adaptor& adaptor, adaptors::Run& run, const Script& script,
          Records& records, const WindowClosed& closed,
          const std::function<void(const std::string&)>& mismatch) {
    kv::HeadlessDesktop desktop;
    kv::WindowSystem::Get().SetDesktop(&desktop);
    desktop.SetWindowClosed(closed);
    std::string place;
    desktop.SetFailure(
        [&](const std::string& words) { mismatch(place + (place.empty() ? "" : ": ") + words); });

    Hooks hooks;
    hooks.snapshot = [&](kv::Node& window, const std::string& name) {
        records.windows.push_back(Describe(window, name));
    };
    hooks.call = [&](const std::string& method, const Json& arguments) {
        try {
            adaptor.CheckCall(method, arguments);
            run.DoCall(method, arguments);
        } catch (const adaptors::BadInput& e) {
            desktop.Fail(e.what());
        }
    };
    hooks.at = [&](const std::string& where) { place = where; };
    const Json user = script.json.value("user", Json::array());
    const auto lines = LinesOf(script.text);
    const GivenRegistry registry(script.json, lines);
    SetOutside(script.json, lines, desktop);
    kv::QueryScenes queries(desktop);
    AddScenes(user, lines, {desktop, queries}, hooks);

    kv::SetGraphics([&](const auto&...) { return desktop.TakeOther(kMap); });
    adaptor.run(run);
    kv::SetGraphics(nullptr);
    if (const int left = desktop.ScenesLeft() + queries.Left(); left > 0) {
        place.clear();
        desktop.Fail(WordsOfScenesLeft(user, left, lines));
    }
    records.messages = desktop.Messages();
}

}  // namespace kvdlg
