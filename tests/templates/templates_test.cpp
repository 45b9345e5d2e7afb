#include <gmock/gmock.h>

#include <set>

#include "support/template_check.h"
#include "window/resources.h"

namespace {

const std::vector<const kv::DialogTemplate*>& Templates() {
    return kv::LibraryResources().templates;
}

class LibraryTemplates : public testing::TestWithParam<const kv::DialogTemplate*> {};

TEST_P(LibraryTemplates, AreLaidOutSoundly) {
    EXPECT_THAT(test::CheckTemplate(*GetParam()), testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(, LibraryTemplates, testing::ValuesIn(Templates()),
                         [](const auto& each) { return std::to_string(each.param->id); });

TEST(TemplateIds, AreGivenOnce) {
    std::set<int> ids;
    for (const kv::DialogTemplate* each : Templates()) {
        EXPECT_TRUE(ids.insert(each->id).second) << each->id << " " << each->caption;
    }
    EXPECT_FALSE(ids.empty());
}

}  // namespace
