// Each script of kvdlg is played and recorded; what was recorded plays with the same outcome.

#include "same_ground.h"
#include "script_files.h"

namespace {

using adaptors::Json;

class RecordedScript : public test::SameGround, public testing::WithParamInterface<std::string> {
protected:
    RecordedScript()
        : expected_(Json::parse(test::ScriptFile(GetParam() + std::string(test::kExpected)))) {}

    Json Script() const {
        const std::string text =
            kv::ReplaceAll(test::ScriptFile(GetParam() + ".json"), "${folder}", "C:\\\\work");
        return Json::parse(kv::ReplaceAll(text, "${native}", Drive() + "/work"));
    }
    const adaptors::Adaptor& Dialog() const {
        return *adaptors::Find(expected_.at("run").get<std::string>());
    }
    void WriteFiles() const {
        std::filesystem::create_directories(Drive() + "/work");
        const Json files = expected_.value("files", Json::object());
        for (const auto& [name, content] : files.items())
            folder_.Write("drive/work/" + name, content.get<std::string>());
    }

    Json Record() {
        WriteFiles();
        Json script;
        adaptors::Adaptor recorded = Dialog();
        recorded.run = [&](adaptors::Run& run) {
            const recording::Recording recording(run.Inputs());
            Dialog().run(run);
            script = recording.Script();
        };
        Json told = Play(recorded, Script());
        told["script"] = script;
        return told;
    }
    Json PlayRecorded(const Json& script) {
        WriteFiles();
        return Play(Dialog(), script);
    }

    Json expected_;
};

/// Snapshots are no deeds.
Json WithoutSnapshots(Json outcome) {
    Json windows = Json::array();
    for (const Json& window : outcome.at("windows"))
        if (!window.contains("snapshot")) windows.push_back(window);
    outcome["windows"] = windows;
    return outcome;
}

TEST_P(RecordedScript, PlaysWithTheSameOutcome) {
    const test::Ended seen = Apart([&] { return Record(); });
    ASSERT_TRUE(seen.told.is_object()) << seen.status;
    ASSERT_FALSE(seen.told.contains("mismatch")) << seen.told.at("mismatch");
    const Json& script = seen.told.at("script");
    const test::Ended played = Apart([&] { return PlayRecorded(script); });
    ASSERT_TRUE(played.told.is_object()) << played.status;
    ASSERT_FALSE(played.told.contains("mismatch")) << played.told.at("mismatch") << script.dump(1);
    EXPECT_EQ(WithoutSnapshots(seen.told.at("outcome")).dump(1), played.told.at("outcome").dump(1))
        << script.dump(1);
}

/// Those that play to their end, need nothing of the command line, and in which all that is done
/// is a person's: what a host calls meanwhile is none.
std::vector<std::string> Scripts() {
    std::vector<std::string> names = test::ScriptNames();
    std::erase_if(names, [](const std::string& name) {
        const Json expected = Json::parse(test::ScriptFile(name + std::string(test::kExpected)));
        const bool ends = expected.at("exit") == 0 || expected.at("exit") == 1;
        return !ends || expected.contains("options") || expected.contains("db") ||
               test::ScriptFile(name + ".json").find("{\"call\":") != std::string::npos;
    });
    return names;
}

INSTANTIATE_TEST_SUITE_P(, RecordedScript, testing::ValuesIn(Scripts()),
                         [](const auto& each) { return each.param; });

}  // namespace
