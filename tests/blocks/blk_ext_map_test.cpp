// Select from Map.

#include <gmock/gmock.h>

#include <stdexcept>

#include "blocks/block_fixture.h"
#include "frame/graphics.h"
#include "support/endless_view.h"
#include "support/sqlite_file.h"
#include "window/acting/wait_scene.h"
#include "window/blocked_windows.h"

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using namespace kv::blk_ext;

class BlkExtMap : public BlockTest {
protected:
    ~BlkExtMap() override { kv::SetGraphics(nullptr); }

    /// The entries after a map that answers so was asked.
    std::vector<std::string> Picked(const std::string& answer) {
        kv::SetGraphics([answer](const auto&...) { return answer; });
        statements.clear();
        Run(dialog, [](kv::User& user) { user.Click(kFromMap); });
        return Entries();
    }
};

TEST_F(BlkExtMap, IsAskedWithTheConnectionAndTheOwnerOfTheApplicationsTables) {
    std::vector<std::string> asked;
    kv::SetGraphics([&](const std::string& user, const std::string& password,
                        const std::string& server, int mode, const std::string& text,
                        const std::string& owner) {
        asked = {user, password, server, std::to_string(mode), text, owner};
        return std::string();
    });
    CKvDbInfo info("someone", "secret", "sqlite:/tmp/no.db");
    CKvDbAbsDataMgr(1).SetDbInfo(info);
    Run(dialog, [](kv::User& user) { user.Click(kFromMap); });
    EXPECT_THAT(asked, ElementsAre("someone", "secret", "sqlite:/tmp/no.db", "1", "", "NORVADON"));
}

TEST_F(BlkExtMap, AddsThePicksBehindTheTwoFieldsOfTheMap) {
    Given({{"PLAIN", "55"}});
    EXPECT_THAT(Picked("1,2,GRAND ISLE,9,A,PLAIN,55,,GULF BAY,,,"),
                ElementsAre("PLAIN/55", "GRAND ISLE/9A", "GULF BAY/"));
    EXPECT_THAT(statements, IsEmpty());
}

TEST_F(BlkExtMap, ShowsWhatItAdded) {
    kv::SetGraphics([](const auto&...) { return ",,GRAND ISLE,9,A,"; });
    Run(dialog, [](kv::User& user) {
        user.Click(kFromMap);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("GRAND ISLE\t9A"));
    });
}

TEST_F(BlkExtMap, TurnsNamesIntoWhatAreasAreShownByWithOneQuestionForEach) {
    dialog.SetFieldString("stcode");
    EXPECT_THAT(Picked(",,GRAND ISLE,9,A,PLAIN,55,,GRAND ISLE,10,,"),
                ElementsAre("017/9A", "4301/55", "017/10"));
    EXPECT_THAT(statements, SizeIs(2));
    Given({});
    dialog.SetFieldString("area_abbr");
    EXPECT_THAT(Picked(",,GRAND ISLE,9,A,NOWHERE,1,,"), ElementsAre("GI/9A", "/1"));
}

TEST_F(BlkExtMap, EndsWithATextThatIsCutShort) {
    EXPECT_THAT(Picked(""), IsEmpty());
    EXPECT_THAT(Picked("1,2,"), IsEmpty());
    EXPECT_THAT(Picked("1,2,,"), IsEmpty());
    EXPECT_THAT(Picked("1,2,GRAND ISLE,9"), ElementsAre("GRAND ISLE/9"));
}

TEST_F(BlkExtMap, WithoutAMapNothingIsAddedAndTheLogTellsWhy) {
    Given({{"PLAIN", "55"}});
    Run(dialog, [](kv::User& user) { user.Click(kFromMap); });
    EXPECT_THAT(Entries(), ElementsAre("PLAIN/55"));
    EXPECT_THAT(folder.Read("log.txt"),
                HasSubstr("No blocks were picked on the map: the host has named no map"));
}

TEST_F(BlkExtMap, AMapThatFailsIsLogged) {
    kv::SetGraphics(
        [](const auto&...) -> std::string { throw std::runtime_error("no such projection"); });
    Run(dialog, [](kv::User& user) { user.Click(kFromMap); });
    EXPECT_THAT(Entries(), IsEmpty());
    EXPECT_THAT(folder.Read("log.txt"),
                HasSubstr("No blocks were picked on the map: no such projection"));
}

TEST_F(BlkExtMap, OfAPickWhoseLookUpIsCancelledNothingIsAdded) {
    Given({{"PLAIN", "55"}});
    dialog.SetFieldString("stcode");
    kv::SetGraphics([](const auto&...) { return ",,GRAND ISLE,9,A,"; });
    kv::SetPatience(std::chrono::milliseconds(50));
    const std::string file = folder.Native("blocks.db");
    Run(dialog, [&](kv::User& user) {
        test::RunOnSqliteFile(
            file, "alter table gulf_mexico_connam2 rename to kept;" +
                      test::EndlessView("gulf_mexico_connam2", "areaname, stcode, area_abbr",
                                        test::kTextCell));
        kv::ExpectWait(desktop, [](kv::User& wait) { wait.Click(IDCANCEL); });
        user.Click(kFromMap);
        EXPECT_THAT(user.Rows(kSelected), ElementsAre("PLAIN\t55"));

        test::RunOnSqliteFile(file,
                              "drop view gulf_mexico_connam2;"
                              "alter table kept rename to gulf_mexico_connam2");
        user.Click(kFromMap);
        EXPECT_THAT(user.Rows(kSelected), SizeIs(2));
    });
}

}  // namespace
