// What becomes of a failure: each script of kvdlg is played again and again, each time with the
// next one of its calls to the database, or of its calls to a file, failing. The person is told, or
// the outcome is what it would have been; no crash, no half of a file, no silent loss.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "base/file_fault.h"
#include "base/text.h"
#include "frame/kvdbkvn/database_fault.h"
#include "frame/module.h"
#include "kvdlg/play.h"
#include "kvdlg/report.h"
#include "script_files.h"
#include "support/temp_folder.h"

namespace {

using Json = kvdlg::Json;

constexpr unsigned kMostSeconds = 120;

/// Which calls can fail, and how one of them is made to.
struct Faults {
    const char* name;
    void (*fail)(std::function<bool()> asked);
};
constexpr Faults kFaults[] = {
    {"Database",
     [](std::function<bool()> asked) {
         kv::db::SetDatabaseFault([asked](std::string_view) { return asked(); });
     }},
    {"File", [](std::function<bool()> asked) { kv::SetFileFault(asked); }},
};

/// What a run leaves behind.
struct Ended {
    int status = 0;
    /// "calls", how many there were; "mismatch", what did not fit the script, such as a message box
    /// that it does not expect; "messages" and "outcome" where it fitted.
    Json told;
    std::string log;
    std::map<std::string, std::string> files;
};

void PrintTo(const Faults& faults, std::ostream* out) {
    *out << faults.name;
}

std::string InJson(const std::string& path) {
    return kv::ReplaceAll(path, "\\", "\\\\");
}

/// Names of what a run writes beside its files.
constexpr const char* kTold = "told.json";
constexpr const char* kLog = "log.txt";

using Case = std::tuple<std::string, Faults>;

class AFailure : public testing::TestWithParam<Case> {
protected:
    AFailure()
        : expected_(Json::parse(test::ScriptFile(Script() + std::string(test::kExpected)))) {}

    static std::string Script() { return std::get<0>(GetParam()); }
    static const Faults& Kind() { return std::get<1>(GetParam()); }

    /// Plays the script in a process of its own, the call number `failing` failing, 0 for none.
    Ended Play(int failing) const {
        test::TempFolder folder;
        const char* sample = std::getenv("KVGUICTL_SAMPLE_DB");
        folder.Set("KVGUICTL_DB", std::string("sqlite:") + (sample ? sample : ""));
        const Json files = expected_.value("files", Json::object());
        for (const auto& [name, content] : files.items())
            folder.Write(name, content.get<std::string>());

        const pid_t child = fork();
        if (child == 0) {
            alarm(kMostSeconds);
            PlayHere(folder, failing);
            std::_Exit(0);
        }
        Ended ended;
        waitpid(child, &ended.status, 0);
        // Each run has a folder of another name.
        const std::string told =
            kv::ReplaceAll(folder.Read(kTold), InJson(folder.Dialog()), "${folder}");
        ended.told = Json::parse(told, nullptr, false);
        ended.log = folder.Read(kLog);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Native())) {
            const auto name = std::filesystem::relative(entry.path(), folder.Native()).string();
            if (entry.is_regular_file() && name != kTold && name != kLog)
                ended.files[name] = folder.Read(name);
        }
        return ended;
    }

    Json Before() const { return expected_.value("files", Json::object()); }
    std::string ClassName() const { return expected_.at("run"); }

private:
    void PlayHere(const test::TempFolder& folder, int failing) const {
        int calls = 0;
        const auto tell = [&](Json told) {
            Kind().fail(nullptr);
            told["calls"] = calls;
            folder.Write(kTold, told.dump(-1, ' ', false, Json::error_handler_t::replace));
        };
        try {
            const std::string text = kv::ReplaceAll(test::ScriptFile(Script() + ".json"),
                                                    "${folder}", InJson(folder.Dialog()));
            const kvdlg::Script script{text, Json::parse(text)};
            const adaptors::Adaptor& adaptor = *adaptors::Find(ClassName());
            adaptors::Run run(script.json.value("inputs", Json::object()));
            kvdlg::Records records;
            InitControlDll();
            Kind().fail([&calls, failing] { return ++calls == failing; });
            kvdlg::Play(
                adaptor, run, script, records, [](kv::Node&) {},
                [&](const std::string& words) {
                    tell({{"mismatch", words}});
                    std::_Exit(0);
                });
            tell({{"messages", records.messages},
                  {"outcome", run.outcome},
                  {"result", run.ResultName()}});
        } catch (const std::exception& e) {
            tell({{"mismatch", e.what()}});
        }
    }

    Json expected_;
};

