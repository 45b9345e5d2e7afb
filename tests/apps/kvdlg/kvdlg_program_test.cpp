#include "kvdlg_program.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/file_size_limit.h"

namespace {

using test::Kvdlg;
using testing::HasSubstr;

constexpr const char* kStatus = "CKvGuiPipeStatusDlg";
constexpr const char* kPickAndEnd =
    R"({"inputs": {"text": "ACT"}, "user": [{"window": "CKvGuiPipeStatusDlg",
        "do": [{"click": 1}]}]})";

/// Width and height in the head of a PNG file; 0 for what is none.
std::pair<int, int> SizeOfPng(const std::string& bytes) {
    constexpr std::string_view kHead = "\x89PNG\r\n\x1a\n";
    if (!bytes.starts_with(kHead) || bytes.size() < 24) return {0, 0};
    const auto number = [&](std::size_t at) {
        int value = 0;
        for (std::size_t i = at; i < at + 4; ++i)
            value = value * 256 + static_cast<unsigned char>(bytes[i]);
        return value;
    };
    return {number(16), number(20)};
}

TEST(KvdlgProgram, HelpTeachesTheCommandsAndTheScript) {
    const Kvdlg kvdlg;
    const auto help = kvdlg.Run({"--help"});
    EXPECT_EQ(help.exit, 0);
    for (const char* words : {"list", "describe", "run", "Exit codes"})
        EXPECT_THAT(help.out, HasSubstr(words));
    const auto run = kvdlg.Run({"run", "--help"});
    EXPECT_EQ(run.exit, 0);
    for (const char* action : {"click", "type", "key", "paste", "select", "doubleclick", "drop",
                               "focus", "close", "call", "snapshot"}) {
        EXPECT_THAT(run.out, HasSubstr(std::string("{\"") + action + "\": "));
    }
    for (const char* scene : {"window", "message", "file", "print", "pump"})
        EXPECT_THAT(run.out, HasSubstr(std::string("{\"") + scene + "\": "));
}

TEST(KvdlgProgram, WrongUseEndsWith2) {
    const Kvdlg kvdlg;
    EXPECT_EQ(kvdlg.Run({}).exit, 2);
    EXPECT_EQ(kvdlg.Run({"run"}).exit, 2);
    EXPECT_EQ(kvdlg.Run({"run", kStatus, "--no-such-option"}).exit, 2);
    EXPECT_EQ(kvdlg.Run({"describe", "CNoDialog"}).exit, 2);
}

TEST(KvdlgProgram, AFileThatCannotBeReadEndsWith3) {
    const Kvdlg kvdlg;
    for (const char* option : {"--script", "--input"}) {
        const auto ended = kvdlg.Run({"run", kStatus, option, kvdlg.folder.Native("none.json")});
        EXPECT_EQ(ended.exit, 3);
        EXPECT_THAT(ended.error, HasSubstr("none.json cannot be read"));
    }
}

TEST(KvdlgProgram, OutputThatCannotBeWrittenEndsWith3) {
    const Kvdlg kvdlg;
    const std::pair<const char*, const char*> outputs[] = {
        {">/dev/full", "No space left on device"}, {">&-", "Bad file descriptor"}};
    for (const auto& [output, fault] : outputs) {
        SCOPED_TRACE(output);
        const std::string told =
            std::string("kvdlg: The output cannot be written: ") + fault + "\n";
        for (const auto& ended :
             {kvdlg.Run({"list"}, output), kvdlg.Run({"describe", kStatus}, output),
              kvdlg.Run({"--help"}, output), kvdlg.Run({"run", "--help"}, output),
              kvdlg.Play(kStatus, kPickAndEnd, {}, output)}) {
            EXPECT_EQ(ended.exit, 3);
            EXPECT_EQ(ended.error, told);
        }
    }
}

TEST(KvdlgProgram, TooDeepAScriptIsRefused) {
    const Kvdlg kvdlg;
    const std::string deep(1'000'000, '[');
    const auto ended = kvdlg.Play(kStatus, deep + std::string(deep.size(), ']'));
    EXPECT_EQ(ended.exit, 2);
    EXPECT_THAT(ended.error, HasSubstr("too many lists and objects inside each other"));
}

TEST(KvdlgProgram, InputsOfAFileGoOverThoseOfTheScript) {
    const Kvdlg kvdlg;
    kvdlg.folder.Write("inputs.json", R"({"inputs": {"text": "REM"}})");
    const auto ended =
        kvdlg.Play(kStatus, kPickAndEnd, {"--input", kvdlg.folder.Native("inputs.json")});
    EXPECT_EQ(ended.exit, 0) << ended.error;
    EXPECT_EQ(ended.Printed().at("outcome").at("text"), "REM");
}

