#include "frame/kvcom/disp_point.h"

#include <gtest/gtest.h>

#include "frame/kvcom/min_max_2dd.h"

namespace {

TEST(CKvDispPoint, IsMadeFromNumbers) {
    EXPECT_EQ(CKvDispPoint(), CKvDispPoint(0.0, 0.0, 0.0));
    const CKvDispPoint point(1.5, -2.5, 3.5);
    EXPECT_EQ(point.GetX(), 1.5);
    EXPECT_EQ(point.GetY(), -2.5);
    EXPECT_EQ(point.GetZ(), 3.5);
}

TEST(CKvDispPoint, IsMadeFromTexts) {
    EXPECT_EQ(CKvDispPoint("28.5", " -89.25x", "", true), CKvDispPoint(28.5, -89.25, 0.0));
    EXPECT_EQ(CKvDispPoint("wrong", "0x10", "1e2", false), CKvDispPoint(0.0, 0.0, 100.0));
}

TEST(CMinMax2Dd, GivesItsCornersAsPoints) {
    CMinMax2Dd_t bounds;
    EXPECT_EQ(bounds.GetMin(), CKvDispPoint());
    bounds = {1.0, 2.0, 3.0, 4.0};
    EXPECT_EQ(bounds.GetMin(), CKvDispPoint(1.0, 3.0));
    EXPECT_EQ(bounds.GetMax(), CKvDispPoint(2.0, 4.0));
}

}  // namespace
