#include "window/rows/row_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "base/text.h"

using kv::RowList;

namespace {

constexpr int kManyRows = 100'000;

std::vector<std::string> TextsOf(const RowList& rows) {
    std::vector<std::string> texts;
    for (int row = 0; row < rows.Count(); ++row)
        texts.emplace_back(rows.Text(row));
    return texts;
}

/// The same rows kept in the plainest way, every look-up a walk.
class PlainRows {
public:
    explicit PlainRows(bool sorted) : sorted_(sorted) {}

    struct Row {
        std::string text;
        bool marked = false;
        LPARAM data = 0;
    };
    std::vector<Row> rows;

    int Add(const std::string& text) {
        auto at = rows.end();
        if (sorted_) {
            at = std::upper_bound(rows.begin(), rows.end(), text,
                                  [](const std::string& value, const Row& row) {
                                      return kv::CompareNoCase(value, row.text) < 0;
                                  });
        }
        const auto place = static_cast<int>(at - rows.begin());
        rows.insert(at, Row{text});
        return place;
    }
    template <typename Matches>
    int Find(int start, Matches matches) const {
        const int count = static_cast<int>(rows.size());
        for (int step = 1; step <= count; ++step) {
            const int row = (start + step) % count;
            if (matches(rows[static_cast<std::size_t>(row)].text)) return row;
        }
        return -1;
    }
    int FindPrefix(const std::string& prefix, int start) const {
        return Find(start,
                    [&](const std::string& text) { return kv::StartsWithNoCase(text, prefix); });
    }
    int FindExact(const std::string& whole, int start) const {
        return Find(start, [&](const std::string& text) { return kv::EqualsNoCase(text, whole); });
    }

private:
    bool sorted_;
};

/// Few letters, so that many rows share their beginnings or are the same.
std::string RandomText(std::mt19937& random) {
    std::string text(random() % 12, ' ');
    for (char& ch : text)
        ch = "abAB"[random() % 4];
    return text;
}

class BesidePlainRows {
public:
    BesidePlainRows(bool sorted, unsigned seed) : rows_(sorted), plain_(sorted), random_(seed) {}

    void Step(bool withInserts) {
        switch (random_() % (withInserts ? 7 : 6)) {
            case 0:
            case 1: {
                const std::string text = RandomText(random_);
                ASSERT_EQ(rows_.Add(text), plain_.Add(text));
                break;
            }
            case 2:
                Remove();
                break;
            case 3:
                Mark();
                break;
            case 4:
            case 5:
                Find();
                break;
            default:
                Insert();
                break;
        }
    }
    void ExpectTheSame() {
        ASSERT_EQ(rows_.Count(), static_cast<int>(plain_.rows.size()));
        std::vector<int> marked;
        for (int row = 0; row < rows_.Count(); ++row) {
            const auto& plain = plain_.rows[static_cast<std::size_t>(row)];
            ASSERT_EQ(rows_.Text(row), plain.text);
            ASSERT_EQ(rows_.Marked(row), plain.marked);
            ASSERT_EQ(rows_.Data(row), plain.data);
            if (plain.marked) marked.push_back(row);
        }
        ASSERT_EQ(rows_.MarkedRows(), marked);
        ASSERT_EQ(rows_.MarkedCount(), static_cast<int>(marked.size()));
    }

private:
    int AnyRow() { return static_cast<int>(random_() % plain_.rows.size()); }
    void Remove() {
        if (plain_.rows.empty()) return;
        const int row = AnyRow();
        rows_.Remove(row);
        plain_.rows.erase(plain_.rows.begin() + row);
    }
    void Insert() {
        const int row = static_cast<int>(random_() % (plain_.rows.size() + 1));
        const std::string text = RandomText(random_);
        rows_.Insert(row, text);
        plain_.rows.insert(plain_.rows.begin() + row, PlainRows::Row{text});
    }
    void Mark() {
        if (plain_.rows.empty()) return;
        const int row = AnyRow();
        auto& plain = plain_.rows[static_cast<std::size_t>(row)];
        const bool marked = random_() % 2 == 0;
        ASSERT_EQ(rows_.SetMarked(row, marked), plain.marked != marked);
        plain.marked = marked;
        plain.data = static_cast<LPARAM>(random_());
        rows_.SetData(row, plain.data);
    }
    void Find() {
        const int count = static_cast<int>(plain_.rows.size());
        if (count == 0) return;
        const int start = static_cast<int>(random_() % static_cast<unsigned>(count + 1)) - 1;
        const std::string text = RandomText(random_);
        ASSERT_EQ(rows_.FindExact(text, start), plain_.FindExact(text, start)) << text;
        const std::string prefix = text.substr(0, random_() % 4);
        const int expected = prefix.empty() ? -1 : plain_.FindPrefix(prefix, start);
        ASSERT_EQ(rows_.FindPrefix(prefix, start), expected) << prefix << " from " << start;
    }