TEST(KvdlgProgram, StandardInputIsAScriptOrTheInputs) {
    const Kvdlg kvdlg;
    kvdlg.folder.Write("script.json", kPickAndEnd);
    kvdlg.folder.Write("inputs.json", R"({"text": "REM"})");
    const std::string script = kvdlg.folder.Native("script.json");
    const auto from = [&](const char* file) { return "<'" + kvdlg.folder.Native(file) + "'"; };

    const auto played = kvdlg.Run({"run", kStatus, "--script", "-"}, from("script.json"));
    EXPECT_EQ(played.exit, 0) << played.error;
    EXPECT_EQ(played.Printed().at("outcome").at("text"), "ACT");
    const auto given =
        kvdlg.Run({"run", kStatus, "--script", script, "--input", "-"}, from("inputs.json"));
    EXPECT_EQ(given.exit, 0) << given.error;
    EXPECT_EQ(given.Printed().at("outcome").at("text"), "REM");

    const auto both =
        kvdlg.Run({"run", kStatus, "--script", "-", "--input", "-"}, from("script.json"));
    EXPECT_EQ(both.exit, 2);
    EXPECT_THAT(both.error, HasSubstr("not both"));
    const auto empty = kvdlg.Run({"run", kStatus, "--script", "-"}, "</dev/null");
    EXPECT_EQ(empty.exit, 2);
    EXPECT_THAT(empty.error, HasSubstr("no JSON"));
    const auto closed = kvdlg.Run({"run", kStatus, "--script", "-"}, "</");
    EXPECT_EQ(closed.exit, 3);
    EXPECT_EQ(closed.error, "kvdlg: Standard input cannot be read\n");
}

TEST(KvdlgProgram, AnInputIsSetOnTheCommandLine) {
    const Kvdlg kvdlg;
    kvdlg.folder.Write("inputs.json", R"({"text": "REM"})");
    const auto ended = kvdlg.Play(
        kStatus, kPickAndEnd,
        {"--input", kvdlg.folder.Native("inputs.json"), "--set", "text=ABN", "--print", "text"});
    EXPECT_EQ(ended.exit, 0) << ended.error;
    EXPECT_EQ(ended.out, "ABN\n");

    const auto number =
        kvdlg.Play("CKvGuiSizingDlg", R"({"user": [{"window": "", "do": [{"click": 1}]}]})",
                   {"--set", "bounds=[0, 40000, 0, 20000]", "--set", "scale=2000", "--set",
                    "unit=feet", "--print", "scale"});
    EXPECT_EQ(number.exit, 0) << number.error;
    EXPECT_EQ(number.out, "2000\n");
}

constexpr const char* kList = "CKvGuiListSel";
constexpr const char* kListAndCancel =
    R"({"inputs": {"column": "lessee", "table": "NORVADON.gulf_mexico_lease", "text": "<LIST>"},
        "user": [{"window": "CKvGuiListSel", "do": [{"click": 2}]}]})";

TEST(KvdlgProgram, AListIsSetItemByItem) {
    const auto ended =
        Kvdlg().Play(kList, kListAndCancel, {"--set", "values=A = B", "--set", "values=C,D"});
    EXPECT_EQ(ended.exit, 1) << ended.error;
    const Kvdlg::Json items{"A = B", "C,D"};
    EXPECT_EQ(ended.Printed().at("outcome").at("values"), items);
}

TEST(KvdlgProgram, WhatCannotBeSetIsRefusedByName) {
    const Kvdlg kvdlg;
    const std::pair<const char*, const char*> wrong[] = {
        {"text", "--set takes NAME=VALUE, and not \"text\""},
        {"txt=ACT", "takes no input \"txt\"; it takes: values, text"},
    };
    for (const auto& [setting, words] : wrong) {
        const auto ended = kvdlg.Play(kStatus, kPickAndEnd, {"--set", setting});
        EXPECT_EQ(ended.exit, 2);
        EXPECT_THAT(ended.error, HasSubstr(words));
    }
    const auto ended = kvdlg.Play("CKvGuiSizingDlg", "{}", {"--set", "scale=many"});
    EXPECT_EQ(ended.exit, 2);
    EXPECT_THAT(ended.error, HasSubstr("The input \"scale\" takes a number, and not many"));
}

