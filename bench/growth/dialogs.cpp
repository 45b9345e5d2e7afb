#include "growth/dialogs.h"

#include <memory>
#include <stdexcept>
#include <vector>

#include "blocks/neighbor_blocks.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/module.h"
#include "growth/figure.h"
#include "mapbuild/builders/quick_off_bld_dlg.h"
#include "pickers/abe_bar.h"
#include "pickers/abe_bar_ids.h"
#include "pickers/built_map_area_combo_box.h"
#include "pickers/built_map_blk_combo_box.h"
#include "qualifiers/list_sel.h"
#include "qualifiers/list_sel_ids.h"
#include "window/acting/headless_desktop.h"
#include "window/acting/input.h"
#include "window/blocked_windows.h"
#include "window/controls/list_box.h"
#include "window/frames/frame_wnd.h"
#include "window/window_system.h"

namespace growth {
namespace {

constexpr int kTimes = 7;
constexpr int kBlocks = 500;
/// A press of Cancel is heard within this, in seconds.
constexpr double kHeard = 0.1;

/// A desktop without a screen that keeps how long the person was not looked at.
class Screen : public kv::HeadlessDesktop {
public:
    Screen() { kv::WindowSystem::Get().SetDesktop(this); }
    ~Screen() override {
        kv::SetPatience({});
        kv::WindowSystem::Get().SetDesktop(nullptr);
    }

    /// A wait shows at once from now on. Cancel is pressed at that look; at none for 0.
    void BeginLooking(int cancelAt) {
        kv::SetPatience(std::chrono::milliseconds(0));
        looks_ = 0;
        longest_ = 0;
        cancelAt_ = cancelAt;
    }
    void Pump() override {
        if (looks_ > 0) longest_ = std::max(longest_, sinceLook_.Seconds());
        if (++looks_ == cancelAt_) {
            sincePress_ = {};
            kv::input::Click(*kv::WindowSystem::Get().TopLevels().back()->FindChild(IDCANCEL));
        }
        sinceLook_ = {};
    }
    int Looks() const { return looks_; }
    bool HasPressed() const { return cancelAt_ > 0 && looks_ >= cancelAt_; }
    double LongestBetweenLooks() const { return longest_; }
    double SincePress() const { return sincePress_.Seconds(); }

private:
    int looks_ = 0;
    int cancelAt_ = 0;
    double longest_ = 0;
    Watch sinceLook_;
    Watch sincePress_;
};

std::vector<std::vector<std::string>> Cells(const std::string& sql, int columns, int mostRows) {
    CKvDbAbsDataMgr manager(KV_CONNECT_DEFAULT);
    manager.Connect();
    manager.Select(sql);
    std::vector<std::vector<std::string>> cells;
    for (int row = 0; row < std::min(manager.NumberOfRows(), mostRows); ++row) {
        cells.emplace_back();
        for (int column = 0; column < columns; ++column)
            cells.back().emplace_back(manager.GetItem(row, column));
    }
    manager.Disconnect();
    return cells;
}

/// Blocks of the Gulf, an area's beside one another: name, MMS code, and number with extension.
std::vector<std::vector<std::string>> BlocksOfTheGulf() {
    return Cells(
        "select areaname, area_abbr, lbnum||lbext, refnum from NORVADON.gulf_mexico_lbi, "
        "NORVADON.gulf_mexico_connam2 where stcode = areacode and area_abbr is not null and "
        "areacode > '436' and areacode < '437' order by refnum",
        3, kBlocks);
}

void MeasureBar() {
    Screen screen;
    CWinApp app;
    CFrameWnd frame;
    CVZABEBar bar;
    app.m_pMainWnd = &frame;
    frame.Create("Host");
    frame.ShowWindow(SW_SHOW);
    bar.Create(&frame, kv::abe_bar::kTemplate, CBRS_TOP, kv::abe_bar::kTemplate);
    kv::WindowSystem::Get().Settle();
    kv::User user(*bar.m_hWnd, [&](const std::string& words) { screen.Fail(words); });
    user.Drop(kv::abe_bar::kArea);
    user.Drop(kv::abe_bar::kArea);

    const double listed = Time(kTimes, [&] { bar.GetAreaCombo()->V_InitializeCombo(); });
    Print({"bar: list the areas", listed, false,
           static_cast<double>(bar.GetAreaCombo()->GetCount())});
    const int areas[] = {user.RowIndex(kv::abe_bar::kArea, "GC"),
                         user.RowIndex(kv::abe_bar::kArea, "MC")};
    int turn = 0;
    const double picked = Time(4 * kTimes, [&] {
        user.Select(kv::abe_bar::kArea, areas[++turn % 2]);
        user.Select(kv::abe_bar::kBlock, 100);
        if (bar.GetAreacode(true).empty()) throw std::runtime_error("The pick has no area code");
    });
    Print({"bar: pick an area and a block", picked});
}

struct Search {
    const char* what;
    const char* column;
    const char* table;
};
/// The longest comes last: a million values in the dataset of ten times the size.
constexpr Search kSearches[] = {
    {"lessees", "lessee", "NORVADON.gulf_mexico_lease"},
    {"operators", "operator", "NORVADON.gulf_mexico_lease"},
    {"lease status", "status", "NORVADON.gulf_mexico_lease"},
    {"pipeline products", "product", "NORVADON.gulf_mexico_pipeline"},
    {"leases", "lease_no", "NORVADON.gulf_mexico_lease"},
    {"wells", "api_no", "NORVADON.gulf_mexico_well_hdr"},
    {"shares in leases", "lease_no||company", "NORVADON.gulf_mexico_lease_owner"},
};

class SearchDialog {
public:
    explicit SearchDialog(const Search& search)
        : dialog_(search.column, search.table, nullptr, values_, kv::list_sel::kTemplate, nullptr) {
        dialog_.Create(static_cast<UINT>(kv::list_sel::kTemplate));
    }
    ~SearchDialog() { dialog_.DestroyWindow(); }
    SearchDialog(const SearchDialog&) = delete;
    SearchDialog& operator=(const SearchDialog&) = delete;

