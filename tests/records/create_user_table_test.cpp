#include "records/create_user_table.h"

#include <sqlite3.h>

#include <filesystem>

#include "frame/kvcom/misc.h"
#include "records/create_user_table_ids.h"
#include "support/exchanging_dialog.h"
#include "support/plain_user.h"
#include "support/statement_test.h"

namespace {

using namespace kv::create_user_table;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr const char* kTables = R"(
create table GULF_MEXICO_WELL_HDR (api_no text);
create table PACIFICWELL_HDR (api_no text);
create table OTHER_WELL_HDR (api_no text);
create table WELL_HDR (api_no text);
create table _WELL_HDR (api_no text);
)";
constexpr const char* kDatasets =
    "select table_name from all_tables where table_name like '%WELL_HDR' and owner='NORVADON'";

struct Login {
    std::string user;
    std::string password;
    std::string server;
    bool operator==(const Login&) const = default;
};

Login InForce() {
    Login login;
    CKvMisc::GetParsedConnectString(login.user, login.password, login.server, true);
    return login;
}

class CreateUserTable : public test::StatementTest {
protected:
    CreateUserTable() : StatementTest(kTables) {}

    std::string CommentTables() {
        return Rows(
            "select table_name from all_tables where table_name like '%_WELL_COMMENT' and "
            "owner='NORVADON'",
            1);
    }
    void PressOk() {
        EXPECT_EQ(Run(dialog, [](kv::User& user) { user.Click(IDOK); }), IDOK);
    }

    CKvCreateUserTable dialog;
};

/// What a host that derives may call.
class OpenTable : public CKvCreateUserTable {
public:
    using CKvCreateUserTable::Create_Comment_Table;
    using CKvCreateUserTable::IsTableExisted;
    using CKvCreateUserTable::PopulateTableName;
};

TEST_F(CreateUserTable, ListsDatasetsByWhatStandsAheadOfTheLastNineCharacters) {
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.WindowNode().Text(), "Create Table Dialog");
        // One without the underscore loses a character, and one that is too short is left out.
        EXPECT_THAT(user.Rows(kDataset),
                    testing::UnorderedElementsAre("GULF_MEXICO", "OTHER", "PACIFI"));
        EXPECT_THAT(user.Selected(kDataset), ElementsAre(0));
        EXPECT_THAT(user.Rows(kTable), ElementsAre("WELL_COMMENT"));
        EXPECT_EQ(user.Text(kTable), "WELL_COMMENT");
        EXPECT_EQ(user.Text(kAlias), Server());
        EXPECT_EQ(test::FocusedId(), kUser);
    });
    EXPECT_THAT(statements, ElementsAre(kDatasets));
}

