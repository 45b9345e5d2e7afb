#include "pickers/custom_order_dlg.h"

#include <sqlite3.h>

#include <algorithm>
#include <filesystem>

#include "frame/kvcom/ut_registry.h"
#include "pickers/custom_order_dlg_ids.h"
#include "support/plain_user.h"
#include "support/statement_test.h"

namespace {

using namespace kv::custom_order_dlg;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* kTables = R"(
create table nvd2000_area_order (areaname text, seq integer, defseq integer);
insert into nvd2000_area_order values ('BETA', 2, 1), ('ALPHA', 1, 2), ('GAMMA', 3, 3);
)";
constexpr const char* kSure = "Are you sure you want to reset?";
constexpr const char* kStored = "ALPHA|1|2 BETA|2|1 GAMMA|3|3";

class CustomOrder : public test::StatementTest {
protected:
    CustomOrder() : StatementTest(kTables) {}

    std::string Stored() {
        return Rows("select areaname, seq, defseq from nvd2000_area_order order by seq, areaname",
                    3);
    }
    static std::vector<bool> Moves(kv::User& user) {
        std::vector<bool> enabled;
        for (const int id : {kTop, kMoveUp, kMoveDown, kBottom})
            enabled.push_back(user.Enabled(id));
        return enabled;
    }
    /// The statements that change the table.
    std::vector<std::string> Changes() const {
        std::vector<std::string> changes;
        for (const std::string& sql : statements) {
            if (!sql.starts_with("select")) changes.push_back(sql);
        }
        return changes;
    }
    static void MoveFirstToTheEnd(kv::User& user) {
        user.Select(kAreas, 0);
        user.Click(kBottom);
    }

    CCustomOrderDlg dialog;
};

TEST_F(CustomOrder, ListsTheAreasInTheStoredOrderWithNoneCurrent) {
    Run(dialog, [&](kv::User& user) {
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("ALPHA", "BETA", "GAMMA"));
        EXPECT_THAT(user.Selected(kAreas), IsEmpty());
        EXPECT_THAT(Moves(user), ElementsAre(false, false, false, false));
        EXPECT_TRUE(user.Enabled(kReset));
        EXPECT_EQ(test::FocusedId(), kAreas);
    });
    EXPECT_THAT(statements,
                ElementsAre("select areaname from NORVADON.nvd2000_area_order order by seq",
                            "select areaname from NORVADON.nvd2000_area_order order by defseq"));
}

TEST_F(CustomOrder, TheOwnerOfTheTableIsTheApplications) {
    CKvUtRegistry().SetRegistry("SOFTWARE\\KVI", "TABLE_OWNER", "MAIN");
    Run(dialog, [&](kv::User& user) {
        MoveFirstToTheEnd(user);
        user.Click(IDOK);
    });
    EXPECT_EQ(statements.front(), "select areaname from MAIN.nvd2000_area_order order by seq");
    EXPECT_EQ(statements.back(), "insert into MAIN.nvd2000_area_order values ('ALPHA', 3,2)");
}

TEST_F(CustomOrder, TheMovesThatAreLeftAreEnabledForTheCurrentRow) {
    Run(dialog, [&](kv::User& user) {
        user.Select(kAreas, 0);
        EXPECT_THAT(Moves(user), ElementsAre(false, false, true, true));
        user.Key(kAreas, "Down");
        EXPECT_THAT(Moves(user), ElementsAre(true, true, true, true));
        user.Key(kAreas, "Down");
        EXPECT_THAT(Moves(user), ElementsAre(true, true, false, false));
    });
}

TEST_F(CustomOrder, AMovedRowStaysCurrent) {
    Run(dialog, [&](kv::User& user) {
        user.Select(kAreas, "GAMMA");
        user.Click(kMoveUp);
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("ALPHA", "GAMMA", "BETA"));
        EXPECT_THAT(user.Selected(kAreas), ElementsAre(1));
        user.Click(kTop);
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("GAMMA", "ALPHA", "BETA"));
        EXPECT_THAT(user.Selected(kAreas), ElementsAre(0));
        user.Click(kMoveDown);
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("ALPHA", "GAMMA", "BETA"));
        user.Select(kAreas, "ALPHA");
        user.Click(kBottom);
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("GAMMA", "BETA", "ALPHA"));
        EXPECT_THAT(user.Selected(kAreas), ElementsAre(2));
    });
}

