// Each script of the folder, run end to end. NAME.json is the script; NAME.expected.json tells
// - "run": the dialog's class; "options": what else stands on the command line;
// - "db": the server text, where it is not that of the sample database;
// - "files": files that are there before, by name; "written": files as they are in the end;
// - "exit": the exit code;
// - "out": what has to stand in the outcome. Objects may hold more than is told; of "controls",
//   those with the told ids are looked at;
// - "error": parts of what is said, in their order, where there is no outcome.
// In both, "${folder}" stands for a folder of the test's own.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "support/temp_folder.h"
#include "window/text.h"

namespace {

using Json = nlohmann::ordered_json;
namespace fs = std::filesystem;

constexpr std::string_view kExpected = ".expected.json";

std::string ReadFile(const fs::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(KVDLG_SCRIPTS)) {
        const std::string name = entry.path().filename().string();
        if (name.ends_with(kExpected)) {
            names.push_back(name.substr(0, name.size() - kExpected.size()));
        }
    }
    std::ranges::sort(names);
    return names;
}

const Json* ControlWithId(const Json& controls, const Json& id) {
    const auto at = std::find_if(controls.begin(), controls.end(),
                                 [&](const Json& control) { return control.at("id") == id; });
    return at == controls.end() ? nullptr : &*at;
}

/// Adds a line for each place where `came` lacks what `expected` tells.
void Compare(const Json& expected, const Json& came, const std::string& where,
             std::string& faults) {
    const auto fault = [&](const std::string& words) { faults += where + ": " + words + "\n"; };
    if (expected.is_object() && came.is_object()) {
        for (const auto& [key, value] : expected.items()) {
            if (!came.contains(key)) {
                fault("lacks \"" + key + "\"");
            } else {
                Compare(value, came.at(key), where + "/" + key, faults);
            }
        }
    } else if (expected.is_array() && came.is_array() && where.ends_with("/controls")) {
        for (const Json& control : expected) {
            const Json* found = ControlWithId(came, control.at("id"));
            const std::string place = where + "/" + control.at("id").dump();
            Compare(control, found ? *found : Json(), place, faults);
        }
    } else if (expected.is_array() && came.is_array() && expected.size() == came.size()) {
        for (std::size_t i = 0; i < expected.size(); ++i) {
            Compare(expected[i], came[i], where + "/" + std::to_string(i), faults);
        }
    } else if (expected != came) {
        fault("expected " + expected.dump() + ", and " + came.dump() + " came");
    }
}

class KvdlgScript : public testing::TestWithParam<std::string> {
protected:
    /// The text of a file of the folder, with this test's own folder in it.
    std::string Text(const std::string& name) const {
        const std::string inJson = kv::ReplaceAll(folder_.Dialog(), "\\", "\\\\");
        return kv::ReplaceAll(ReadFile(fs::path(KVDLG_SCRIPTS) / name), "${folder}", inJson);
    }

    static std::string Quoted(const std::string& argument) {
        return "'" + kv::ReplaceAll(argument, "'", "'\\''") + "'";
    }

    std::string CommandLine(const Json& expected) const {
        const char* sample = std::getenv("KVGUICTL_SAMPLE_DB");
        const std::string database =
            expected.value("db", std::string("sqlite:") + (sample ? sample : ""));
        std::string line = Quoted(KVDLG_PROGRAM) + " run " +
                           Quoted(expected.at("run").get<std::string>()) + " --script " +
                           Quoted(folder_.Native("kvdlg.script")) + " --db " + Quoted(database);
        const Json options = expected.value("options", Json::array());
        for (const auto& option : options) {
            line += " " + Quoted(option.get<std::string>());
        }
        return line + " >" + Quoted(folder_.Native("kvdlg.out")) + " 2>" +
               Quoted(folder_.Native("kvdlg.error"));
    }

    test::TempFolder folder_;
};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(KvdlgScript);

INSTANTIATE_TEST_SUITE_P(, KvdlgScript, testing::ValuesIn(Names()),
                         [](const auto& each) { return each.param; });

TEST_P(KvdlgScript, EndsAsExpected) {
    const Json expected = Json::parse(Text(GetParam() + std::string(kExpected)));
    folder_.Write("kvdlg.script", Text(GetParam() + ".json"));
    const Json files = expected.value("files", Json::object());
    for (const auto& [name, content] : files.items()) {
        folder_.Write(name, content.get<std::string>());
    }

    const int status = std::system(CommandLine(expected).c_str());
    const std::string error = folder_.Read("kvdlg.error");
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), expected.at("exit").get<int>()) << error;

    if (expected.contains("out")) {
        const Json came = Json::parse(folder_.Read("kvdlg.out"), nullptr, false);
        ASSERT_FALSE(came.is_discarded()) << folder_.Read("kvdlg.out") << error;
        std::string faults;
        Compare(expected.at("out"), came, "", faults);
        EXPECT_EQ(faults, "");
    } else {
        EXPECT_EQ(folder_.Read("kvdlg.out"), "");
        std::size_t at = 0;
        for (const Json& part : expected.at("error")) {
            at = error.find(part.get<std::string>(), at);
            ASSERT_NE(at, std::string::npos) << part << " is not told in:\n" << error;
        }
    }
    const Json written = expected.value("written", Json::object());
    for (const auto& [name, content] : written.items()) {
        EXPECT_TRUE(folder_.Has(name)) << name;
        EXPECT_EQ(folder_.Read(name), content.get<std::string>()) << name;
    }
}

}  // namespace