    RowList rows_;
    PlainRows plain_;
    std::mt19937 random_;
};

void ExpectTheSameUnderRandomSteps(bool sorted, bool withInserts) {
    for (unsigned seed = 1; seed <= 4; ++seed) {
        BesidePlainRows rows(sorted, seed);
        for (int step = 0; step < 6000; ++step) {
            rows.Step(withInserts);
            if (testing::Test::HasFatalFailure()) return;
            if (step % 500 == 0) rows.ExpectTheSame();
        }
        rows.ExpectTheSame();
    }
}

}  // namespace

TEST(RowList, KeepsTheOrderInWhichRowsCame) {
    RowList rows;
    EXPECT_EQ(rows.Add("pear"), 0);
    EXPECT_EQ(rows.Add("Apple"), 1);
    EXPECT_EQ(rows.Add("fig"), 2);
    EXPECT_EQ(TextsOf(rows), (std::vector<std::string>{"pear", "Apple", "fig"}));
}

TEST(RowList, SortsWithoutRegardToCaseAndPutsEqualRowsBehind) {
    RowList rows(true);
    EXPECT_EQ(rows.Add("pear"), 0);
    EXPECT_EQ(rows.Add("Apple"), 0);
    EXPECT_EQ(rows.Add("fig"), 1);
    EXPECT_EQ(rows.Add("PEAR"), 3);
    EXPECT_EQ(rows.Add("apple"), 1);
    EXPECT_EQ(TextsOf(rows), (std::vector<std::string>{"Apple", "apple", "fig", "pear", "PEAR"}));
}

TEST(RowList, InsertDoesNotSortIn) {
    RowList rows(true);
    rows.Add("a");
    rows.Add("b");
    rows.Insert(0, "z");
    rows.Insert(3, "c");
    EXPECT_EQ(TextsOf(rows), (std::vector<std::string>{"z", "a", "b", "c"}));
    EXPECT_EQ(rows.FindPrefix("a", -1), 1);
}

TEST(RowList, FindsAPrefixWithoutRegardToCase) {
    RowList rows;
    rows.Add("Green Canyon");
    rows.Add("GARDEN BANKS");
    EXPECT_EQ(rows.FindPrefix("garden", -1), 1);
    EXPECT_EQ(rows.FindPrefix("G", -1), 0);
    EXPECT_EQ(rows.FindPrefix("anyon", -1), -1);
}

TEST(RowList, SearchesFromTheRowBehindTheStartAndRoundToIt) {
    RowList rows;
    for (const char* text : {"b1", "a1", "b2", "a2"})
        rows.Add(text);
    EXPECT_EQ(rows.FindPrefix("a", 1), 3);
    EXPECT_EQ(rows.FindPrefix("a", 3), 1);
    EXPECT_EQ(rows.FindPrefix("b1", 0), 0);
    EXPECT_EQ(rows.FindExact("B1", 0), 0);
    EXPECT_EQ(rows.FindExact("B2", 2), 2);
}

TEST(RowList, AStartThatIsNoRowMeansFromTheTop) {
    RowList rows;
    rows.Add("a");
    rows.Add("ab");
    EXPECT_EQ(rows.FindPrefix("a", -1), 0);
    EXPECT_EQ(rows.FindPrefix("a", 2), 0);
    EXPECT_EQ(rows.FindExact("ab", -7), 1);
}