TEST(KvdlgProgram, OneValueIsPrintedByItself) {
    const Kvdlg kvdlg;
    const auto printed = [&](const char* option, const char* key) {
        return kvdlg
            .Play(kList, kListAndCancel,
                  {"--set", "values=two\nlines", "--set", "values=two", option, key})
            .out;
    };
    EXPECT_EQ(printed("--print", "text"), "<LIST>\n");
    EXPECT_EQ(printed("--print", "useListFile"), "false\n");
    EXPECT_EQ(printed("--print", "values"), "two\nlines\ntwo\n");
    EXPECT_EQ(printed("--print0", "values"), std::string("two\nlines\0two\0", 14));
    EXPECT_EQ(printed("--print", "values.1"), "two\n");
    EXPECT_EQ(printed("--print", "result"), "IDCANCEL\n");
    EXPECT_EQ(printed("--print", "messages"), "");
    const auto both = kvdlg.Play(kStatus, kPickAndEnd, {"--print", "text", "--print0", "text"});
    EXPECT_EQ(both.exit, 2);
}

TEST(KvdlgProgram, AValueThatIsNotThereShowsTheOutcome) {
    for (const char* key : {"txt", "text.0", "values.2", "values.-1"}) {
        const auto ended = Kvdlg().Play(kList, kListAndCancel,
                                        {"--set", "values=A", "--set", "values=B", "--print", key});
        EXPECT_EQ(ended.exit, 2) << key;
        EXPECT_EQ(ended.out, "");
        EXPECT_THAT(ended.error, HasSubstr("There is no \"" + std::string(key) + "\""));
        EXPECT_THAT(ended.error, HasSubstr(R"("values":["A","B"])"));
    }
}

TEST(KvdlgProgram, AClassIsFoundInLettersOfAnyCase) {
    const auto ended = Kvdlg().Run({"describe", "ckvguipipestatusdlg"});
    EXPECT_EQ(ended.exit, 0);
    EXPECT_EQ(ended.Printed().at("class"), kStatus);
}

TEST(KvdlgProgram, ANearClassIsSuggested) {
    const Kvdlg kvdlg;
    for (const char* typed : {"CKvGuiPipStatusDlg", "PipeStatus", "ckvguipipestatusdlgs"}) {
        const auto ended = kvdlg.Run({"describe", typed});
        EXPECT_EQ(ended.exit, 2);
        EXPECT_THAT(ended.error, HasSubstr("did you mean CKvGuiPipeStatusDlg?")) << typed;
    }
    EXPECT_THAT(kvdlg.Run({"describe", "CNoDialog"}).error,
                HasSubstr("\"kvdlg list\" tells which there are"));
}

TEST(KvdlgProgram, TheVersionIsTold) {
    const auto ended = Kvdlg().Run({"--version"});
    EXPECT_EQ(ended.exit, 0);
    EXPECT_THAT(ended.out, testing::MatchesRegex("kvdlg [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST(KvdlgProgram, ADisplayThatCannotBeReachedEndsWith3AndALine) {
    if (!KVDLG_WITH_WINDOWS) GTEST_SKIP() << "kvdlg was built without windows";
    Kvdlg kvdlg;
    kvdlg.folder.Set("DISPLAY", ":4711");
    kvdlg.folder.Set("QT_QPA_PLATFORM", "xcb");
    const auto ended = kvdlg.Run({"run", kStatus});
    EXPECT_EQ(ended.exit, 3);
    EXPECT_EQ(
        ended.error,
        "kvdlg: The display cannot be reached: DISPLAY=:4711 QT_QPA_PLATFORM=xcb; --script plays "
        "the user without one\n");
}

TEST(KvdlgProgram, WithoutADisplayNoWindowOpensAndItIsSaid) {
    const auto ended = Kvdlg().Run({"run", kStatus});
    EXPECT_EQ(ended.exit, 2);
    EXPECT_EQ(ended.out, "");
    EXPECT_THAT(ended.error, HasSubstr("display"));
    EXPECT_THAT(ended.error, HasSubstr("--script"));
}

TEST(KvdlgProgram, ADefaultDatabaseThatIsNotThereMattersToThoseWhoNeedIt) {
    Kvdlg kvdlg;
    kvdlg.folder.Set("KVGUICTL_DB", "sqlite:" + kvdlg.folder.Native("none.db"));
    EXPECT_EQ(kvdlg.Play(kStatus, kPickAndEnd).exit, 0);
    const auto ended = kvdlg.Play("CKvGuiListSel",
                                  R"({"inputs": {"column": "lessee", "table": "t"}, "user": [
            {"window": "", "do": [{"type": [1191, "a"]}, {"click": 1192}, {"click": 2}]}]})");
    EXPECT_EQ(ended.exit, 3);
    EXPECT_THAT(ended.error, HasSubstr("none.db"));
}

