#include "services/kvdbkvn/engines/statement_words.h"

#include <gtest/gtest.h>

#include <string>

namespace test {
namespace {

using kv::db::HoldsTwoStatements;
using kv::db::Quoting;
using kv::db::Reading;
using kv::db::ReadingOf;

Reading Of(const char* sql) {
    return ReadingOf(sql, Quoting::kUnknown);
}

TEST(StatementWords, AQueryReads) {
    EXPECT_EQ(Of("select a from t"), Reading::kReads);
    EXPECT_EQ(Of("  SELECT a FROM t;  "), Reading::kReads);
    EXPECT_EQ(Of("with x as (select 1) select * from x"), Reading::kReads);
    EXPECT_EQ(Of("(select 1) union (select 2)"), Reading::kReads);
    EXPECT_EQ(Of("select/*+ index(t) */ a from t"), Reading::kReads);
    EXPECT_EQ(Of("select 'it''s' from \"a t\" where b='C:\\x'"), Reading::kReads);
}

TEST(StatementWords, WordsInsideTextsAndNamesDoNotCount) {
    EXPECT_EQ(Of("select 'delete from t; drop' from t"), Reading::kReads);
    EXPECT_EQ(Of("select \"update\", updated, recreate from t"), Reading::kReads);
}

TEST(StatementWords, WhateverDoesMoreDoesNotRead) {
    for (const char* text : {"insert into t values (1)",
                             "delete from t",
                             "update t set a = 1",
                             "merge into t",
                             "drop table t",
                             "create table t (a int)",
                             "select a into u from t",
                             "with x as (delete from t returning a) select a from x",
                             "select a from t for update",
                             "select a from t delete from t",
                             "call f()",
                             "commit",
                             "pragma user_version = 1",
                             "",
                             "values (1)",
                             "select a from t; delete from t",
                             "select 1; select 2",
                             "/* select */ end",
                             "-- with\nabort",
                             "'select' select"})
        EXPECT_EQ(Of(text), Reading::kDoesMore) << text;
}

TEST(StatementWords, EachWordThatMayDoMoreIsSeenAnywhere) {
    for (const std::string word :
         {"insert",  "update", "delete",   "merge",    "into",      "drop",    "alter",
          "create",  "begin",  "truncate", "grant",    "revoke",    "call",    "exec",
          "execute", "commit", "lock",     "rollback", "savepoint", "declare", "set",
          "rename",  "attach", "detach",   "pragma",   "vacuum",    "reindex", "copy"}) {
        EXPECT_EQ(ReadingOf("with x as (" + word + " t) select a from x", Quoting::kUnknown),
                  Reading::kDoesMore)
            << word;
        EXPECT_EQ(ReadingOf("select " + word + "s from t", Quoting::kUnknown), Reading::kReads)
            << word;
    }
}

TEST(StatementWords, ATextWhoseEndDependsOnTheEngineDoesNotPassAsReading) {
    for (const char* text :
         {"select '\\' from t", "select e'a\\'' from t", "select q'[it's]' from t",
          "select $$it's$$ from t", "select $x$it's$x$ from t", "select `a'b` from t",
          "select [a'b] from t", "select a /* ' */ from t", "select a -- it's\n from t",
          "select 'open from t", "select a /* /* */ ' */; delete from t --'"})
        EXPECT_EQ(Of(text), Reading::kDoubtful) << text;
}

TEST(StatementWords, ABackslashKeepsNoQuoteWhereTheEngineIsKnown) {
    for (const Quoting quoting : {Quoting::kStandard, Quoting::kSqlite})
        EXPECT_EQ(ReadingOf("select 'C:\\' from t", quoting), Reading::kReads);
    EXPECT_EQ(ReadingOf("select 'C:\\'; delete from t", Quoting::kStandard), Reading::kDoesMore);
}

TEST(StatementWords, GraveAccentsEncloseNamesOnSqliteAlone) {
    EXPECT_EQ(ReadingOf("select `a'b`, `update` from t", Quoting::kSqlite), Reading::kReads);
    EXPECT_EQ(ReadingOf("select `a` from t", Quoting::kStandard), Reading::kDoubtful);
}

TEST(StatementWords, ASecondStatementIsSeenBehindASemicolonOutsideOfTexts) {
    EXPECT_TRUE(HoldsTwoStatements("delete from t; delete from u"));
    EXPECT_TRUE(HoldsTwoStatements("delete from t;-- x"));
    EXPECT_FALSE(HoldsTwoStatements("delete from t"));
    EXPECT_FALSE(HoldsTwoStatements("delete from t ; ; \n"));
    EXPECT_FALSE(HoldsTwoStatements("insert into t values ('a;b', \"c;d\")"));
}

TEST(StatementWords, ABlockIsOneStatement) {
    EXPECT_FALSE(HoldsTwoStatements("begin p(1); p(2); end;"));
    EXPECT_FALSE(HoldsTwoStatements("create trigger t begin delete from u; end"));
}

}  // namespace
}  // namespace test
