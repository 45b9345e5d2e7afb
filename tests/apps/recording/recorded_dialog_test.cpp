// What is done in each dialog is recorded, and plays again with the same outcome: what its scripts
// for kvdlg do, and what a person does who works at random in its window, with real keys and mouse
// buttons. One test does all of a dialog, since its process takes longer to start than it works.
//
// KVGUICTL_RECORDED_RUNS says how many random runs there are, KVGUICTL_RECORDED_FIRST the number of
// the first, and KVGUICTL_RECORDED_SCRIPTS a folder for the scripts that give another outcome.

#include "base/numbers.h"
#include "random_person.h"
#include "same_ground.h"
#include "script_files.h"
#include "window/blocked_windows.h"

namespace {

using adaptors::Json;

constexpr int kRunsOfTheSuite = 2;
constexpr int kActs = 30;

int NumberOf(const char* variable, int fallback) {
    const char* value = std::getenv(variable);
    return value ? kv::ScanInteger(value).value_or(fallback) : fallback;
}

/// Keeps a script for whoever looks into it.
void Keep(const std::string& name, const Json& script) {
    const char* folder = std::getenv("KVGUICTL_RECORDED_SCRIPTS");
    if (!folder) return;
    std::filesystem::create_directories(folder);
    EXPECT_TRUE(
        kv::WriteFileWhole(std::string(folder) + "/" + name + ".json", recording::TextOf(script)));
}

Json ExpectedOf(const std::string& script) {
    return Json::parse(test::ScriptFile(script + std::string(test::kExpected)));
}

/// Snapshots are no deeds.
Json WithoutSnapshots(Json outcome) {
    Json windows = Json::array();
    for (const Json& window : outcome.at("windows"))
        if (!window.contains("snapshot")) windows.push_back(window);
    outcome["windows"] = windows;
    return outcome;
}

class Recorded : public test::SameGround, public testing::WithParamInterface<std::string> {
protected:
    static const adaptors::Adaptor& Dialog() { return *adaptors::Find(GetParam()); }

    /// A script of kvdlg is played and recorded.
    Json RecordScript(const std::string& name) {
        const std::string text =
            kv::ReplaceAll(test::ScriptFile(name + ".json"), "${folder}", "C:\\\\work");
        // A scene may wait for the window of a slow query.
        kv::SetPatience({});
        Json script;
        adaptors::Adaptor recorded = Dialog();
        recorded.run = [&](adaptors::Run& run) {
            const recording::Recording recording(run.Inputs());
            Dialog().run(run);
            script = recording.Script();
        };
        Json told =
            Play(recorded, Json::parse(kv::ReplaceAll(text, "${native}", Drive() + "/work")));
        told["outcome"] = WithoutSnapshots(told.at("outcome"));
        told["script"] = script;
        return told;
    }
    void WriteFilesOf(const std::string& script) const {
        std::filesystem::create_directories(Drive() + "/work");
        const Json files = ExpectedOf(script).value("files", Json::object());
        for (const auto& [name, content] : files.items())
            folder_.Write("drive/work/" + name, content.get<std::string>());
    }

    /// A person works at random, and is recorded.
    Json RecordPerson(int number) const {
        adaptors::Run run(Dialog().SampleInputs());
        kvdlg::Records records;
        Trace(records);
        const auto screen = kvdlg::OpenDisplay(records, [&](kv::Node& window) {
            records.windows.push_back(kvdlg::Describe(window, ""));
        });
        const recording::Recording recording(run.Inputs());
        const test::RandomPerson person(static_cast<unsigned>(number), kActs, Files());
        Dialog().run(run);
        Json told = Told(run, records);
        told["script"] = recording.Script();
        if (person.GaveUp()) told["mismatch"] = "the window did not close";
        return told;
    }
    std::vector<QString> Files() const {
        const QString drive = QString::fromStdString(Drive());
        return {drive + QStringLiteral("/list.txt"), drive + QStringLiteral("/blocks.txt"),
                drive + QStringLiteral("/new.txt")};
    }

    /// What goes wrong when `record` works on the ground that `layOut` adds to, and when what it
    /// recorded is played there; "" for nothing.
    std::string Fault(const std::string& name, const std::function<Json()>& record,
                      const std::function<void()>& layOut) {
        const auto onGround = [&](const std::function<Json()>& work) {
            return Apart([&] {
                layOut();
                return work();
            });
        };
        const test::Ended seen = onGround(record);
        if (!seen.told.is_object()) return "it ended with " + std::to_string(seen.status);
        const std::string why = seen.told.value("mismatch", "");
        if (!seen.told.contains("script")) return why;
        const Json& script = seen.told.at("script");
        const std::string deeds = "\n" + script.at("user").dump();
        if (!why.empty()) return why + deeds;

        const test::Ended played = onGround([&] { return Play(Dialog(), script); });
        const bool ended = played.told.is_object();
        if (ended && played.told.value("outcome", Json()) == seen.told.at("outcome")) return {};
        Keep(GetParam() + "-" + name, script);
        if (!ended) return "played, it ended with " + std::to_string(played.status) + deeds;
        if (played.told.contains("mismatch"))
            return "played: " + played.told.at("mismatch").get<std::string>() + deeds;
        return "played, it differs: " +
               Json::diff(seen.told.at("outcome"), played.told.at("outcome")).dump() + deeds;
    }
};

/// Scripts of the class that play to their end, need nothing of the command line, and in which all
/// that is done is a person's: what a host calls meanwhile is none.
std::vector<std::string> ScriptsOf(const std::string& className) {
    std::vector<std::string> names = test::ScriptNames();
    std::erase_if(names, [&](const std::string& name) {
        const Json expected = ExpectedOf(name);
        const std::string text = test::ScriptFile(name + ".json");
        const bool ends = expected.at("exit") == 0 || expected.at("exit") == 1;
        return expected.at("run") != className || !ends || expected.contains("options") ||
               expected.contains("db") || text.find("{\"call\":") != std::string::npos;
    });
    return names;
}

TEST_P(Recorded, PlaysWithTheSameOutcome) {
    for (const std::string& script : ScriptsOf(GetParam())) {
        const std::string fault = Fault(
            script, [&] { return RecordScript(script); }, [&] { WriteFilesOf(script); });
        EXPECT_TRUE(fault.empty()) << "the script " << script << ": " << fault;
    }
    const int first = NumberOf("KVGUICTL_RECORDED_FIRST", 1);
    const int runs = NumberOf("KVGUICTL_RECORDED_RUNS", kRunsOfTheSuite);
    for (int number = first; number < first + runs; ++number) {
        const std::string fault = Fault(
            std::to_string(number), [&] { return RecordPerson(number); }, [] {});
        EXPECT_TRUE(fault.empty()) << "the random run " << number << ": " << fault;
    }
}

std::vector<std::string> Classes() {
    std::vector<std::string> classes;
    for (const adaptors::Adaptor* each : adaptors::All())
        classes.push_back(each->className);
    return classes;
}

INSTANTIATE_TEST_SUITE_P(, Recorded, testing::ValuesIn(Classes()),
                         [](const auto& each) { return each.param; });

}  // namespace
