#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <vector>

#include "support/template_check.h"
#include "window/templates/resources.h"

namespace {

const std::vector<const kv::DialogTemplate*>& Templates() {
    return kv::LibraryResources().templates;
}

/// By their ids, which name the tests; addresses would name them anew in every run.
std::vector<int> Ids() {
    std::vector<int> ids;
    for (const kv::DialogTemplate* each : Templates())
        ids.push_back(static_cast<int>(each->id));
    return ids;
}

class LibraryTemplates : public testing::TestWithParam<int> {};

TEST_P(LibraryTemplates, AreLaidOutSoundly) {
    const auto& templates = Templates();
    const auto found = std::ranges::find_if(templates, [](const kv::DialogTemplate* each) {
        return static_cast<int>(each->id) == GetParam();
    });
    ASSERT_NE(found, templates.end());
    EXPECT_THAT(test::CheckTemplate(**found), testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(, LibraryTemplates, testing::ValuesIn(Ids()),
                         [](const auto& each) { return std::to_string(each.param); });

TEST(TemplateIds, AreGivenOnce) {
    std::set<int> ids;
    for (const kv::DialogTemplate* each : Templates()) {
        EXPECT_TRUE(ids.insert(each->id).second) << each->id << " " << each->caption;
    }
    EXPECT_FALSE(ids.empty());
}

}  // namespace
