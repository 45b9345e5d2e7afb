#include "kvdlg/script.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <map>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "adaptors/print_inputs.h"
#include "base/paths.h"
#include "kvdlg/script_lines.h"
#include "window/acting/wait_scene.h"

namespace kvdlg {

namespace {

using Lines = std::map<std::string, int>;

/// "Line 7, ", where the line is known.
std::string LineOf(const Lines& lines, const std::string& pointer) {
    const auto at = lines.find(pointer);
    return at == lines.end() ? std::string() : "Line " + std::to_string(at->second) + ", ";
}

/// A name that nobody asks for is a slip of the pen.
void RefuseOthers(const Json& object, std::span<const std::string_view> known,
                  const std::function<std::string(const std::string& key)>& where) {
    for (const auto& [key, value] : object.items()) {
        if (std::ranges::find(known, key) != known.end()) continue;
        std::string names;
        for (const std::string_view each : known)
            names += (names.empty() ? "" : ", ") + std::string(each);
        Wrong(where(key), "nothing but " + names + " here, and not \"" + key + "\"");
    }
}

/// A scene of the script, and how its place is named.
struct ScenePlace {
    int index;
    const Lines& lines;

    std::string Pointer() const { return "/user/" + std::to_string(index); }
    /// The line of one of its keys.
    std::string WordsOfKey(const std::string& key) const {
        return LineOf(lines, Pointer() + "/" + key) + "scene " + std::to_string(index + 1);
    }
    std::string Words() const {
        return LineOf(lines, Pointer()) + "scene " + std::to_string(index + 1);
    }
    std::string WordsOfAction(int action) const {
        return LineOf(lines, Pointer() + "/do/" + std::to_string(action)) + "scene " +
               std::to_string(index + 1) + ", action " + std::to_string(action + 1);
    }
};

std::vector<Action> MakeActions(const Json& scene, const ScenePlace& place,
                                kv::HeadlessDesktop& desktop, const Hooks& hooks) {
    std::vector<Action> actions;
    if (!scene.contains("do")) return actions;
    if (!scene["do"].is_array()) Wrong(place.Words(), "\"do\" to be a list of actions");
    int index = 0;
    for (const Json& step : scene["do"]) {
        const std::string where = place.WordsOfAction(index++);
        actions.push_back(
            [where, at = hooks.at, act = MakeAction(step, where, desktop, hooks)](kv::User& user) {
                at(where);
                act(user);
            });
    }
    return actions;
}

int AnswerOf(const Json& scene, const std::string& where) {
    static const std::map<std::string, int> answers{
        {"ok", IDOK},       {"cancel", IDCANCEL}, {"yes", IDYES},      {"no", IDNO},
        {"retry", IDRETRY}, {"abort", IDABORT},   {"ignore", IDIGNORE}};
    if (!scene.contains("answer")) return IDOK;
    const std::string answer = scene["answer"].is_string() ? scene["answer"] : "";
    const auto at = answers.find(answer);
    if (at == answers.end())
        Wrong(where, "\"answer\" to be ok, cancel, yes, no, retry, abort or ignore");
    return at->second;
}

kv::PrinterSettings PrinterOf(const Json& scene, const char* key, const std::string& where) {
    const auto printer = adaptors::PrinterFrom(scene[key]);
    if (!printer) {
        Wrong(where,
              std::string("\"") + key + "\" to be " + adaptors::kPrinterInWords + ", or null");
    }
    return *printer;
}

/// The picks as the map gives them: two fields of its own, and a comma behind each.
std::string MapTextOf(const Json& picks, const std::string& where) {
    constexpr const char* kExpected =
        "\"map\" to be a list of texts \"AREA NAME,BLOCK,EXTENSION\", or null";
    if (picks.is_null()) return "";
    if (!picks.is_array()) Wrong(where, kExpected);
    std::string text = "BLOCKS," + std::to_string(picks.size()) + ",";
    for (const Json& pick : picks) {
        if (!pick.is_string()) Wrong(where, kExpected);
        const std::string fields = pick.get<std::string>();
        if (std::count(fields.begin(), fields.end(), ',') != 2) Wrong(where, kExpected);
        text += fields + ",";
    }
    return text;
}

/// Each kind of scene by the key that tells it, with what else it may hold.
struct SceneKind {
    std::size_t count;
    std::string_view keys[3];
};
constexpr SceneKind kSceneKinds[] = {{2, {"window", "do"}}, {2, {"message", "answer"}},
                                     {1, {"file"}},         {1, {"print"}},
                                     {1, {"map"}},          {2, {"pump", "do"}},
                                     {2, {"wait", "do"}},   {3, {"query", "do", "after"}}};

void CheckKeys(const Json& scene, const ScenePlace& place) {
    if (!scene.is_object()) Wrong(place.Words(), "an object");
    const auto kind = std::ranges::find_if(
        kSceneKinds, [&](const SceneKind& each) { return scene.contains(each.keys[0]); });
    if (kind == std::end(kSceneKinds)) {
        Wrong(place.Words(),
              "\"window\", \"message\", \"file\", \"print\", \"map\", \"pump\", \"wait\" or "
              "\"query\"");
    }
    RefuseOthers(scene, std::span(kind->keys).first(kind->count),
                 [&](const std::string& key) { return place.WordsOfKey(key); });
}

void AddScene(const Json& scene, const ScenePlace& place, const Stage& stage, const Hooks& hooks) {
    CheckKeys(scene, place);
    kv::HeadlessDesktop& desktop = stage.desktop;
    const std::string where = place.Words();
    const auto play = [actions = MakeActions(scene, place, desktop, hooks)](kv::User& user) {
        for (const Action& action : actions)
            action(user);
    };
    const auto textOf = [&](const char* key) {
        if (!scene[key].is_string()) Wrong(where, std::string("\"") + key + "\" to be a text");
        return scene[key].get<std::string>();
    };
    if (scene.contains("window")) {
        desktop.ExpectWindow(textOf("window"), play);
    } else if (scene.contains("message")) {
        desktop.ExpectMessage(textOf("message"), AnswerOf(scene, where));
    } else if (scene.contains("file")) {
        if (scene["file"].is_null()) {
            desktop.ExpectFileCancel();
        } else {
            desktop.ExpectFile(textOf("file"));
        }
    } else if (scene.contains("print")) {
        if (scene["print"].is_null()) {
            desktop.ExpectPrintSetupCancel();
        } else {
            desktop.ExpectPrintSetup(PrinterOf(scene, "print", where));
        }
    } else if (scene.contains("map")) {
        desktop.ExpectOther(kMap, MapTextOf(scene["map"], where));
    } else if (scene.contains("query")) {
        const Json after = scene.value("after", Json(0));
        if (!after.is_number_integer()) Wrong(where, "\"after\" to be how many go by first");
        stage.queries.Expect(textOf("query"), play, after.get<int>());
    } else {
        const char* key = scene.contains("pump") ? "pump" : "wait";
        if (!scene[key].is_number_integer())
            Wrong(where, std::string("\"") + key + "\" to be how many pumpings go by first");
        const int skip = scene[key].get<int>();
        scene.contains("pump") ? desktop.ExpectPump(play, skip)
                               : kv::ExpectWait(desktop, play, skip);
    }
}

void MapDrives(const Json& drives, const std::string& where) {
    static const std::map<std::string, kv::DriveKind> kKinds{{"removable", kv::kDriveRemovable},
                                                             {"fixed", kv::kDriveFixed},
                                                             {"remote", kv::kDriveRemote},
                                                             {"CD-ROM", kv::kDriveCdRom}};
    const std::string expected =
        "\"drives\" to be an object of letters, each with a \"folder\" and a \"kind\": removable, "
        "fixed, remote or CD-ROM";
    if (!drives.is_object()) Wrong(where, expected);
    for (const auto& [letter, drive] : drives.items()) {
        const bool whole = letter.size() == 1 && drive.is_object() && drive.contains("folder") &&
                           drive["folder"].is_string();
        const Json kind = whole ? drive.value("kind", Json("fixed")) : Json();
        const auto known = kind.is_string() ? kKinds.find(kind.get<std::string>()) : kKinds.end();
        if (known == kKinds.end()) Wrong(where, expected);
        kv::MapDrive(letter[0], kv::ToNative(drive["folder"].get<std::string>()), known->second);
    }
}

/// A number of digits alone, as long as the text.
std::optional<int> DigitsOf(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool digits = error == std::errc() && end == text.data() + text.size();
    return digits && text.front() != '-' ? std::optional(number) : std::nullopt;
}

/// Of a text as "2024-05-06T07:08:09Z"; none for any other.
std::optional<std::chrono::system_clock::time_point> TimeOf(const std::string& text) {
    constexpr std::string_view kForm = "dddd-dd-ddTdd:dd:ddZ";
    if (text.size() != kForm.size()) return {};
    for (std::size_t at = 0; at < kForm.size(); ++at) {
        if (kForm[at] != 'd' && kForm[at] != text[at]) return {};
    }
    const auto part = [&](std::size_t at, std::size_t count) {
        return DigitsOf(std::string_view(text).substr(at, count)).value_or(-1);
    };
    const std::chrono::year_month_day date{std::chrono::year(part(0, 4)),
                                           std::chrono::month(static_cast<unsigned>(part(5, 2))),
                                           std::chrono::day(static_cast<unsigned>(part(8, 2)))};
    const int hours = part(11, 2), minutes = part(14, 2), seconds = part(17, 2);
    const bool clock =
        hours >= 0 && hours < 24 && minutes >= 0 && minutes < 60 && seconds >= 0 && seconds < 60;
    if (!clock || part(0, 4) < 0 || !date.ok()) return {};
    return std::chrono::sys_days(date) + std::chrono::hours(hours) + std::chrono::minutes(minutes) +
           std::chrono::seconds(seconds);
}

void SetTime(const Json& time, const std::string& where, kv::HeadlessDesktop& desktop) {
    const auto now = time.is_string() ? TimeOf(time.get<std::string>()) : std::nullopt;
    if (!now) Wrong(where, "\"time\" to be a text as \"2024-05-06T07:08:09Z\"");
    desktop.SetNow(*now);
}

void SetScreen(const Json& screen, const std::string& where, kv::HeadlessDesktop& desktop) {
    constexpr int kMost = 100'000;
    const auto isLength = [](const Json& length) {
        return length.is_number_integer() && length.get<double>() > 0 &&
               length.get<double>() <= kMost;
    };
    const bool whole =
        screen.is_array() && screen.size() == 2 && isLength(screen[0]) && isLength(screen[1]);
    if (!whole) Wrong(where, "\"screen\" to be its width and height, as [1920, 1080]");
    desktop.SetScreenSize({screen[0].get<int>(), screen[1].get<int>()});
}

void SetFolder(const Json& folder, const std::string& where) {
    const bool is = folder.is_string() && kv::ChangeFolder(folder.get<std::string>());
    if (!is) Wrong(where, "\"folder\" to be a folder that is there");
}

}  // namespace

Json ParseJson(const std::string& text, const std::string& nameOfText) {
    const auto notTooDeep = [&](int depth, Json::parse_event_t, const Json&) {
        if (depth <= kDeepestJson) return true;
        throw BadScript(nameOfText + ": too many lists and objects inside each other");
    };
    try {
        return Json::parse(text, notTooDeep);
    } catch (const nlohmann::json::parse_error& e) {
        const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(e.byte, text.size()));
        const auto line = 1 + std::count(text.begin(), end, '\n');
        throw BadScript(nameOfText + ", line " + std::to_string(line) + ": no JSON: " + e.what());
    }
}