TEST_F(CustomOrder, AButtonThatDisablesItselfGivesTheFocusToTheList) {
    Run(dialog, [&](kv::User& user) {
        user.Select(kAreas, "BETA");
        user.Key(kMoveUp, "Space");
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("BETA", "ALPHA", "GAMMA"));
        EXPECT_EQ(test::FocusedId(), kAreas);
        user.Key(0, "Space");  // it is still held
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("BETA", "ALPHA", "GAMMA"));
        user.Click(kBottom);
        EXPECT_EQ(test::FocusedId(), kAreas);
        user.Click(kMoveUp);
        EXPECT_EQ(test::FocusedId(), kMoveUp);
    });
}

class OpenOrder : public CCustomOrderDlg {
public:
    using CCustomOrderDlg::m_sArea;
    using CCustomOrderDlg::OnBtnDown;
    using CCustomOrderDlg::OnBtnMovedown;
    using CCustomOrderDlg::OnBtnMoveup;
    using CCustomOrderDlg::OnBtnTop;
};

TEST_F(CustomOrder, MovesDoNothingWithoutACurrentRow) {
    OpenOrder moves;
    Run(moves, [&](kv::User& user) {
        moves.OnBtnTop();
        moves.OnBtnMoveup();
        moves.OnBtnMovedown();
        moves.OnBtnDown();
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("ALPHA", "BETA", "GAMMA"));
        EXPECT_THAT(user.Selected(kAreas), IsEmpty());
    });
}

TEST_F(CustomOrder, AButtonThatIsDisabledTakesTheFocusFromNoOther) {
    OpenOrder moves;
    Run(moves, [&](kv::User& user) {
        user.Select(kAreas, 1);
        user.Focus(kReset);
        moves.OnBtnTop();
        EXPECT_FALSE(user.Enabled(kTop));
        EXPECT_EQ(test::FocusedId(), kReset);
    });
}

TEST_F(CustomOrder, MovesBeyondTheEndsDoNothing) {
    OpenOrder moves;
    Run(moves, [&](kv::User& user) {
        user.Select(kAreas, 0);
        moves.OnBtnMoveup();
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("ALPHA", "BETA", "GAMMA"));
        user.Select(kAreas, 2);
        moves.OnBtnMovedown();
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("ALPHA", "BETA", "GAMMA"));
        EXPECT_STREQ(moves.m_sArea, "GAMMA");
    });
}

TEST_F(CustomOrder, OkWithoutAMoveSendsNothing) {
    EXPECT_EQ(Run(dialog, [](kv::User& user) { user.Click(IDOK); }), IDOK);
    EXPECT_THAT(Changes(), IsEmpty());
    EXPECT_EQ(Stored(), kStored);
}

TEST_F(CustomOrder, TheFirstOfThreeMovedToTheEndRewritesAllThree) {
    EXPECT_EQ(Run(dialog,
                  [](kv::User& user) {
                      MoveFirstToTheEnd(user);
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_THAT(Changes(),
                ElementsAre("delete from NORVADON.nvd2000_area_order where seq = 1",
                            "insert into NORVADON.nvd2000_area_order values ('BETA', 1,1)",
                            "delete from NORVADON.nvd2000_area_order where seq = 2",
                            "insert into NORVADON.nvd2000_area_order values ('GAMMA', 2,3)",
                            "delete from NORVADON.nvd2000_area_order where seq = 3",
                            "insert into NORVADON.nvd2000_area_order values ('ALPHA', 3,2)"));
    EXPECT_EQ(Stored(), "BETA|1|1 GAMMA|2|3 ALPHA|3|2");
}

TEST_F(CustomOrder, RowsThatStayAreNotRewritten) {
    Run(dialog, [](kv::User& user) {
        user.Select(kAreas, "GAMMA");
        user.Click(kMoveUp);
        user.Click(IDOK);
    });
    EXPECT_EQ(Changes().size(), 4U);
    EXPECT_EQ(Stored(), "ALPHA|1|2 GAMMA|2|3 BETA|3|1");
}

TEST_F(CustomOrder, ResetAnsweredWithNoChangesNothing) {
    desktop.ExpectMessage(kSure, IDNO);
    Run(dialog, [&](kv::User& user) {
        user.Select(kAreas, "BETA");
        user.Click(kReset);
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("ALPHA", "BETA", "GAMMA"));
        EXPECT_THAT(user.Selected(kAreas), ElementsAre(1));
    });
    EXPECT_EQ(statements.size(), 2U);
}

TEST_F(CustomOrder, ResetShowsTheDefaultOrderWithNoneCurrent) {
    desktop.ExpectMessage(kSure, IDYES);
    Run(dialog, [&](kv::User& user) {
        user.Select(kAreas, 1);
        user.Click(kReset);
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("BETA", "ALPHA", "GAMMA"));
        EXPECT_THAT(user.Selected(kAreas), IsEmpty());
        EXPECT_THAT(Moves(user), ElementsAre(false, false, false, false));
    });
    EXPECT_EQ(statements.back(),
              "select areaname from NORVADON.nvd2000_area_order order by defseq");
}

TEST_F(CustomOrder, ResetAndOkStoreTheDefaultOrderWhereItDiffers) {
    desktop.ExpectMessage(kSure, IDYES);
    Run(dialog, [](kv::User& user) {
        user.Click(kReset);
        user.Click(IDOK);
    });
    EXPECT_EQ(Changes().size(), 4U);
    EXPECT_EQ(Stored(), "BETA|1|1 ALPHA|2|2 GAMMA|3|3");
}

TEST_F(CustomOrder, ResetAndCancelLeaveTheTable) {
    desktop.ExpectMessage(kSure, IDYES);
    EXPECT_EQ(Run(dialog,
                  [](kv::User& user) {
                      user.Click(kReset);
                      user.Click(IDCANCEL);
                  }),
              IDCANCEL);
    EXPECT_THAT(Changes(), IsEmpty());
    EXPECT_EQ(Stored(), kStored);
}

TEST_F(CustomOrder, AResetThatCannotReadLeavesTheListAsItWas) {
    desktop.ExpectMessage(kSure, IDYES);
    desktop.ExpectMessage("");
    Run(dialog, [&](kv::User& user) {
        MoveFirstToTheEnd(user);
        Change("alter table nvd2000_area_order rename to away");
        user.Click(kReset);
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("BETA", "GAMMA", "ALPHA"));
        EXPECT_THAT(user.Selected(kAreas), ElementsAre(2));
    });
    EXPECT_THAT(desktop.Messages().back(), HasSubstr("no such table"));
}

