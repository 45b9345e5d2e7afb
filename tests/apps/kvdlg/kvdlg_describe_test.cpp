// Whoever writes a script has nothing but "kvdlg describe" to go by.

#include <gmock/gmock.h>

#include <map>
#include <set>

#include "kvdlg_program.h"
#include "script_files.h"

namespace {

using test::Kvdlg;
using Json = Kvdlg::Json;

/// A script of the folder that runs to its end, and what it gave.
struct Played {
    std::string name;
    Json script;
    Json expected;
};

/// Those of each class.
std::map<std::string, std::vector<Played>> PlayedScripts() {
    std::map<std::string, std::vector<Played>> played;
    for (const std::string& name : test::ScriptNames()) {
        Json expected = Json::parse(test::ScriptFile(name + std::string(test::kExpected)));
        if (!expected.contains("out")) continue;
        Json script = Json::parse(test::ScriptFile(name + ".json"));
        const std::string className = expected.at("run");
        played[className].push_back({name, std::move(script), std::move(expected)});
    }
    return played;
}

std::set<std::string> NamesIn(const Json& list, const char* key) {
    std::set<std::string> names;
    for (const Json& each : list)
        names.insert(each.at(key).get<std::string>());
    return names;
}

std::set<int> IdsIn(const Json& controls) {
    std::set<int> ids;
    for (const Json& each : controls)
        ids.insert(each.at("id").get<int>());
    return ids;
}

/// The ids that the scenes of the window act on.
std::set<int> IdsActedOn(const Json& script, const std::string& className) {
    std::set<int> ids;
    for (const Json& scene : script.at("user")) {
        if (scene.value("window", "") != className) continue;
        for (const Json& action : scene.value("do", Json::array())) {
            const Json& value = action.begin().value();
            const Json& id = value.is_array() ? value.at(0) : value;
            if (id.is_number_integer() && id != 0) ids.insert(id.get<int>());
        }
    }
    return ids;
}

/// Whether a text names a word, and not as a part of another one.
bool Names(const std::string& text, const std::string& word) {
    const auto isLetter = [&](std::size_t at) {
        return at < text.size() && std::isalnum(static_cast<unsigned char>(text[at]));
    };
    for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
        if ((at == 0 || !isLetter(at - 1)) && !isLetter(at + word.size())) return true;
    }
    return false;
}

TEST(KvdlgDescribe, EveryDialogHasAScriptThatWasWrittenByIt) {
    const auto played = PlayedScripts();
    const auto classes = Kvdlg().Classes();
    EXPECT_THAT(classes, testing::Contains("CVZABEBar"));
    for (const std::string& className : classes)
        EXPECT_TRUE(played.contains(className)) << className;
}

TEST(KvdlgDescribe, TellsOfEachInputAndControlThatScriptsUse) {
    const Kvdlg kvdlg;
    for (const auto& [className, scripts] : PlayedScripts()) {
        const Json described = kvdlg.Describe(className);
        const auto inputs = NamesIn(described.at("inputs"), "name");
        const auto ids = IdsIn(described.at("controls"));
        for (const Played& played : scripts) {
            const Json given = played.script.value("inputs", Json::object());
            for (const auto& [name, value] : given.items())
                EXPECT_TRUE(inputs.contains(name)) << played.name << ": " << name;
            for (const int id : IdsActedOn(played.script, className))
                EXPECT_TRUE(ids.contains(id)) << played.name << ": " << id;
        }
    }
}

TEST(KvdlgDescribe, ItsOwnScriptOpensTheDialogAndItsOutcomeIsWhatItReturns) {
    const Kvdlg kvdlg;
    for (const std::string& className : kvdlg.Classes()) {
        const Json described = kvdlg.Describe(className);
        const auto ended = kvdlg.Play(className, described.at("script").dump());
        const Json printed = ended.Printed();
        ASSERT_FALSE(printed.is_discarded()) << className << ": " << ended.error;
        EXPECT_EQ(ended.exit, printed.at("result") == "IDCANCEL" ? 1 : 0) << className;
        EXPECT_EQ(printed.at("windows").at(0).at("snapshot"), "start");
        EXPECT_FALSE(printed.at("outcome").empty()) << className;
        for (const auto& [name, value] : printed.at("outcome").items())
            EXPECT_TRUE(Names(described.at("returns"), name)) << className << ": " << name;
    }
}

