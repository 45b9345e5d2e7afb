#include "services/kvcom/projections.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

namespace {

int g_failures = 0;

}  // namespace

/// Stands ahead of PROJ's own, and fails so many times.
extern "C" PJ* proj_create(PJ_CONTEXT* context, const char* definition) {
    if (g_failures > 0) {
        --g_failures;
        return nullptr;
    }
    using Create = PJ* (*)(PJ_CONTEXT*, const char*);
    static const auto create = reinterpret_cast<Create>(dlsym(RTLD_NEXT, "proj_create"));
    return create(context, definition);
}

namespace test {
namespace {

using kv::coord::Projections;

TEST(Projections, AFailureOfProjIsNotKept) {
    g_failures = 1;
    EXPECT_EQ(Projections::Get().Find(3), nullptr);
    EXPECT_NE(Projections::Get().Find(3), nullptr);
    EXPECT_EQ(g_failures, 0);
}

TEST(Projections, KeepsWhatItBuilt) {
    const auto* first = Projections::Get().Find(3);
    ASSERT_NE(first, nullptr);
    Projections::Get().Find(115);
    EXPECT_EQ(Projections::Get().Find(3)->operation.get(), first->operation.get());
}

TEST(Projections, ARegistrationThatProjFailsInMayBeTriedAgain) {
    // It is read as a reference system, and then for itself.
    g_failures = 2;
    EXPECT_FALSE(Projections::Get().Register(6020, "+proj=utm +zone=15 +ellps=clrk66"));
    g_failures = 0;
    EXPECT_TRUE(Projections::Get().Register(6020, "+proj=utm +zone=15 +ellps=clrk66"));
    EXPECT_NE(Projections::Get().Find(6020), nullptr);
}

}  // namespace
}  // namespace test
