// Each script of the folder, run end to end. NAME.json is the script; NAME.expected.json tells
// - "run": the dialog's class; "options": what else stands on the command line;
// - "db": the server text, where it is not that of the sample database;
// - "files": files that are there before, by name; "written": files as they are in the end;
// - "exit": the exit code;
// - "out": what has to stand in the outcome. Objects may hold more than is told; of "controls",
//   those with the told ids are looked at;
// - "error": parts of what is said, in their order, where there is no outcome.
// In both, "${folder}" stands for a folder of the test's own as dialogs write it, "${native}" for
// it as the machine writes it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "kvdlg_program.h"
#include "script_files.h"

namespace {

using Json = test::Kvdlg::Json;

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
        const std::string inJson = kv::ReplaceAll(kvdlg_.folder.Dialog(), "\\", "\\\\");
        const std::string text = kv::ReplaceAll(test::ScriptFile(name), "${folder}", inJson);
        return kv::ReplaceAll(text, "${native}", kvdlg_.folder.Native(""));
    }

    test::Kvdlg kvdlg_;
};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(KvdlgScript);

INSTANTIATE_TEST_SUITE_P(, KvdlgScript, testing::ValuesIn(test::ScriptNames()),
                         [](const auto& each) { return each.param; });

TEST_P(KvdlgScript, EndsAsExpected) {
    const Json expected = Json::parse(Text(GetParam() + std::string(test::kExpected)));
    const Json files = expected.value("files", Json::object());
    for (const auto& [name, content] : files.items()) {
        kvdlg_.folder.Write(name, content.get<std::string>());
    }
    std::vector<std::string> options = expected.value("options", std::vector<std::string>());
    if (expected.contains("db")) {
        options.insert(options.end(), {"--db", expected.at("db").get<std::string>()});
    }

    const auto ended = kvdlg_.Play(expected.at("run"), Text(GetParam() + ".json"), options);
    EXPECT_EQ(ended.exit, expected.at("exit").get<int>()) << ended.error;

    if (expected.contains("out")) {
        ASSERT_FALSE(ended.Printed().is_discarded()) << ended.out << ended.error;
        std::string faults;
        Compare(expected.at("out"), ended.Printed(), "", faults);
        EXPECT_EQ(faults, "");
    } else {
        EXPECT_EQ(ended.out, "");
        std::size_t at = 0;
        for (const Json& part : expected.at("error")) {
            at = ended.error.find(part.get<std::string>(), at);
            ASSERT_NE(at, std::string::npos) << part << " is not told in:\n" << ended.error;
        }
    }
    const Json written = expected.value("written", Json::object());
    for (const auto& [name, content] : written.items()) {
        EXPECT_TRUE(kvdlg_.folder.Has(name)) << name;
        EXPECT_EQ(kvdlg_.folder.Read(name), content.get<std::string>()) << name;
    }
}

}  // namespace