TEST(KvdlgDescribe, ControlsOfTheOpenDialogAreThoseDescribed) {
    const Kvdlg kvdlg;
    for (const std::string& className : kvdlg.Classes()) {
        const Json described = kvdlg.Describe(className);
        const auto ended = kvdlg.Play(className, described.at("script").dump());
        const Json printed = ended.Printed();
        const Json& shown = printed.at("windows").at(0).at("controls");
        const Json& told = described.at("controls");
        ASSERT_EQ(shown.size(), told.size()) << className;
        for (std::size_t i = 0; i < told.size(); ++i) {
            EXPECT_EQ(shown[i].at("id"), told[i].at("id")) << className;
            EXPECT_EQ(shown[i].at("kind"), told[i].at("kind")) << className << told[i];
        }
    }
}

TEST(KvdlgDescribe, FieldsGoByTheLabelAheadOfThem) {
    const Json controls = Kvdlg().Describe("CVZABEBar").at("controls");
    std::map<int, std::string> labels;
    for (const Json& control : controls) {
        if (control.contains("label")) labels[control.at("id")] = control.at("label");
    }
    const std::map<int, std::string> expected{
        {13070, "Area"}, {13071, "Blk/Ext"}, {29083, "Layer"}};
    EXPECT_EQ(labels, expected);
}

std::map<int, std::string> KeysOf(const char* className) {
    std::map<int, std::string> keys;
    const Json controls = Kvdlg().Describe(className).at("controls");
    for (const Json& control : controls) {
        if (control.contains("key")) keys[control.at("id")] = control.at("key");
    }
    return keys;
}

TEST(KvdlgDescribe, TellsTheKeysThatReachTheControls) {
    const std::map<int, std::string> expected{{1191, "Alt+F"}, {1192, "Alt+S"},  {1193, "Alt+A"},
                                              {1188, "Alt+D"}, {1189, "Alt+R"},  {1194, "Alt+I"},
                                              {1195, "Alt+E"}, {29299, "Alt+L"}, {1043, "Alt+T"},
                                              {1, "Alt+O"},    {1190, "Alt+C"},  {2, "Alt+N"}};
    EXPECT_EQ(KeysOf("CKvGuiListSel"), expected);
    EXPECT_TRUE(KeysOf("CVZABEBar").empty()) << "a bar has none";
}

TEST(KvdlgDescribe, TellsTheKeysOfADialogWithoutACaptionToo) {
    const std::map<int, std::string> expected{{29189, "Alt+C"}, {29183, "Alt+D"}, {29188, "Alt+F"},
                                              {1, "Alt+O"},     {29184, "Alt+T"}, {2, "Alt+A"}};
    EXPECT_EQ(KeysOf("CFilePickCtrl"), expected);
}

TEST(KvdlgDescribe, TellsWhatAControlWithoutATextIsFor) {
    const Json controls = Kvdlg().Describe("CKvGuiListSel").at("controls");
    for (const Json& control : controls) {
        const bool asked = control.at("id") == 29300;
        EXPECT_EQ(control.value("tip", ""), asked ? "Take the list from a file" : "");
    }
}

TEST(KvdlgDescribe, FieldsWithArrowsGoByTheirUnitToo) {
    const Json controls = Kvdlg().Describe("CKvGuiDMSDlg").at("controls");
    std::map<int, std::string> labels;
    for (const Json& control : controls) {
        if (control.at("kind") == "edit") labels[control.at("id")] = control.at("label");
    }
    const std::map<int, std::string> expected{
        {23071, "Maximum Degrees"}, {23073, "Maximum Minutes"}, {23075, "Maximum Seconds"},
        {23099, "Minimum Degrees"}, {23102, "Minimum Minutes"}, {23104, "Minimum Seconds"}};
    EXPECT_EQ(labels, expected);
}

}  // namespace
