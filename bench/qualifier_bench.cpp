// The multiple-selection dialog: a search over a column of many values beside the bare query, and
// Add and Remove of many rows beside filling a list with them once.

#include <sqlite3.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/module.h"
#include "peers.h"
#include "qualifiers/list_sel.h"
#include "qualifiers/list_sel_ids.h"
#include "ratio.h"
#include "services/kvdbkvn/dialect/translate.h"
#include "window/acting/headless_desktop.h"
#include "window/acting/input.h"
#include "window/controls/list_box.h"
#include "window/window_system.h"

namespace {

using namespace kv::list_sel;

constexpr int kValues = 100'000;
/// Of those, how many stand in Selected when the search runs.
constexpr int kSelectedValues = 10'000;
constexpr int kMovedRows = 50'000;

/// Two tables with the same values, one of them with an index.
constexpr const char* kTable = "value";
constexpr const char* kIndexedTable = "indexed_value";

/// A value, spread so that neighbours in the table are none in the order of texts.
std::string Value(int number) {
    constexpr long long kStep = 61'681;
    return "VALUE " + std::to_string(100'000 + number * kStep % kValues) + " OF THE COLUMN";
}

/// The two tables, in a file that is gone when the program ends.
class ValueFile : public bench::PassingFile {
public:
    ValueFile() : PassingFile("values") {
        sqlite3* database = nullptr;
        sqlite3_open(Path().c_str(), &database);
        const int code = sqlite3_exec(database, Statements().c_str(), nullptr, nullptr, nullptr);
        sqlite3_close(database);
        if (code != SQLITE_OK) throw std::runtime_error("no table of values could be made");
    }

private:
    static std::string Statements() {
        std::string sql =
            "begin;"
            "create table value (name text);"
            "create table indexed_value (name text);"
            "create index by_name on indexed_value (name);";
        for (int i = 0; i < kValues; ++i)
            sql += "insert into value values ('" + Value(i) + "');";
        return sql + "insert into indexed_value select name from value; commit";
    }
};

const std::string& ValuePath() {
    static const ValueFile file;
    return file.Path();
}

/// The dialog on a screen that is none, and a person at it.
class OpenDialog {
public:
    explicit OpenDialog(const std::string& table, int templateId = kTemplate)
        : dialog_("name", table, nullptr, values_, static_cast<UINT>(templateId), nullptr) {
        InitControlDll();
        kv::WindowSystem::Get().SetDesktop(&desktop_);
        CKvDbInfo info("", "", ("sqlite:" + ValuePath()).c_str());
        CKvDbAbsDataMgr(1).SetDbInfo(info);
        dialog_.Create(static_cast<UINT>(templateId));
    }
    ~OpenDialog() {
        dialog_.DestroyWindow();
        kv::WindowSystem::Get().SetDesktop(nullptr);
    }
    OpenDialog(const OpenDialog&) = delete;
    OpenDialog& operator=(const OpenDialog&) = delete;

    CListBox& List(int id) { return dialog_.Control<CListBox>(id); }
    /// With so many of the values, each so many behind the one before.
    void Fill(int id, int count, int step = 1) {
        List(id).ResetContent();
        for (int i = 0; i < count; ++i)
            List(id).AddString(texts_[static_cast<std::size_t>(i * step)].c_str());
    }
    void Enable(int id) { dialog_.GetDlgItem(id)->EnableWindow(TRUE); }
    bool Click(int id) { return kv::input::Click(*dialog_.GetDlgItem(id)->m_hWnd); }

private:
    static std::vector<std::string> Texts() {
        std::vector<std::string> texts;
        for (int i = 0; i < kValues; ++i)
            texts.push_back(Value(i));
        // As a search gives them.
        std::sort(texts.begin(), texts.end());
        return texts;
    }

    const std::vector<std::string> texts_ = Texts();
    kv::HeadlessDesktop desktop_;
    std::vector<std::string> values_;
    CKvGuiListSel dialog_;
};

void SearchOurs(benchmark::State& state, const char* table) {
    OpenDialog open(table);
    open.Fill(kSelected, kSelectedValues, kValues / kSelectedValues);
    for (auto _ : state) {
        if (!open.Click(kSearch)) state.SkipWithError("the search button cannot be pressed");
    }
    if (open.List(kAvailable).GetCount() != kValues - kSelectedValues) {
        state.SkipWithError("the search did not hold back what is selected");
    }
}

void SearchPeer(benchmark::State& state, const std::string& table) {
    const std::string query = "select distinct name from " + table + " where name like '%%'";
    const std::string sql = kv::dialect::Translate(query, {}).text;
    bench::QueryBareEngine(state, ValuePath(), sql);
}

void SelectEvery(CListBox& list, int step) {
    if (step == 1) {
        list.SetSel(-1, TRUE);
        return;
    }
    const int count = list.GetCount();
    for (int row = 0; row < count; row += step)
        list.SetSel(row, TRUE);
}

struct Move {
    int templateId;
    int from;
    int to;
    int button;
    /// Of so many rows one is moved.
    int step;
};

/// Presses Add or Remove, each time with `kMovedRows` rows selected.
void MoveRows(benchmark::State& state, const Move& move) {
    OpenDialog open(kTable, move.templateId);
    for (auto _ : state) {
        state.PauseTiming();
        open.List(move.to).ResetContent();
        open.Fill(move.from, kMovedRows * move.step);
        SelectEvery(open.List(move.from), move.step);
        open.Enable(move.button);
        state.ResumeTiming();
        if (!open.Click(move.button)) state.SkipWithError("the button cannot be pressed");
    }
    if (open.List(move.to).GetCount() != kMovedRows) state.SkipWithError("not all rows came over");
}

/// Fills once what `move` moves from.
void FillOnce(benchmark::State& state, const Move& move) {
    OpenDialog open(kTable, move.templateId);
    for (auto _ : state) {
        state.PauseTiming();
        open.List(move.from).ResetContent();
        state.ResumeTiming();
        open.Fill(move.from, kMovedRows * move.step);
    }
}

constexpr Move kAddMove{kTemplate, kAvailable, kSelected, kAdd, 1};
constexpr Move kAddSecondMove{kTemplate, kAvailable, kSelected, kAdd, 2};
constexpr Move kRemoveMove{kTemplate, kSelected, kAvailable, kRemove, 1};
constexpr Move kAddSortedMove{kLesseeTemplate, kAvailable, kSelected, kAdd, 1};

const bench::Subject kSubjects[] = {
    {"qualifiers/search 100,000 values", 2,
     [](benchmark::State& state) { SearchOurs(state, kTable); },
     [](benchmark::State& state) { SearchPeer(state, kTable); }},
    {"qualifiers/search 100,000 indexed values", 2,
     [](benchmark::State& state) { SearchOurs(state, kIndexedTable); },
     [](benchmark::State& state) { SearchPeer(state, kIndexedTable); }},
    {"qualifiers/add 50,000 rows", 5, [](benchmark::State& state) { MoveRows(state, kAddMove); },
     [](benchmark::State& state) { FillOnce(state, kAddMove); }},
    {"qualifiers/add every second of 100,000 rows", 5,
     [](benchmark::State& state) { MoveRows(state, kAddSecondMove); },
     [](benchmark::State& state) { FillOnce(state, kAddSecondMove); }},
    {"qualifiers/remove 50,000 rows", 5,
     [](benchmark::State& state) { MoveRows(state, kRemoveMove); },
     [](benchmark::State& state) { FillOnce(state, kRemoveMove); }},
    {"qualifiers/add 50,000 rows, sorted", 5,
     [](benchmark::State& state) { MoveRows(state, kAddSortedMove); },
     [](benchmark::State& state) { FillOnce(state, kAddSortedMove); }},
};

}  // namespace