TEST_F(CustomOrder, AnAreaThatCameMeanwhileAndIsFirstByDefaultLosesNone) {
    desktop.ExpectMessage(kSure, IDYES);
    Run(dialog, [&](kv::User& user) {
        Change("insert into nvd2000_area_order values ('OMEGA', 4, 0)");
        user.Click(kReset);
        user.Click(IDOK);
    });
    EXPECT_EQ(Rows("select areaname, seq from nvd2000_area_order order by seq", 2),
              "OMEGA|1 BETA|2 ALPHA|3 GAMMA|4");
}

TEST_F(CustomOrder, ANameWithAQuoteIsStored) {
    Change("update nvd2000_area_order set areaname = 'O''HARA' where seq = 1");
    Run(dialog, [](kv::User& user) {
        MoveFirstToTheEnd(user);
        user.Click(IDOK);
    });
    EXPECT_EQ(Changes().back(), "insert into NORVADON.nvd2000_area_order values ('O''HARA', 3,2)");
    EXPECT_EQ(Stored(), "BETA|1|1 GAMMA|2|3 O'HARA|3|2");
}

TEST_F(CustomOrder, AGapIsToldWithTheAreasNameAndNothingIsWritten) {
    Change("update nvd2000_area_order set seq = 7 where seq = 3");
    desktop.ExpectMessage("");
    Run(dialog, [&](kv::User& user) {
        MoveFirstToTheEnd(user);
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
        EXPECT_THAT(user.Rows(kAreas), ElementsAre("BETA", "GAMMA", "ALPHA"));
    });
    EXPECT_THAT(desktop.Messages().back(),
                HasSubstr("\"ALPHA\" cannot have the position 3: not one area, but none or several "
                          "have it in the table NORVADON.nvd2000_area_order"));
    EXPECT_EQ(Stored(), "ALPHA|1|2 BETA|2|1 GAMMA|7|3");
}

TEST_F(CustomOrder, APositionThatTwoAreasHaveLosesNeither) {
    Change("update nvd2000_area_order set seq = 2 where seq = 3");
    desktop.ExpectMessage("");
    Run(dialog, [&](kv::User& user) {
        user.Select(kAreas, 0);
        user.Click(kMoveDown);
        user.Click(IDOK);
        EXPECT_TRUE(user.Open());
    });
    EXPECT_THAT(desktop.Messages().back(), HasSubstr("\"ALPHA\" cannot have the position 2"));
    EXPECT_EQ(Stored(), "ALPHA|1|2 BETA|2|1 GAMMA|2|3");
}