TEST(RowList, AnEmptyTextBeginsNoRow) {
    RowList rows;
    rows.Add("");
    rows.Add("a");
    EXPECT_EQ(rows.FindPrefix("", -1), -1);
    EXPECT_EQ(rows.FindExact("", -1), 0);
}

TEST(RowList, FindsNothingInAnEmptyList) {
    const RowList rows;
    EXPECT_EQ(rows.FindPrefix("a", -1), -1);
    EXPECT_EQ(rows.FindExact("", 0), -1);
}

TEST(RowList, TakesTextsAsBytes) {
    RowList rows;
    rows.Add("28\xB0 30'");
    rows.Add(
        "\xC3\x84"
        "sop");
    rows.Add("\xFF");
    EXPECT_EQ(rows.Text(0), "28\xB0 30'");
    EXPECT_EQ(rows.FindExact("28\xB0 30'", -1), 0);
    EXPECT_EQ(rows.FindPrefix("\xC3\x84S", -1), 1);
    EXPECT_EQ(rows.FindPrefix("\xC3\xA4", -1), -1);
    EXPECT_EQ(rows.FindExact("\xFF", -1), 2);
}

TEST(RowList, ItemDataAndMarksGoAlongWithTheirRows) {
    RowList rows;
    rows.Add("a");
    rows.Add("b");
    rows.SetData(1, 42);
    rows.SetMarked(1, true);
    rows.Insert(0, "c");
    EXPECT_EQ(rows.Data(2), 42);
    EXPECT_EQ(rows.MarkedRows(), std::vector<int>{2});
    rows.Remove(0);
    rows.Remove(0);
    EXPECT_EQ(rows.Data(0), 42);
    EXPECT_TRUE(rows.Marked(0));
    rows.Remove(0);
    EXPECT_EQ(rows.MarkedCount(), 0);
    rows.Add("d");
    EXPECT_FALSE(rows.Marked(0));
    EXPECT_EQ(rows.Data(0), 0);
}

TEST(RowList, MarkingAllReachesEveryRow) {
    RowList rows;
    for (int i = 0; i < 1000; ++i)
        rows.Add(std::to_string(i));
    EXPECT_TRUE(rows.SetAllMarked(true));
    EXPECT_FALSE(rows.SetAllMarked(true));
    EXPECT_EQ(rows.MarkedCount(), 1000);
    EXPECT_TRUE(rows.SetAllMarked(false));
    EXPECT_TRUE(rows.MarkedRows().empty());
}

TEST(RowList, DoesAsAPlainListDoes) {
    ExpectTheSameUnderRandomSteps(false, true);
}

TEST(RowList, SortedDoesAsAPlainListDoes) {
    ExpectTheSameUnderRandomSteps(true, false);
}

TEST(RowList, SortedWithRowsOutOfOrderFindsAllTheSame) {
    RowList rows(true);
    for (int i = 0; i < 500; ++i)
        rows.Add("row " + std::to_string(i));
    rows.Insert(0, "zebra");
    rows.Insert(300, "aardvark");
    EXPECT_EQ(rows.FindExact("zebra", -1), 0);
    EXPECT_EQ(rows.FindPrefix("aard", 301), 300);
    EXPECT_EQ(rows.Text(rows.FindExact("row 499", -1)), "row 499");
}