TEST(KvdlgProgram, TraceAddsTheStatements) {
    const Kvdlg kvdlg;
    const std::string script =
        R"({"inputs": {"column": "lessee", "table": "NORVADON.gulf_mexico_lease"},
            "user": [{"window": "", "do": [{"type": [1191, "shell"]}, {"click": 1192},
                                           {"click": 2}]},
                     {"message": ""}]})";
    const auto ended = kvdlg.Play("CKvGuiListSel", script, {"--trace"});
    ASSERT_EQ(ended.exit, 1) << ended.error;
    ASSERT_EQ(ended.Printed().at("sql").size(), 1U);
    EXPECT_THAT(ended.Printed().at("sql").at(0).get<std::string>(), HasSubstr("SHELL"));
    EXPECT_FALSE(kvdlg.Play("CKvGuiListSel", script).Printed().contains("sql"));
}

TEST(KvdlgRecord, WritesAScriptThatPlaysWithTheSameOutcome) {
    const Kvdlg kvdlg;
    const std::string file = kvdlg.folder.Native("done.json");
    const auto seen = kvdlg.Play(kStatus, kPickAndEnd, {"--record", file});
    EXPECT_EQ(seen.exit, 0) << seen.error;
    const auto script = Kvdlg::Json::parse(kvdlg.folder.Read("done.json"));
    EXPECT_EQ(script.at("inputs").at("text"), "ACT");
    EXPECT_EQ(script.at("user").at(0).at("do").at(0), (Kvdlg::Json{{"click", 1}}));
    const auto played = kvdlg.Run({"run", kStatus, "--script", file});
    EXPECT_EQ(played.exit, 0) << played.error;
    EXPECT_EQ(played.out, seen.out);
}

TEST(KvdlgRecord, ThatCannotBeWrittenEndsWith3AndOpensNothing) {
    const Kvdlg kvdlg;
    const std::string file = kvdlg.folder.Native("none/done.json");
    const auto ended = kvdlg.Play(kStatus, kPickAndEnd, {"--record", file});
    EXPECT_EQ(ended.exit, 3);
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.error, "kvdlg: The script " + file + " cannot be written\n");
}

TEST(KvdlgRecord, HoldsWhatWasDoneUpToTheEndOfAProgramThatFails) {
    const Kvdlg kvdlg;
    const auto ended =
        kvdlg.Play(kStatus, R"({"user": [{"window": "", "do": [{"focus": 1}, {"click": 4711}]}]})",
                   {"--record", kvdlg.folder.Native("done.json")});
    EXPECT_EQ(ended.exit, 2);
    EXPECT_THAT(kvdlg.folder.Read("done.json"), HasSubstr("\"focus\": 1"));
}

TEST(KvdlgScriptHead, ARegistryStandsInThePlaceOfTheUsersAndKeepsNothing) {
    const Kvdlg kvdlg;
    kvdlg.folder.Write("drive/list.txt", "x");
    kvdlg.folder.Write("registry.ini", "[SOFTWARE\\KVI]\nDATASET=OTHER\n");
    const Kvdlg::Json registry = {{"SOFTWARE\\KVI\\Drives", {{"Q", kvdlg.folder.Native("drive")}}}};
    Kvdlg::Json script = {{"registry", registry},
                          {"folder", "Q:\\"},
                          {"inputs", {{"start", "Q:\\"}}},
                          {"user", {{{"window", "CFilePickCtrl"}, {"do", {{{"click", 2}}}}}}}};
    const auto ended = kvdlg.Play("CFilePickCtrl", script.dump());
    EXPECT_EQ(ended.exit, 1) << ended.error;
    EXPECT_THAT(ended.out, HasSubstr("list.txt"));
    EXPECT_EQ(kvdlg.folder.Read("registry.ini"), "[SOFTWARE\\KVI]\nDATASET=OTHER\n");
}

TEST(KvdlgScriptHead, WhatIsNoRegistryOrFolderIsRefusedWithItsLine) {
    const Kvdlg kvdlg;
    const std::pair<const char*, const char*> wrong[] = {
        {R"("registry": [])", "\"registry\" to be an object"},
        {R"("registry": {"SOFTWARE": "x"})", "\"registry\" to be an object"},
        {R"("registry": {"SOFTWARE": {"x": 1}})", "\"registry\" to be an object"},
        {R"("folder": 1)", "\"folder\" to be a folder"},
        {R"("folder": "C:\\no such folder")", "\"folder\" to be a folder"}};
    for (const auto& [head, words] : wrong) {
        const auto ended = kvdlg.Play(kStatus, std::string("{\n") + head + "}");
        EXPECT_EQ(ended.exit, 2) << head;
        EXPECT_THAT(ended.error, HasSubstr("Line 2, the script: expected ")) << head;
        EXPECT_THAT(ended.error, HasSubstr(words)) << head;
    }
}