TEST_F(CustomOrder, AStartThatReadOneOrderOnlyShowsItAndLetsNothingBeChanged) {
    FailAt(0);
    Run(dialog, [](kv::User& user) { user.Click(IDCANCEL); });
    const int start = calls;
    for (int failing = 1; failing <= start; ++failing) {
        SCOPED_TRACE(failing);
        kv::db::SessionPool::Instance().Clear();
        desktop.ExpectMessage("");
        statements.clear();
        FailAt(failing);
        EXPECT_EQ(Run(dialog,
                      [&](kv::User& user) {
                          EXPECT_EQ(test::FocusedId(), kAreas);
                          EXPECT_FALSE(user.Enabled(kReset));
                          if (!user.Rows(kAreas).empty()) user.Select(kAreas, 1);
                          EXPECT_THAT(Moves(user), ElementsAre(false, false, false, false));
                          user.Click(IDOK);
                      }),
                  IDOK);
        EXPECT_THAT(Changes(), IsEmpty());
    }
    kv::db::SetDatabaseFault(nullptr);
    EXPECT_EQ(Stored(), kStored);
}

TEST_F(CustomOrder, WhicheverCallFailsAllIsWrittenOrNothingAndTheDialogStaysOpen) {
    const auto storeAgain = [this] {
        Change(std::string("drop table nvd2000_area_order;") + kTables);
    };
    FailAt(0);
    Run(dialog, [&](kv::User& user) {
        MoveFirstToTheEnd(user);
        calls = 0;
        user.Click(IDOK);
    });
    const int all = calls;
    EXPECT_GE(all, 7);
    for (int failing = 1; failing <= all; ++failing) {
        SCOPED_TRACE(failing);
        storeAgain();
        desktop.ExpectMessage("");
        const int result = Run(dialog, [&](kv::User& user) {
            MoveFirstToTheEnd(user);
            FailAt(failing);
            user.Click(IDOK);
            kv::db::SetDatabaseFault(nullptr);
            EXPECT_EQ(Stored(), kStored);
            ASSERT_TRUE(user.Open());
            EXPECT_THAT(user.Rows(kAreas), ElementsAre("BETA", "GAMMA", "ALPHA"));
            // The failure has passed.
            user.Click(IDOK);
        });
        EXPECT_EQ(result, IDOK);
        EXPECT_EQ(Stored(), "BETA|1|1 GAMMA|2|3 ALPHA|3|2");
    }
}

TEST_F(CustomOrder, ALockOfAnotherProgramIsToldAndTheOrderKeptOnTheScreen) {
    desktop.ExpectMessage("");
    sqlite3* other = nullptr;
    EXPECT_EQ(Run(dialog,
                  [&](kv::User& user) {
                      MoveFirstToTheEnd(user);
                      sqlite3_open(path.c_str(), &other);
                      sqlite3_exec(other, "begin immediate", nullptr, nullptr, nullptr);
                      user.Click(IDOK);
                      EXPECT_TRUE(user.Open());
                      sqlite3_close(other);
                      user.Click(IDOK);
                  }),
              IDOK);
    EXPECT_THAT(desktop.Messages().back(), HasSubstr("locked"));
    EXPECT_EQ(Stored(), "BETA|1|1 GAMMA|2|3 ALPHA|3|2");
}

TEST_F(CustomOrder, ADatabaseThatIsClosedToWritingIsTold) {
    std::filesystem::permissions(path, std::filesystem::perms(0444));
    std::filesystem::permissions(folder.Native(), std::filesystem::perms(0755));
    EXPECT_EXIT(test::ExitAsPlainUser(path,
                                      [&] {
                                          kv::db::SessionPool::Instance().Clear();
                                          desktop.ExpectMessage("");
                                          bool open = false;
                                          Run(dialog, [&](kv::User& user) {
                                              MoveFirstToTheEnd(user);
                                              user.Click(IDOK);
                                              open = user.Open();
                                          });
                                          return open && desktop.Messages().size() == 1 &&
                                                 desktop.Messages().back().find("readonly") !=
                                                     std::string::npos;
                                      }),
                testing::ExitedWithCode(0), "");
}

TEST_F(CustomOrder, WithoutADatabaseTheWordsAreShownAndTheDialogCanBeLeft) {
    test::ConnectTo(CKvDbInfo("", "", "sqlite:/nowhere/at_all.db"));
    desktop.ExpectMessage("");
    EXPECT_EQ(Run(dialog,
                  [](kv::User& user) {
                      EXPECT_EQ(test::FocusedId(), kAreas);
                      EXPECT_THAT(user.Rows(kAreas), IsEmpty());
                      user.Key(0, "Escape");
                  }),
              IDCANCEL);
    EXPECT_THAT(desktop.Messages().back(), StartsWith("Database error: Cannot open"));
}

}  // namespace
