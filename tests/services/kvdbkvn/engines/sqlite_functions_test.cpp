#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "services/kvdbkvn/session_pool.h"
#include "support/database_helpers.h"
#include "support/sqlite_file.h"
#include "support/temp_folder.h"

namespace test {
namespace {

using testing::HasSubstr;

/// What statements say on a file of SQLite's that SQLite by itself would not.
class SqliteFunctions : public testing::Test {
protected:
    SqliteFunctions() {
        kv::db::SessionPool::Instance().Clear();
        MakeSqliteFile(path_);
        RunOnSqliteFile(path_, "create table kvt (t text)");
        ConnectTo(CKvDbInfo("", "", ("sqlite:" + path_).c_str()));
        manager_.Connect();
    }

    /// That expression of `t` where it holds the text; null as "null".
    std::string Of(const std::string& expression, const std::string& text) {
        manager_.ExecuteDML("delete from kvt");
        manager_.Insert("insert into kvt values ('" + text + "')");
        manager_.Select("select nvl(" + expression + ", 'null') from kvt");
        return RowsOf(manager_, 1);
    }

    TempFolder folder_;
    std::string path_ = folder_.Native("kv.db");
    CKvDbAbsDataMgr manager_{1};
};

TEST_F(SqliteFunctions, LettersOfEveryScriptHaveTheirCases) {
    EXPECT_EQ(Of("upper(t)", "petróleos 9 ñandú žluť"), "PETRÓLEOS 9 ÑANDÚ ŽLUŤ");
    EXPECT_EQ(Of("lower(t)", "ÅSGARD ΔΟΚΙΜΗ НЕФТЬ"), "åsgard δοκιμη нефть");
    EXPECT_EQ(Of("upper(t)", "azAZ[`{@"), "AZAZ[`{@");
    EXPECT_EQ(Of("lower(t)", "azAZ[`{@"), "azaz[`{@");
}

TEST_F(SqliteFunctions, BytesThatAreNoCharacterKeepTheirValueInEitherCase) {
    EXPECT_EQ(Of("upper(t)", "a\xE9z\xC3"), "A\xE9Z\xC3");
    EXPECT_EQ(Of("lower(t)", "A\xE9Z\xC3"), "a\xE9z\xC3");
}

TEST_F(SqliteFunctions, NothingHasNoCaseAndNoDate) {
    EXPECT_EQ(Of("upper(t)", ""), "null");
    EXPECT_EQ(Of("lower(t)", ""), "null");
    EXPECT_EQ(Of("to_char(to_date(t, 'YYYYMMDD'), 'YYYY')", ""), "null");
}

TEST_F(SqliteFunctions, AColumnIsReadAsADate) {
    EXPECT_EQ(Of("to_date(t, 'MM/DD/YYYY')", "1/5/2024"), "2024-01-05 00:00:00");
    EXPECT_EQ(Of("to_char(to_date(t, 'DD-MON-RR') + 1, 'YYYYMMDD')", "31-dec-99"), "20000101");
    EXPECT_EQ(Of("to_date(substr(t, 1, 8), 'YYYYMMDD')", "20240229 and more"),
              "2024-02-29 00:00:00");
}

TEST_F(SqliteFunctions, AColumnThatIsNoDateIsAFailureWithItsTextAndTheFormat) {
    EXPECT_THAT(FailureOf([&] { Of("to_date(t, 'YYYY-MM-DD')", "2023-02-29"); }),
                HasSubstr("no date in the format \"YYYY-MM-DD\": \"2023-02-29\""));
}

TEST_F(SqliteFunctions, AFormatThatIsNotKnownIsRefusedWithItsPlace) {
    EXPECT_THAT(FailureOf([&] { Of("to_date(t, 'Q')", "1"); }), HasSubstr("'Q'"));
}

}  // namespace
}  // namespace test