TEST(KvdlgScriptActions, AreRefusedWhereTheyAreHalfTold) {
    const Kvdlg kvdlg;
    const std::pair<const char*, const char*> wrong[] = {
        {R"({"keys": [1]})", "a text at place 1"},
        {R"({"mark": [1, 2]})", "[id, from, to]"},
        {R"({"edit": [1, "format"]})", "cut, copy, paste, delete or undo"},
        {R"({"step": [1, "left"]})", "\"up\" or \"down\""},
        {R"({"wheel": [1, "up"]})", "[id, number]"},
        {R"({"check": [1]})", "a row by its text or number"},
        {R"({"select": [1, 0, "Alt"]})", "\"Shift\", \"Ctrl\" or \"Shift+Ctrl\""},
        {R"({"clipboard": 1})", "a text"},
        {R"({"hold": "1"})", "a control's id"}};
    for (const auto& [action, words] : wrong) {
        const auto ended = kvdlg.Play(
            kStatus, std::string(R"({"user": [{"window": "", "do": [)") + action + "]}]}");
        EXPECT_EQ(ended.exit, 2) << action;
        EXPECT_THAT(ended.error, HasSubstr(words)) << action;
    }
}

class KvdlgPicture : public testing::Test {
protected:
    void SetUp() override {
        if (!KVDLG_WITH_WINDOWS) GTEST_SKIP() << "kvdlg was built without windows";
    }
    std::string Path() const { return kvdlg.folder.Native("dialog.png"); }

    Kvdlg kvdlg;
};

TEST_F(KvdlgPicture, OfAScriptedDialogNeedsNoDisplayAndChangesNothing) {
    const auto bare = kvdlg.Play(kStatus, kPickAndEnd);
    const auto pictured = kvdlg.Play(kStatus, kPickAndEnd, {"--picture", Path()});
    EXPECT_EQ(pictured.exit, 0) << pictured.error;
    EXPECT_EQ(pictured.out, bare.out);
    const auto [width, height] = SizeOfPng(kvdlg.folder.Read("dialog.png"));
    EXPECT_GT(width, 200);
    EXPECT_GT(height, 200);
}

TEST_F(KvdlgPicture, OfABarIsOfItsFrame) {
    const std::string script = R"({"user": [{"window": "CVZABEBar", "do": [{"drop": 13070}]}]})";
    const auto ended = kvdlg.Play("CVZABEBar", script, {"--picture", Path()});
    EXPECT_EQ(ended.exit, 0) << ended.error;
    const auto [width, height] = SizeOfPng(kvdlg.folder.Read("dialog.png"));
    EXPECT_GT(width, 600);
    EXPECT_GT(height, 20);
}

TEST_F(KvdlgPicture, OfAClosedOutputTakesNoFileForIt) {
    // The windows' own files are opened ahead of the output.
    const auto ended = kvdlg.Play(kStatus, kPickAndEnd, {"--picture", Path()}, ">&-");
    EXPECT_EQ(ended.exit, 3);
    EXPECT_THAT(ended.error, HasSubstr("Bad file descriptor"));
}

TEST_F(KvdlgPicture, OnAFullDiskTheOldOneStaysAndNothingIsLeftBeside) {
    kvdlg.folder.Write("pictures/dialog.png", "old");
    const test::TempFolder& folder = kvdlg.folder;
    const std::string path = folder.Native("pictures/dialog.png");
    test::Kvdlg::Ended ended;
    {
        const test::FileSizeLimit limit(1000);
        ended = kvdlg.Play(kStatus, kPickAndEnd, {"--picture", path});
    }
    EXPECT_EQ(ended.exit, 3);
    EXPECT_EQ(ended.error, "kvdlg: The picture " + path + " cannot be written\n");
    EXPECT_EQ(folder.Read("pictures/dialog.png"), "old");
    const std::filesystem::directory_iterator left(folder.Native("pictures"));
    EXPECT_EQ(std::distance(begin(left), end(left)), 1);
}

TEST_F(KvdlgPicture, ThatCannotBeWrittenEndsWith3) {
    const auto ended =
        kvdlg.Play(kStatus, kPickAndEnd, {"--picture", kvdlg.folder.Native("none/dialog.png")});
    EXPECT_EQ(ended.exit, 3);
    EXPECT_THAT(ended.error, HasSubstr("cannot be written"));
}

}  // namespace
