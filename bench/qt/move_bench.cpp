// Add and Remove of the multiple-selection dialog, each of many rows, beside moving the same rows
// between two lists of Qt.

#include <QListWidget>
#include <string>
#include <vector>

#include "list_dialog.h"
#include "ratio.h"

namespace {

using namespace kv::list_sel;

constexpr int kMany = 50'000;
/// Qt takes a time that grows by the square of the selected ranges.
constexpr int kSome = 5'000;

struct Move {
    int templateId;
    int from;
    int to;
    int button;
    int rows;
    /// Of so many rows one is moved.
    int step;
    /// Whether the list that they come to keeps its rows in order.
    bool sorted;
};

void SelectEvery(CListBox& list, int step) {
    if (step == 1) {
        list.SetSel(-1, TRUE);
        return;
    }
    const int count = list.GetCount();
    for (int row = 0; row < count; row += step)
        list.SetSel(row, TRUE);
}

void MoveOurs(benchmark::State& state, const Move& move) {
    bench::ListDialog open("value", move.templateId);
    for (auto _ : state) {
        state.PauseTiming();
        open.List(move.to).ResetContent();
        open.Fill(move.from, move.rows * move.step);
        SelectEvery(open.List(move.from), move.step);
        open.Enable(move.button);
        state.ResumeTiming();
        if (!open.Click(move.button)) state.SkipWithError("the button cannot be pressed");
    }
    if (open.List(move.to).GetCount() != move.rows) state.SkipWithError("not all rows came over");
}

/// Takes the selected rows out of one list, from its end, and puts them at the end of the other.
void MoveSelected(QListWidget& from, QListWidget& to) {
    std::vector<QListWidgetItem*> moved;
    for (int row = from.count() - 1; row >= 0; --row) {
        if (from.item(row)->isSelected()) moved.push_back(from.takeItem(row));
    }
    for (auto each = moved.rbegin(); each != moved.rend(); ++each)
        to.addItem(*each);
}

void MovePeer(benchmark::State& state, const Move& move) {
    const std::vector<std::string> texts = bench::SortedValues();
    QListWidget from;
    QListWidget to;
    from.setSelectionMode(QAbstractItemView::ExtendedSelection);
    to.setSortingEnabled(move.sorted);
    for (auto _ : state) {
        state.PauseTiming();
        from.clear();
        to.clear();
        for (int row = 0; row < move.rows * move.step; ++row)
            from.addItem(QString::fromStdString(texts[static_cast<std::size_t>(row)]));
        if (move.step == 1) from.selectAll();
        for (int row = 0; move.step > 1 && row < from.count(); row += move.step)
            from.item(row)->setSelected(true);
        state.ResumeTiming();
        MoveSelected(from, to);
    }
    if (to.count() != move.rows) state.SkipWithError("not all rows came over");
}

constexpr Move kAddMove{kTemplate, kAvailable, kSelected, kAdd, kMany, 1, false};
constexpr Move kAddSecondMove{kTemplate, kAvailable, kSelected, kAdd, kSome, 2, false};
constexpr Move kRemoveMove{kTemplate, kSelected, kAvailable, kRemove, kMany, 1, false};
constexpr Move kAddSortedMove{kLesseeTemplate, kAvailable, kSelected, kAdd, kMany, 1, true};

const bench::Subject kSubjects[] = {
    {"qualifiers/add 50,000 rows", 1, [](benchmark::State& state) { MoveOurs(state, kAddMove); },
     [](benchmark::State& state) { MovePeer(state, kAddMove); }, bench::Clock::kCpu,
     bench::Turns::kShort},
    {"qualifiers/add every second of 10,000 rows", 1,
     [](benchmark::State& state) { MoveOurs(state, kAddSecondMove); },
     [](benchmark::State& state) { MovePeer(state, kAddSecondMove); }},
    {"qualifiers/remove 50,000 rows", 1,
     [](benchmark::State& state) { MoveOurs(state, kRemoveMove); },
     [](benchmark::State& state) { MovePeer(state, kRemoveMove); }, bench::Clock::kCpu,
     bench::Turns::kShort},
    {"qualifiers/add 50,000 rows, sorted", 1,
     [](benchmark::State& state) { MoveOurs(state, kAddSortedMove); },
     [](benchmark::State& state) { MovePeer(state, kAddSortedMove); }, bench::Clock::kCpu,
     bench::Turns::kShort},
};

}  // namespace
