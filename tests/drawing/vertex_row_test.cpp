#include "drawing/vertex_row.h"

#include <gtest/gtest.h>

namespace {

using kv::vertices::ReadLatLon;
using kv::vertices::ReadXy;

TEST(AForeignLine, IsXAndYWhereItHoldsTwoNumbersAndNothingElse) {
    for (const char* text : {"1.5 2", "1.5,2", " 1.5 ;\t2 "}) {
        const auto pair = ReadXy(text);
        ASSERT_TRUE(pair) << text;
        EXPECT_EQ(pair->first, 1.5) << text;
        EXPECT_EQ(pair->second, 2.0) << text;
    }
    for (const char* text : {"", "1", "x", "1 x", "1 2 3", "1 2 x"})
        EXPECT_FALSE(ReadXy(text)) << text;
}

TEST(AForeignLine, IsAPositionWhereItTellsBothAngles) {
    const auto pair = ReadLatLon("28.5N 91.25W");
    ASSERT_TRUE(pair);
    EXPECT_EQ(pair->first, 28.5);
    EXPECT_EQ(pair->second, -91.25);
    for (const char* text : {"", "x", "28.5N", "91.25W", "28.5"})
        EXPECT_FALSE(ReadLatLon(text)) << text;
}

TEST(AForeignLine, HasALongitudeUpTo180) {
    for (const char* text : {"28, 180", "28, -180"})
        EXPECT_TRUE(ReadLatLon(text)) << text;
    for (const char* text : {"28, 180.5", "28, -181"})
        EXPECT_FALSE(ReadLatLon(text)) << text;
}

}  // namespace