void SetOutside(const Json& script, const std::map<std::string, int>& lines,
                kv::HeadlessDesktop& desktop) {
    constexpr std::string_view kHead[] = {"inputs", "printer", "drives",   "time",
                                          "screen", "folder",  "registry", "user"};
    const auto where = [&](const std::string& key) {
        return LineOf(lines, "/" + key) + "the script";
    };
    RefuseOthers(script, kHead, where);
    if (script.contains("drives")) MapDrives(script["drives"], where("drives"));
    if (script.contains("folder")) SetFolder(script["folder"], where("folder"));
    if (script.contains("time")) SetTime(script["time"], where("time"), desktop);
    if (script.contains("screen")) SetScreen(script["screen"], where("screen"), desktop);
    if (!script.contains("printer")) return;
    if (script["printer"].is_null()) {
        desktop.SetNoPrinter();
    } else {
        desktop.SetPrinter(PrinterOf(script, "printer", where("printer")));
    }
}

void AddScenes(const Json& user, const std::map<std::string, int>& lines, const Stage& stage,
               const Hooks& hooks) {
    if (!user.is_array()) {
        Wrong(LineOf(lines, "/user") + "the script", "\"user\" to be a list of scenes");
    }
    int index = 0;
    for (const Json& scene : user) {
        const ScenePlace place{index++, lines};
        if (index == 1) hooks.at(place.Words());
        AddScene(scene, place, stage, hooks);
    }
}

}  // namespace kvdlg