/// Whether a message box opened where the script has none, or another. What opened stands behind
/// what was expected.
bool SaysThatAMessageOpened(const std::string& mismatch) {
    const std::size_t at = mismatch.rfind("the message \"");
    return at != std::string::npos && !mismatch.substr(0, at).ends_with("expected ") &&
           mismatch.find("\" opened", at) != std::string::npos;
}

/// Whether the person saw words that the run without a failure does not show.
bool IsToldOnScreen(const Ended& ended, const Ended& whole) {
    if (ended.told.contains("mismatch"))
        return SaysThatAMessageOpened(ended.told["mismatch"].get<std::string>());
    return ended.told["messages"].size() > whole.told["messages"].size();
}

bool IsAsIfNothingFailed(const Ended& ended, const Ended& whole) {
    return !ended.told.contains("mismatch") && ended.told["outcome"] == whole.told["outcome"] &&
           ended.told["messages"] == whole.told["messages"] &&
           ended.told["result"] == whole.told["result"] && ended.files == whole.files;
}

/// The combo boxes of the bar tell the log.
bool IsToldByItsLog(const std::string& className, const Ended& ended, const Ended& whole) {
    return className == "CVZABEBar" && ended.log.size() > whole.log.size();
}

TEST_P(AFailure, IsToldOrDoesNoHarm) {
    const Ended whole = Play(0);
    ASSERT_EQ(whole.status, 0);
    ASSERT_TRUE(whole.told.contains("outcome")) << whole.told.dump();
    const Json before = Before();

    const int calls = whole.told["calls"].get<int>();
    for (int failing = 1; failing <= calls; ++failing) {
        SCOPED_TRACE("call " + std::to_string(failing) + " fails");
        const Ended ended = Play(failing);
        ASSERT_EQ(ended.status, 0) << "the program ended by itself";
        ASSERT_TRUE(ended.told.is_object());
        EXPECT_GE(ended.told["calls"].get<int>(), failing);
        EXPECT_TRUE(IsToldOnScreen(ended, whole) || IsAsIfNothingFailed(ended, whole) ||
                    IsToldByItsLog(ClassName(), ended, whole))
            << "nobody is told, and there came " << ended.told.dump() << " in the place of "
            << whole.told.dump();
        for (const auto& [name, content] : ended.files) {
            const bool old = before.contains(name) && before[name] == content;
            const bool written = whole.files.contains(name) && whole.files.at(name) == content;
            EXPECT_TRUE(old || written) << name << " is left with \"" << content << "\"";
        }
        for (const auto& [name, content] : before.items())
            EXPECT_TRUE(ended.files.contains(name) || !whole.files.contains(name)) << name;
    }
}

TEST(AMismatch, TellsThePersonOnlyWhereAMessageOpened) {
    for (const char* told : {"the message \"A\" opened, and no scene is left",
                             "line 3: expected the window \"B\", and the message \"A\" opened",
                             "expected the message \"B\", and the message \"A\" opened"})
        EXPECT_TRUE(SaysThatAMessageOpened(told)) << told;
    for (const char* silent : {"expected the message \"A\", and the window B \"C\" opened",
                               "the window B \"C\" opened, and no scene is left",
                               "the run is over, and 1 scene was not taken: expected what line 3 "
                               "tells, {\"message\":\"A\"}"})
        EXPECT_FALSE(SaysThatAMessageOpened(silent)) << silent;
}

/// A trace changes nothing of what is played.
bool NeedsOptions(const Json& expected) {
    const Json options = expected.value("options", Json::array());
    return std::ranges::any_of(
        options, [](const Json& option) { return option.get<std::string>() != "--trace"; });
}

/// Those that play to their end, and need nothing of the command line.
std::vector<std::string> PlayableScripts() {
    std::vector<std::string> names = test::ScriptNames();
    std::erase_if(names, [](const std::string& name) {
        const Json expected = Json::parse(test::ScriptFile(name + std::string(test::kExpected)));
        const bool ends = expected.at("exit") == 0 || expected.at("exit") == 1;
        return !ends || NeedsOptions(expected) || expected.contains("db");
    });
    return names;
}

INSTANTIATE_TEST_SUITE_P(
    , AFailure, testing::Combine(testing::ValuesIn(PlayableScripts()), testing::ValuesIn(kFaults)),
    [](const auto& each) { return std::get<0>(each.param) + std::get<1>(each.param).name; });

}  // namespace