    void Search() { kv::input::Click(*dialog_.GetDlgItem(kv::list_sel::kSearch)->m_hWnd); }
    int Rows() { return dialog_.Control<CListBox>(kv::list_sel::kAvailable).GetCount(); }

private:
    std::vector<std::string> values_;
    CKvGuiListSel dialog_;
};

void MeasureSearches() {
    for (const Search& search : kSearches) {
        const Screen screen;
        SearchDialog dialog(search);
        const double taken = Time(3, [&] { dialog.Search(); });
        Print({std::string("search: ") + search.what, taken, false,
               static_cast<double>(dialog.Rows())});
    }
}

/// Presses Cancel behind that part of the looks that a search takes. One that is faster than those
/// before ends ahead of the press, and tells how many looks it takes now.
void SearchCancelledAt(double part, Screen& screen, SearchDialog& dialog, int& looks) {
    for (;;) {
        screen.BeginLooking(std::max(1, static_cast<int>(looks * part)));
        dialog.Search();
        if (screen.HasPressed()) break;
        looks = screen.Looks();
        if (looks == 0) throw std::runtime_error("The search is over before anybody could cancel");
    }
    if (dialog.Rows() != 0) throw std::runtime_error("The search was not cancelled");
}

/// A search that takes long keeps an eye on the person, and hears them whenever they cancel.
void MeasureCancel() {
    Screen screen;
    SearchDialog dialog(*std::prev(std::end(kSearches)));
    screen.BeginLooking(0);
    dialog.Search();
    int looks = screen.Looks();
    Print({"longest search: between two looks at the person", screen.LongestBetweenLooks(), false,
           static_cast<double>(dialog.Rows()), kHeard});
    double longest = 0;
    constexpr int kPresses = 8;
    for (int press = 1; press <= kPresses; ++press) {
        SearchCancelledAt(static_cast<double>(press) / (kPresses + 1), screen, dialog, looks);
        longest = std::max(longest, screen.SincePress());
    }
    Print({"longest search: from Cancel to its end", longest, false, 1, kHeard});
}

void MeasureNeighbors() {
    const Screen screen;
    kv::blocks::Selection selection;
    for (const auto& block : BlocksOfTheGulf()) {
        selection.first.push_back(block[0]);
        selection.second.push_back(block[2]);
    }
    std::size_t found = 0;
    const double taken = Time(3, [&] {
        kv::blocks::Selection selected = selection;
        kv::blocks::NeighborRelation relation;
        CNeighborBlocks(selected, relation, 0, "NORVADON").PopulateNeighbor();
        found = relation.size();
    });
    if (found != kBlocks) throw std::runtime_error("There are blocks without neighbors");
    Print({"neighbors of 500 blocks", taken});
}

struct Bounds {
    const char* name;
    double minLat, maxLat, minLon, maxLon;
};
constexpr Bounds kBounds[] = {{"a small box", 27.4, 27.8, -91.2, -90.6},
                              {"the whole Gulf", 23, 31, -98, -80}};

template <typename Box>
void MeasurePicker(const std::string& what, const Bounds& bounds, Box& box, CFrameWnd& frame) {
    box.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, {0, 0, 200, 400}, &frame, 1);
    box.SetMinLat(bounds.minLat);
    box.SetMaxLat(bounds.maxLat);
    box.SetMinLon(bounds.minLon);
    box.SetMaxLon(bounds.maxLon);
    const double taken = Time(kTimes, [&] { box.V_InitializeCombo(); });
    Print({what + " inside " + bounds.name, taken, false, static_cast<double>(box.GetCount())});
}

void MeasurePickers() {
    const Screen screen;
    for (const Bounds& bounds : kBounds) {
        CFrameWnd frame;
        frame.Create("Host");
        CKvBuiltMapAreaComboBox areas;
        areas.SetMode(kv::catalogue::kAreaName);
        MeasurePicker("areas", bounds, areas, frame);
        CKvBuiltMapBlkComboBox blocks;
        blocks.SetMode(kv::catalogue::kAreaName);
        blocks.SetArea("GREEN CANYON");
        MeasurePicker("blocks", bounds, blocks, frame);
    }
}

void MeasureComputing() {
    Screen screen;
    std::vector<std::string> picks;
    for (const auto& block : BlocksOfTheGulf())
        picks.push_back(block[1] + "#" + block[2]);
    CKvGuiQuickOffBldDlg dialog(nullptr);
    dialog.SetIDs(picks);
    dialog.SetMode(0, 1, 0);
    dialog.SetXYBounded(true);
    screen.ExpectWindow("", [&](kv::User& user) {
        Print({"compute the map of 500 picks", Time(kTimes, [&] { dialog.ComputeALL(); })});
        user.Click(IDCANCEL);
    });
    dialog.DoModal();
}

}  // namespace

bool MeasureDialogs(const std::string& server) {
    InitControlDll();
    CKvDbInfo info("", "", server.c_str());
    CKvDbAbsDataMgr(KV_CONNECT_DEFAULT).SetDbInfo(info);
    bool isWhole = true;
    for (const auto measure : {&MeasureBar, &MeasureSearches, &MeasureCancel, &MeasureNeighbors,
                               &MeasurePickers, &MeasureComputing}) {
        try {
            measure();
        } catch (const std::exception& failure) {
            std::fprintf(stderr, "kv_growth: %s\n", failure.what());
            isWhole = false;
        }
    }
    return isWhole;
}

}  // namespace growth
