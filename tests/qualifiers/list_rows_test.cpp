#include "qualifiers/list_rows.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

#include "base/text.h"
#include "window/acting/headless_desktop.h"
#include "window/controls/list_box.h"
#include "window/frames/frame_wnd.h"
#include "window/window_system.h"

namespace {

using Texts = std::vector<std::string>;
using kv::list_sel::RowBeginnings;
using kv::list_sel::RowsOf;

bool IsLess(const std::string& a, const std::string& b) {
    return kv::CompareNoCase(a, b) < 0;
}

/// First row that begins with a text; for the empty text the first row without one. -1 for none.
int FirstThatBegins(const Texts& rows, const std::string& text) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const bool fits = text.empty() ? rows[i].empty() : kv::StartsWithNoCase(rows[i], text);
        if (fits) return static_cast<int>(i);
    }
    return -1;
}

/// What stays of the rows once those at the indices have gone, one by one, each by a search.
Texts Left(Texts rows, const std::vector<int>& indices, bool skipEmpty, int& last) {
    Texts moved;
    for (const int index : indices)
        moved.push_back(rows[static_cast<std::size_t>(index)]);
    last = -1;
    for (const std::string& text : moved) {
        if (skipEmpty && text.empty()) continue;
        last = FirstThatBegins(rows, text);
        rows.erase(rows.begin() + last);
    }
    return rows;
}

class ListRows : public testing::Test {
protected:
    static constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | LBS_EXTENDEDSEL | LBS_NOTIFY;

    ListRows() {
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        frame_.Create("Host");
        from_.Create(kStyle, {0, 0, 100, 100}, &frame_, 1);
        to_.Create(kStyle, {100, 0, 200, 100}, &frame_, 2);
    }

    void Fill(const Texts& rows, const std::vector<int>& selected) {
        from_.ResetContent();
        to_.ResetContent();
        for (const std::string& row : rows)
            from_.AddString(row.c_str());
        for (const int index : selected)
            from_.SetSel(index, TRUE);
    }

    void ExpectMoved(const Texts& rows, const std::vector<int>& selected, bool skipEmpty) {
        Fill(rows, selected);
        int last = -1;
        const Texts left = Left(rows, selected, skipEmpty, last);
        kv::list_sel::MoveSelectedRows(from_, to_, skipEmpty);
        EXPECT_EQ(RowsOf(from_), left);
        Texts moved;
        for (const int index : selected) {
            const std::string& text = rows[static_cast<std::size_t>(index)];
            if (!skipEmpty || !text.empty()) moved.push_back(text);
        }
        EXPECT_EQ(RowsOf(to_), moved);
        if (last >= 0 && !left.empty()) {
            EXPECT_GT(from_.GetSel(std::min(last, static_cast<int>(left.size()) - 1)), 0);
        }
    }

    kv::HeadlessDesktop desktop_;
    CFrameWnd frame_;
    CListBox from_;
    CListBox to_;
};

TEST_F(ListRows, OfEqualRowsTheFirstGoes) {
    ExpectMoved({"A", "a", "AB", "b", "B", "B"}, {1, 4, 5}, true);
    EXPECT_THAT(RowsOf(from_), testing::ElementsAre("a", "AB", "B"));
}

TEST_F(ListRows, GoAsIfEachWereSearchedFor) {
    std::mt19937 random(4711);
    const auto below = [&](std::size_t bound) {
        return static_cast<std::size_t>(random() % bound);
    };
    const Texts words{"", "a", "A", "ab", "AB", "abc", "b", "Ba", "c"};
    for (int round = 0; round < 2000; ++round) {
        Texts rows;
        const std::size_t count = 1 + below(round % 20 == 0 ? 200 : 12);
        for (std::size_t i = 0; i < count; ++i)
            rows.push_back(words[below(words.size())] + (below(3) == 0 ? "z" : ""));
        if (below(2) == 0) std::stable_sort(rows.begin(), rows.end(), IsLess);
        std::vector<int> selected;
        const std::size_t rarity = 1 + below(20);
        for (std::size_t i = 0; i < count; ++i) {
            if (below(rarity) == 0) selected.push_back(static_cast<int>(i));
        }
        ExpectMoved(rows, selected, below(2) == 0);
        ASSERT_FALSE(HasFailure()) << "round " << round << ": " << testing::PrintToString(rows)
                                   << testing::PrintToString(selected);
    }
}

TEST_F(ListRows, BeginningsAreThoseThatTheListFinds) {
    std::mt19937 random(4711);
    const auto text = [&] {
        std::string made;
        for (auto length = random() % 4; length > 0; --length)
            made += "aAbB_Z"[random() % 6];
        return made;
    };
    for (int round = 0; round < 200; ++round) {
        Texts rows(random() % 40);
        std::ranges::generate(rows, text);
        Fill(rows, {});
        Texts asked(50);
        std::ranges::generate(asked, text);
        if (round % 2 == 0) std::ranges::sort(asked);
        RowBeginnings beginnings(from_);
        for (const std::string& each : asked) {
            ASSERT_EQ(beginnings.AnyBeginsWith(each), from_.FindString(-1, each.c_str()) != LB_ERR)
                << each << " in " << testing::PrintToString(rows);
        }
    }
}

}  // namespace