TEST(RowList, RowsPutInAtOnePlaceAreFoundInTheirOrder) {
    for (const bool ascending : {true, false}) {
        RowList rows;
        for (int i = 0; i < 100; ++i)
            rows.Add(i < 50 ? "first" : "last");
        ASSERT_EQ(rows.FindExact("last", -1), 50);
        for (int i = 0; i < 20'000; ++i)
            rows.Insert(ascending ? 50 + i : 50, "same");
        EXPECT_EQ(rows.FindExact("same", -1), 50);
        for (int row = 50; row < 20'050; row += 997) {
            ASSERT_EQ(rows.FindExact("same", row - 1), row);
        }
        EXPECT_EQ(rows.FindExact("same", 20'049), 50);
        EXPECT_EQ(rows.FindExact("last", 60), 20'050);
    }
}

TEST(RowList, RowsPutInBetweenTwoOthersAreFoundInTheirOrder) {
    RowList rows;
    for (int i = 0; i < 100; ++i)
        rows.Add("edge");
    ASSERT_EQ(rows.FindExact("edge", 70), 71);
    // Each goes between the last two, so that less and less room is left.
    int low = 40;
    int high = 41;
    for (int i = 0; i < 400; ++i) {
        rows.Insert(high, "same");
        if (i % 2 == 0) {
            low = high;
            ++high;
        }
    }
    for (int row = 0; row + 1 < rows.Count(); ++row) {
        ASSERT_EQ(rows.FindPrefix(rows.Text(row + 1), row), row + 1);
    }
    EXPECT_GT(low, 40);
}

TEST(RowList, FindsEachOfManyRows) {
    for (const bool sorted : {false, true}) {
        RowList rows(sorted);
        std::mt19937 random(7);
        std::vector<std::string> texts;
        for (int i = 0; i < kManyRows; ++i)
            texts.push_back("OCS-G " + std::to_string(i));
        std::shuffle(texts.begin(), texts.end(), random);
        for (const std::string& text : texts)
            rows.Add(text);
        ASSERT_EQ(rows.Count(), kManyRows);
        for (const std::string& text : texts) {
            ASSERT_EQ(rows.Text(rows.FindExact(text, -1)), text);
            const int found = rows.FindPrefix(text, -1);
            ASSERT_TRUE(kv::StartsWithNoCase(rows.Text(found), text));
        }
        EXPECT_EQ(rows.FindPrefix("ocs-g ", 5), 6);
        EXPECT_EQ(rows.FindPrefix("ocs-g ", kManyRows - 1), 0);
        EXPECT_EQ(rows.FindPrefix("ocs-h", -1), -1);
    }
}

TEST(RowList, WalksThroughManyRowsOfOneBeginning) {
    RowList rows;
    for (int i = 0; i < kManyRows; ++i) {
        rows.Add((i % 1000 == 999 ? "B " : "A ") + std::to_string(i));
    }
    int row = -1;
    for (int expected = 999; expected < kManyRows; expected += 1000) {
        row = rows.FindPrefix("b ", row);
        ASSERT_EQ(row, expected);
    }
    EXPECT_EQ(rows.FindPrefix("b ", row), 999);
}

TEST(RowList, LosesManyRowsOneByOneFromAnyPlace) {
    for (const unsigned from : {0u, 1u, 2u}) {
        RowList rows;
        for (int i = 0; i < kManyRows; ++i)
            rows.Add(std::to_string(i));
        rows.SetAllMarked(true);
        ASSERT_EQ(rows.FindExact("99999", -1), 99'999);
        std::mt19937 random(11);
        long long sum = 0;
        while (rows.Count() > 0) {
            const int count = rows.Count();
            const int row = from == 0   ? 0
                            : from == 1 ? count - 1
                                        : static_cast<int>(random() % static_cast<unsigned>(count));
            const std::string text(rows.Text(row));
            ASSERT_EQ(rows.FindExact(text, -1), row);
            rows.Remove(row);
            ASSERT_EQ(rows.MarkedCount(), count - 1);
            sum += std::stoi(text);
        }
        EXPECT_EQ(sum, 1LL * kManyRows * (kManyRows - 1) / 2);
        EXPECT_EQ(rows.FindExact("5", -1), -1);
    }
}

TEST(RowList, SortsManyRowsThatComeInAnyOrder) {
    RowList rows(true);
    std::mt19937 random(3);
    std::vector<std::string> texts;
    for (int i = 0; i < kManyRows; ++i)
        texts.push_back(std::to_string(random() % 50'000));
    for (const std::string& text : texts)
        ASSERT_EQ(rows.Text(rows.Add(text)), text);
    std::sort(texts.begin(), texts.end());
    EXPECT_EQ(TextsOf(rows), texts);
}

TEST(RowList, ManyRowsComeAndGoWithoutTheirTextsPilingUp) {
    RowList rows;
    const std::string text(1000, 'x');
    for (int round = 0; round < 20'000; ++round) {
        rows.Add(text + std::to_string(round));
        if (rows.Count() > 100) rows.Remove(0);
    }
    for (int row = 0; row < 100; ++row) {
        ASSERT_EQ(rows.Text(row), text + std::to_string(19'900 + row));
    }
}
