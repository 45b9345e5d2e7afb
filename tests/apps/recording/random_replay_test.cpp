// A person works at random in the window of each dialog, with real keys and mouse buttons, and is
// recorded. Played without a window, the script gives the same outcome.
//
// KVGUICTL_RECORDED_RUNS says how many there are, KVGUICTL_RECORDED_FIRST the number of the first,
// and KVGUICTL_RECORDED_SCRIPTS a folder for the scripts that give another outcome.

#include "base/numbers.h"
#include "random_person.h"
#include "same_ground.h"

namespace {

using adaptors::Json;

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

class RandomPerson : public test::SameGround, public testing::WithParamInterface<std::string> {
protected:
    static const adaptors::Adaptor& Dialog() { return *adaptors::Find(GetParam()); }

    Json Record(int number) const {
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
        told["gave up"] = person.GaveUp();
        return told;
    }
    std::vector<QString> Files() const {
        const QString drive = QString::fromStdString(Drive());
        return {drive + QStringLiteral("/list.txt"), drive + QStringLiteral("/blocks.txt"),
                drive + QStringLiteral("/new.txt")};
    }

    /// What went wrong in a run, "" for nothing.
    std::string Fault(int number) {
        const test::Ended seen = Apart([&] { return Record(number); });
        if (seen.status != 0 || !seen.told.is_object())
            return "the window ended with " + std::to_string(seen.status);
        const Json& script = seen.told.at("script");
        const std::string deeds = "\n" + script.at("user").dump();
        if (seen.told.at("gave up")) return "the window did not close" + deeds;

        const test::Ended played = Apart([&] { return Play(Dialog(), script); });
        const bool same = played.told.is_object() &&
                          played.told.value("outcome", Json()) == seen.told.at("outcome");
        if (same) return {};
        Keep(GetParam() + "-" + std::to_string(number), script);
        if (!played.told.is_object())
            return "played, it ended with " + std::to_string(played.status) + deeds;
        if (played.told.contains("mismatch"))
            return "played: " + played.told.at("mismatch").get<std::string>() + deeds;
        return "played, it differs: " +
               Json::diff(seen.told.at("outcome"), played.told.at("outcome")).dump() + deeds;
    }
};

TEST_P(RandomPerson, RecordedAndPlayedHasTheSameOutcome) {
    const int first = NumberOf("KVGUICTL_RECORDED_FIRST", 1);
    const int runs = NumberOf("KVGUICTL_RECORDED_RUNS", 2);
    int failed = 0;
    for (int number = first; number < first + runs; ++number) {
        const std::string fault = Fault(number);
        if (fault.empty()) continue;
        ++failed;
        ADD_FAILURE() << "number " << number << ": " << fault;
    }
    EXPECT_EQ(failed, 0) << "of " << runs << " runs";
}

std::vector<std::string> Classes() {
    std::vector<std::string> classes;
    for (const adaptors::Adaptor* each : adaptors::All())
        classes.push_back(each->className);
    return classes;
}

INSTANTIATE_TEST_SUITE_P(, RandomPerson, testing::ValuesIn(Classes()),
                         [](const auto& each) { return each.param; });

}  // namespace
