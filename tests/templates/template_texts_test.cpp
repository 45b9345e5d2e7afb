#include "support/template_texts.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "window/templates/resources.h"

namespace {

TEST(TemplateTexts, AreThoseThatAreTold) {
    std::vector<int> ids;
    for (const kv::DialogTemplate* each : kv::LibraryResources().templates) {
        ids.push_back(each->id);
        test::ExpectToldTexts(each->id);
    }
    std::ranges::sort(ids);
    EXPECT_EQ(ids, test::ToldTemplates());
}

TEST(TemplateSizes, AreTheseWhereTheyAreGiven) {
    const std::map<int, std::pair<int, int>> kSizes{{182, {511, 240}},
                                                    {15129, {513, 249}},
                                                    {13060, {428, 19}},
                                                    {15126, {265, 155}},
                                                    {15131, {210, 164}}};
    std::size_t found = 0;
    for (const kv::DialogTemplate* each : kv::LibraryResources().templates) {
        const auto size = kSizes.find(each->id);
        if (size == kSizes.end()) continue;
        ++found;
        EXPECT_EQ(std::pair(each->width, each->height), size->second) << each->id;
    }
    EXPECT_EQ(found, kSizes.size());
}

}  // namespace