TEST_F(CreateUserTable, SendsItsStatementsToTheLetter) {
    EXPECT_EQ(Run(dialog,
                  [](kv::User& user) {
                      user.Select(kDataset, "GULF_MEXICO");
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_THAT(
        statements,
        ElementsAre(kDatasets,
                    "select table_name from all_tables where table_name = "
                    "'GULF_MEXICO_WELL_COMMENT' and owner='NORVADON'",
                    "Create table NORVADON.GULF_MEXICO_WELL_COMMENT(ID VARCHAR2(20) NOT NULL "
                    "ENABLE,REC_SEQ NUMBER NOT NULL ENABLE,COMMENTS VARCHAR2(80),USER_ID "
                    "VARCHAR2(20),REVISION_DATE DATE, PRIMARY KEY (ID, REC_SEQ))",
                    " GRANT ALTER ON GULF_MEXICO_WELL_COMMENT TO PUBLIC;",
                    " GRANT DELETE ON GULF_MEXICO_WELL_COMMENT TO PUBLIC;",
                    " GRANT INDEX ON GULF_MEXICO_WELL_COMMENT TO PUBLIC;",
                    " GRANT INSERT ON GULF_MEXICO_WELL_COMMENT TO PUBLIC;",
                    " GRANT UPDATE ON GULF_MEXICO_WELL_COMMENT TO PUBLIC;",
                    " GRANT REFERENCES ON GULF_MEXICO_WELL_COMMENT TO PUBLIC;", " Commit;"));
    EXPECT_EQ(CommentTables(), "GULF_MEXICO_WELL_COMMENT");
}

TEST_F(CreateUserTable, TheTableHoldsAKeyAndWhatAComment) {
    Run(dialog, [](kv::User& user) {
        user.Select(kDataset, "OTHER");
        user.Click(IDOK);
    });
    Change("insert into OTHER_WELL_COMMENT values ('1', 1, 'text', 'me', '2024-01-01')");
    EXPECT_THROW(Change("insert into OTHER_WELL_COMMENT values ('1', 1, 'more', 'me', null)"),
                 std::runtime_error);
    EXPECT_THROW(Change("insert into OTHER_WELL_COMMENT (REC_SEQ) values (7)"), std::runtime_error);
    EXPECT_EQ(Rows("select * from OTHER_WELL_COMMENT", 5), "1|1|text|me|2024-01-01");
}

TEST_F(CreateUserTable, ATableThatIsThereIsToldAndTheDialogClosesAllTheSame) {
    Change("create table OTHER_WELL_COMMENT (a text)");
    desktop.ExpectMessage("OTHER_WELL_COMMENT - Table already existed");
    EXPECT_EQ(Run(dialog,
                  [](kv::User& user) {
                      user.Select(kDataset, "OTHER");
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_EQ(statements.size(), 2U);
}

TEST_F(CreateUserTable, WithoutADatasetItIsRefusedWithWords) {
    Change(
        "drop table GULF_MEXICO_WELL_HDR; drop table PACIFICWELL_HDR; drop table OTHER_WELL_HDR");
    desktop.ExpectMessage("There is no dataset with wells to make a table of comments for.");
    PressOk();
    EXPECT_THAT(statements, ElementsAre(kDatasets));
    EXPECT_EQ(CommentTables(), "");
}

TEST_F(CreateUserTable, CancelMakesNothing) {
    EXPECT_EQ(Run(dialog, [](kv::User& user) { user.Click(IDCANCEL); }), IDCANCEL);
    EXPECT_THAT(statements, ElementsAre(kDatasets));
    EXPECT_EQ(CommentTables(), "");
}

TEST_F(CreateUserTable, TheTypedLoginIsTheOneInForceAfterwards) {
    Run(dialog, [](kv::User& user) {
        user.Type(kUser, "scott");
        user.Type(kPasswordEdit, "t1ger");
        user.Click(IDOK);
    });
    EXPECT_EQ(InForce(), (Login{"scott", "t1ger", Server()}));
}

TEST_F(CreateUserTable, TheTypedLoginIsAlsoTheOneThatTheTableIsLookedForBy) {
    Change("create table OTHER_WELL_COMMENT (a text)");
    desktop.ExpectMessage("OTHER_WELL_COMMENT - Table already existed");
    Run(dialog, [](kv::User& user) {
        user.Select(kDataset, "OTHER");
        user.Type(kUser, "scott");
        user.Click(IDOK);
    });
    EXPECT_EQ(InForce().user, "scott");
}

TEST_F(CreateUserTable, AHostMayListTheDatasetsAnew) {
    OpenTable open;
    Run(open, [&](kv::User& user) {
        const auto datasets = user.Rows(kDataset);
        user.Select(kDataset, 1);
        open.PopulateTableName();
        EXPECT_EQ(user.Rows(kDataset), datasets);
        EXPECT_THAT(user.Selected(kDataset), ElementsAre(0));
        EXPECT_THAT(user.Rows(kTable), ElementsAre("WELL_COMMENT"));
    });
}

TEST_F(CreateUserTable, AHostIsToldWhetherThereIsATableAndThatNoneWasMade) {
    OpenTable open;
    Run(open, [&](kv::User& user) {
        user.Select(kDataset, "OTHER");
        EXPECT_FALSE(open.IsTableExisted("OTHER_WELL_COMMENT"));
        EXPECT_TRUE(open.Create_Comment_Table());
        EXPECT_TRUE(open.IsTableExisted("OTHER_WELL_COMMENT"));
        desktop.ExpectMessage("OTHER_WELL_COMMENT - Table already existed");
        EXPECT_FALSE(open.Create_Comment_Table());

        open.Control<CComboBox>(kDataset).SetCurSel(-1);
        desktop.ExpectMessage("There is no dataset with wells to make a table of comments for.");
        EXPECT_FALSE(open.Create_Comment_Table());

        user.Select(kDataset, "GULF_MEXICO");
        std::filesystem::rename(path, path + ".away");
        desktop.ExpectMessage("");
        EXPECT_FALSE(open.IsTableExisted("OTHER_WELL_COMMENT"));
        desktop.ExpectMessage("");
        desktop.ExpectMessage("");
        EXPECT_FALSE(open.Create_Comment_Table());
    });
}

TEST_F(CreateUserTable, ADerivedOneExchangesItsDataAtTheStartAndAtOk) {
    test::Exchanging<CKvCreateUserTable> own;
    Run(own, [&](kv::User& user) {
        EXPECT_EQ(own.shown, 1);
        user.Click(IDOK);
    });
    EXPECT_EQ(own.taken, 1);
}

TEST_F(CreateUserTable, TheAliasHidesASecretThatTheServersTextKeeps) {
    const std::string server = "postgresql://scott:t1ger@%2Fnowhere/db?sslpassword=l10n";
    test::ConnectTo(CKvDbInfo("", "", server.c_str()));
    desktop.ExpectMessage("");
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(user.Text(kUser), "scott");
        EXPECT_EQ(user.Text(kPasswordEdit), "t1ger");
        EXPECT_EQ(user.Text(kAlias), "postgresql://%2Fnowhere/db?sslpassword=***");
        user.Click(IDCANCEL);
    });
    EXPECT_EQ(InForce(), (Login{"scott", "t1ger", "postgresql://%2Fnowhere/db?sslpassword=l10n"}));
    for (const std::string& said : {desktop.Messages().back(), folder.Read("log.txt")}) {
        EXPECT_THAT(said, Not(HasSubstr("t1ger")));
        EXPECT_THAT(said, Not(HasSubstr("l10n")));
    }
}

TEST_F(CreateUserTable, ALoginThatFailsShowsTwoBoxes) {
    desktop.ExpectMessage("");
    desktop.ExpectMessage("");
    Run(dialog, [&](kv::User& user) {
        std::filesystem::rename(path, path + ".away");
        user.Click(IDOK);
    });
    EXPECT_EQ(desktop.Messages().size(), 2U);
    EXPECT_EQ(desktop.Messages()[0], desktop.Messages()[1]);
    EXPECT_THAT(desktop.Messages()[0], HasSubstr("Cannot open the database file"));
}

TEST_F(CreateUserTable, AFailureAtTheStartLeavesADialogThatCanBeUsed) {
    test::ConnectTo(CKvDbInfo("scott", "t1ger", "sqlite:/nowhere/at_all.db"));
    desktop.ExpectMessage("");
    Run(dialog, [&](kv::User& user) {
        EXPECT_EQ(test::FocusedId(), kUser);
        EXPECT_EQ(user.Text(kUser), "scott");
        EXPECT_EQ(user.Text(kTable), "WELL_COMMENT");
        EXPECT_THAT(user.Rows(kDataset), IsEmpty());
        user.Click(IDCANCEL);
    });
}

TEST_F(CreateUserTable, WhicheverCallFailsIsShown) {
    // Each run begins with no session open, and so makes the same calls.
    kv::db::SessionPool::Instance().Clear();
    FailAt(0);
    PressOk();
    const int all = calls;
    for (int failing = 1; failing <= all; ++failing) {
        SCOPED_TRACE(failing);
        Change(
            "drop table if exists GULF_MEXICO_WELL_COMMENT;"
            "drop table if exists PACIFI_WELL_COMMENT; drop table if exists OTHER_WELL_COMMENT");
        const std::size_t before = desktop.Messages().size();
        kv::db::SessionPool::Instance().Clear();
        FailAt(failing);
        desktop.ExpectMessage("");
        // Where no dataset was listed, OK has a word of its own.
        bool listed = true;
        Run(dialog, [&](kv::User& user) {
            listed = !user.Rows(kDataset).empty();
            if (!listed) desktop.ExpectMessage("");
            user.Click(IDOK);
        });
        kv::db::SetDatabaseFault(nullptr);
        EXPECT_EQ(desktop.Messages().size() - before, listed ? 1U : 2U);
    }
}

TEST_F(CreateUserTable, TheConnectionThatStaysOpenHoldsNoLock) {
    PressOk();
    Change("insert into OTHER_WELL_HDR values ('1')");
    Change("drop table OTHER_WELL_HDR");
}

TEST_F(CreateUserTable, ALockOfAnotherProgramIsTold) {
    desktop.ExpectMessage("");
    sqlite3* other = nullptr;
    Run(dialog, [&](kv::User& user) {
        sqlite3_open(path.c_str(), &other);
        sqlite3_exec(other, "begin immediate", nullptr, nullptr, nullptr);
        user.Click(IDOK);
    });
    sqlite3_close(other);
    EXPECT_THAT(desktop.Messages().back(), HasSubstr("locked"));
    EXPECT_EQ(CommentTables(), "");
}

TEST_F(CreateUserTable, ADatabaseThatIsClosedToWritingIsTold) {
    std::filesystem::permissions(path, std::filesystem::perms(0444));
    std::filesystem::permissions(folder.Native(), std::filesystem::perms(0755));
    EXPECT_EXIT(test::ExitAsPlainUser(path,
                                      [&] {
                                          kv::db::SessionPool::Instance().Clear();
                                          desktop.ExpectMessage("");
                                          PressOk();
                                          return desktop.Messages().size() == 1 &&
                                                 desktop.Messages().back().find("readonly") !=
                                                     std::string::npos;
                                      }),
                testing::ExitedWithCode(0), "");
}

TEST_F(CreateUserTable, ADatasetWithAQuoteIsRefusedInWordsAndHarmsNothing) {
    Change(
        "drop table GULF_MEXICO_WELL_HDR; drop table PACIFICWELL_HDR; drop table OTHER_WELL_HDR;"
        "create table \"O'HARA_WELL_HDR\" (a text)");
    desktop.ExpectMessage("");
    PressOk();
    EXPECT_EQ(statements[1],
              "select table_name from all_tables where table_name = 'O''HARA_WELL_COMMENT' and "
              "owner='NORVADON'");
    EXPECT_EQ(CommentTables(), "");
}

}  // namespace
