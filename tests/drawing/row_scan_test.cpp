#include "drawing/row_scan.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using kv::vertices::RowScan;

TEST(RowScanning, TakesValuesOneBehindTheOtherWhateverTheWhiteSpace) {
    RowScan scan("  12.5\t7 x word\n 3 4");
    EXPECT_EQ(scan.Double(), 12.5);
    EXPECT_EQ(scan.Int(), 7);
    EXPECT_EQ(scan.Char(), 'x');
    EXPECT_EQ(scan.Token(), "word");
    EXPECT_EQ(scan.Float(), 3.0F);
    EXPECT_EQ(scan.Int(), 4);
    EXPECT_TRUE(scan.Found());
}

TEST(RowScanning, FindsNothingBehindWhatIsMissing) {
    const auto expectNothing = [](RowScan& scan) {
        EXPECT_FALSE(scan.Found());
        EXPECT_EQ(scan.Double(), 0.0);
        EXPECT_EQ(scan.Float(), 0.0F);
        EXPECT_EQ(scan.Int(), 0);
        EXPECT_EQ(scan.Char(), 0);
        EXPECT_EQ(scan.Token(), "");
        EXPECT_FALSE(scan.Found());
    };
    RowScan number("x 2 3");
    EXPECT_EQ(number.Double(), 0.0);
    expectNothing(number);
    RowScan integer("x 2 3");
    EXPECT_EQ(integer.Int(), 0);
    expectNothing(integer);
    RowScan character("1  ");
    EXPECT_EQ(character.Int(), 1);
    EXPECT_EQ(character.Char(), 0);
    expectNothing(character);
    RowScan token(" \t");
    EXPECT_EQ(token.Token(), "");
    expectNothing(token);
}

TEST(RowScanning, ANumberTooLargeForAFloatIsInfinite) {
    using Limits = std::numeric_limits<float>;
    RowScan scan("3.4028234663852886e38 -3.4028234663852886e38 1e39 -1e39");
    EXPECT_EQ(scan.Float(), Limits::max());
    EXPECT_EQ(scan.Float(), -Limits::max());
    EXPECT_EQ(scan.Float(), Limits::infinity());
    EXPECT_EQ(scan.Float(), -Limits::infinity());
}

}  // namespace
