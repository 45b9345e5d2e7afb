#include "frame/kvcom/driver_calls.h"

#include <gtest/gtest.h>

#include "frame/kvcom/util_lldrv.h"

namespace {

TEST(DriverCalls, AreCountedEachWayAndAlsoWithoutAnAnswer) {
    const kv::coord::DriverCalls before = kv::coord::CountedDriverCalls();
    double first = 0.0;
    double second = 0.0;
    CKvUtilLLdrv::LLdrv(28.5, -91.25, &first, &second, 115, 0, 1, 100.0F, 0.0F, 0.0F);
    CKvUtilLLdrv::LLdrv(28.5, -91.25, &first, &second, -1, 0, 1, 100.0F, 0.0F, 0.0F);
    EXPECT_EQ(kv::coord::CountedDriverCalls().toXY, before.toXY + 2);
    EXPECT_EQ(kv::coord::CountedDriverCalls().toAngles, before.toAngles);
    CKvUtilLLdrv::XYdrv(2'000'000.0, 0.0, &first, &second, 3, 0, 1, 100.0F, 0.0F, 0.0F);
    EXPECT_EQ(kv::coord::CountedDriverCalls().toXY, before.toXY + 2);
    EXPECT_EQ(kv::coord::CountedDriverCalls().toAngles, before.toAngles + 1);
}

}  // namespace
