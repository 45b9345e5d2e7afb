#include "blocks/selection.h"

#include <gmock/gmock.h>

namespace {

using kv::blocks::IndexedSelection;
using kv::blocks::Selection;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(IndexedSelection, AddsWhatIsNotThere) {
    Selection selection;
    IndexedSelection index(selection);
    EXPECT_TRUE(index.Add("A", "1"));
    EXPECT_TRUE(index.Add("A", ""));
    EXPECT_TRUE(index.Add("A1", ""));
    EXPECT_FALSE(index.Add("A", "1"));
    EXPECT_FALSE(index.Add("A", ""));
    EXPECT_THAT(selection.first, ElementsAre("A", "A", "A1"));
    EXPECT_THAT(selection.second, ElementsAre("1", "", ""));
}

TEST(IndexedSelection, TellsLettersApartByCase) {
    Selection selection{{"Area"}, {"1a"}};
    const IndexedSelection index(selection);
    EXPECT_TRUE(index.Has("Area", "1a"));
    EXPECT_FALSE(index.Has("AREA", "1a"));
    EXPECT_FALSE(index.Has("Area", "1A"));
    EXPECT_FALSE(index.Has("", ""));
}

TEST(IndexedSelection, KeepsDoublesThatTheCallerHas) {
    Selection selection{{"A", "A"}, {"1", "1"}};
    IndexedSelection index(selection);
    EXPECT_FALSE(index.Add("A", "1"));
    EXPECT_THAT(selection.first, ElementsAre("A", "A"));
}

TEST(IndexedSelection, CutsVectorsThatAreNotOfOneLength) {
    Selection selection{{"A", "B"}, {"1"}};
    const IndexedSelection index(selection);
    EXPECT_THAT(selection.first, ElementsAre("A"));
    EXPECT_TRUE(index.Has("A", "1"));
    EXPECT_FALSE(index.Has("B", ""));
}

TEST(IndexedSelection, CutsBlocksThatHaveNoArea) {
    Selection selection{{"A"}, {"1", "2"}};
    IndexedSelection index(selection);
    EXPECT_THAT(selection.second, ElementsAre("1"));
    EXPECT_TRUE(index.Add("B", "3"));
    EXPECT_THAT(selection.first, ElementsAre("A", "B"));
    EXPECT_THAT(selection.second, ElementsAre("1", "3"));
}

TEST(IndexedSelection, FindsEachOfManyEntriesAndNoOther) {
    constexpr int kAreas = 40;
    constexpr int kBlocks = 500;
    Selection selection;
    IndexedSelection index(selection);
    for (int i = 0; i < kAreas * kBlocks; ++i) {
        ASSERT_TRUE(index.Add("AREA " + std::to_string(i % kAreas), std::to_string(i / kAreas)));
    }
    for (int i = 0; i < kAreas * kBlocks; ++i) {
        const std::string area = "AREA " + std::to_string(i % kAreas);
        ASSERT_TRUE(index.Has(area, std::to_string(i / kAreas)));
        ASSERT_FALSE(index.Has(area, std::to_string(kBlocks + i / kAreas)));
    }
    EXPECT_EQ(selection.first.size(), static_cast<std::size_t>(kAreas * kBlocks));
}

TEST(RemoveEntries, TakesEveryEntryOfAPlaceAndKeepsTheOrderOfTheOthers) {
    Selection selection{{"A", "B", "A", "C", "A"}, {"1", "", "1", "2", ""}};
    kv::blocks::RemoveEntries(selection, {{"A", "1"}, {"C", "2"}, {"D", ""}});
    EXPECT_THAT(selection.first, ElementsAre("B", "A"));
    EXPECT_THAT(selection.second, ElementsAre("", ""));
    kv::blocks::RemoveEntries(selection, {{"A", ""}, {"B", ""}});
    EXPECT_THAT(selection.first, IsEmpty());
    EXPECT_THAT(selection.second, IsEmpty());
}

}  // namespace
