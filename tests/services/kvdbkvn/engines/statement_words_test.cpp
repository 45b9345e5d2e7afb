#include "services/kvdbkvn/engines/statement_words.h"

#include <gtest/gtest.h>

namespace test {
namespace {

using kv::db::HoldsTwoStatements;
using kv::db::OnlyReads;

TEST(StatementWords, AQueryReads) {
    EXPECT_TRUE(OnlyReads("select a from t"));
    EXPECT_TRUE(OnlyReads("  SELECT a FROM t;  "));
    EXPECT_TRUE(OnlyReads("with x as (select 1) select * from x"));
    EXPECT_TRUE(OnlyReads("(select 1) union (select 2)"));
    EXPECT_TRUE(OnlyReads("select/*+ index(t) */ a from t"));
    EXPECT_TRUE(OnlyReads("select 'it''s' from \"a t\" where b='C:\\x'"));
}

TEST(StatementWords, WordsInsideTextsAndNamesDoNotCount) {
    EXPECT_TRUE(OnlyReads("select 'delete from t; drop' from t"));
    EXPECT_TRUE(OnlyReads("select \"update\", updated, recreate from t"));
}

TEST(StatementWords, WhateverDoesMoreDoesNotRead) {
    for (const char* text :
         {"insert into t values (1)", "delete from t", "update t set a = 1", "merge into t",
          "drop table t", "create table t (a int)", "select a into u from t",
          "with x as (delete from t returning a) select a from x", "select a from t for update",
          "select a from t delete from t", "call f()", "commit", "pragma user_version = 1", "",
          "values (1)", "select a from t; delete from t", "select 1; select 2"})
        EXPECT_FALSE(OnlyReads(text)) << text;
}

TEST(StatementWords, ATextWhoseEndDependsOnTheEngineDoesNotPassAsReading) {
    for (const char* text :
         {"select '\\' from t", "select e'a\\'' from t", "select q'[it's]' from t",
          "select $$it's$$ from t", "select $x$it's$x$ from t", "select `a'b` from t",
          "select [a'b] from t", "select a /* ' */ from t", "select a -- it's\n from t",
          "select 'open from t", "select a /* /* */ ' */; delete from t --'"})
        EXPECT_FALSE(OnlyReads(text)) << text;
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
