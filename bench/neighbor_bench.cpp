// The search for the blocks that touch those selected, beside the same on the bare engine and in
// the bare geometry library, which read both outlines for each candidate.

#include <geos_c.h>
#include <sqlite3.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "blocks/neighbor_blocks.h"
#include "frame/kvcom/util_geo.h"
#include "frame/kvdbkvn/db_abs_data_mgr.h"
#include "frame/kvdbkvn/statement_trace.h"
#include "frame/module.h"
#include "peers.h"
#include "ratio.h"
#include "services/kvdbkvn/dialect/translate.h"
#include "window/acting/headless_desktop.h"
#include "window/window_system.h"

namespace {

using bench::BareEngine;
using kv::blocks::NeighborRelation;
using kv::blocks::Place;
using kv::blocks::Selection;

constexpr int kBlocks = 500;
constexpr int kManyBlocks = 5'000;

std::string Text(sqlite3_stmt* row, int column) {
    return reinterpret_cast<const char*>(sqlite3_column_text(row, column));
}

/// Blocks of the federal waters, an area's beside one another.
Selection FirstBlocks(int count) {
    Selection selection;
    BareEngine().Read(
        "select areaname, lbnum || coalesce(lbext, '') from gulf_mexico_lbi join "
        "gulf_mexico_connam2 on stcode = areacode where area_abbr is not null and stcode > '435' "
        "order by refnum limit " +
            std::to_string(count),
        [&](sqlite3_stmt* row) {
            selection.first.push_back(Text(row, 0));
            selection.second.push_back(Text(row, 1));
        });
    return selection;
}

void Connect() {
    CKvDbInfo info("", "", ("sqlite:" + bench::SamplePath()).c_str());
    CKvDbAbsDataMgr(1).SetDbInfo(info);
}

NeighborRelation FindNeighbors(Selection selection) {
    NeighborRelation relation;
    CNeighborBlocks(selection, relation, 0, "NORVADON").PopulateNeighbor();
    return relation;
}

void SearchOurs(benchmark::State& state, int count) {
    InitControlDll();
    kv::HeadlessDesktop desktop;
    kv::WindowSystem::Get().SetDesktop(&desktop);
    Connect();
    const Selection selection = FirstBlocks(count);
    std::size_t found = 0;
    for (auto _ : state)
        found = FindNeighbors(selection).size();
    if (found != static_cast<std::size_t>(count)) state.SkipWithError("blocks without neighbors");
    kv::WindowSystem::Get().SetDesktop(nullptr);
}

/// What a search asks the database, in the words of the engine. It asks for each outline once.
std::vector<std::string> StatementsOf(const Selection& selection) {
    InitControlDll();
    kv::HeadlessDesktop desktop;
    kv::WindowSystem::Get().SetDesktop(&desktop);
    Connect();
    std::vector<std::string> statements;
    kv::db::SetStatementTrace([&](const std::string& sql) {
        statements.push_back(kv::dialect::Translate(sql, {}).text);
    });
    FindNeighbors(selection);
    kv::db::SetStatementTrace(nullptr);
    kv::WindowSystem::Get().SetDesktop(nullptr);
    return statements;
}

/// The same with both outlines for each candidate, in the order in which they are needed.
std::vector<std::string> WithBothOutlines(BareEngine& engine, const Selection& selection,
                                          const std::vector<std::string>& asked) {
    std::vector<std::string> statements;
    std::map<Place, std::string> outlines;
    auto next = asked.begin();
    const auto addOutline = [&](const Place& place) {
        const auto [at, fresh] = outlines.try_emplace(place);
        if (fresh) at->second = *next++;
        statements.push_back(at->second);
    };
    for (std::size_t i = 0; i < selection.first.size(); ++i) {
        std::vector<Place> candidates;
        statements.push_back(*next++);
        engine.Read(statements.back(), [&](sqlite3_stmt* row) {
            candidates.emplace_back(Text(row, 0), Text(row, 1));
        });
        for (const Place& candidate : candidates) {
            addOutline({selection.first[i], selection.second[i]});
            addOutline(candidate);
        }
    }
    return statements;
}

class Geometries {
public:
    Geometries() : handle_(GEOS_init_r()) {}
    ~Geometries() { GEOS_finish_r(handle_); }
    Geometries(const Geometries&) = delete;
    Geometries& operator=(const Geometries&) = delete;

    GEOSGeometry* Area(BareEngine& engine, const std::string& sql) {
        places_.clear();
        engine.Read(sql, [&](sqlite3_stmt* row) {
            places_.push_back(sqlite3_column_double(row, 0));
            places_.push_back(sqlite3_column_double(row, 1));
        });
        places_.insert(places_.end(), {places_[0], places_[1]});
        GEOSCoordSequence* corners = GEOSCoordSeq_copyFromBuffer_r(
            handle_, places_.data(), static_cast<unsigned>(places_.size() / 2), 0, 0);
        return GEOSGeom_createPolygon_r(handle_, GEOSGeom_createLinearRing_r(handle_, corners),
                                        nullptr, 0);
    }
    /// The cheapest predicate that answers where corners differ by rounding.
    bool Meet(GEOSGeometry* first, GEOSGeometry* second) {
        constexpr double kDegrees = CKvUtilGeo::kTolerance / 111'000.0;
        const bool meet = GEOSDistanceWithin_r(handle_, first, second, kDegrees) == 1;
        GEOSGeom_destroy_r(handle_, first);
        GEOSGeom_destroy_r(handle_, second);
        return meet;
    }

private:
    GEOSContextHandle_t handle_;
    std::vector<double> places_;
};

/// Each candidate's outline beside that of the block.
std::size_t SearchBare(BareEngine& engine, const std::vector<std::string>& statements) {
    Geometries geometries;
    std::size_t met = 0;
    for (std::size_t next = 0; next < statements.size();) {
        std::vector<std::pair<std::string, std::string>> candidates;
        engine.Read(statements[next++], [&](sqlite3_stmt* row) {
            candidates.emplace_back(Text(row, 0), Text(row, 1));
        });
        for (std::size_t i = 0; i < candidates.size(); ++i) {
            GEOSGeometry* first = geometries.Area(engine, statements[next++]);
            GEOSGeometry* second = geometries.Area(engine, statements[next++]);
            met += geometries.Meet(first, second);
        }
    }
    return met;
}

void SearchPeer(benchmark::State& state, int count) {
    const Selection selection = FirstBlocks(count);
    BareEngine engine;
    const std::vector<std::string> statements =
        WithBothOutlines(engine, selection, StatementsOf(selection));
    std::size_t met = 0;
    for (auto _ : state)
        met = SearchBare(engine, statements);
    if (met < static_cast<std::size_t>(2 * count)) state.SkipWithError("blocks without neighbors");
}

/// Ten searches of a tenth of the blocks each.
void SearchByTenths(benchmark::State& state, int count) {
    InitControlDll();
    kv::HeadlessDesktop desktop;
    kv::WindowSystem::Get().SetDesktop(&desktop);
    Connect();
    const Selection all = FirstBlocks(count);
    for (auto _ : state) {
        for (int begin = 0; begin < count; begin += count / 10) {
            const int end = begin + count / 10;
            FindNeighbors({{all.first.begin() + begin, all.first.begin() + end},
                           {all.second.begin() + begin, all.second.begin() + end}});
        }
    }
    kv::WindowSystem::Get().SetDesktop(nullptr);
}

const bench::Subject kSubjects[] = {
    {"neighbors/500 blocks", 1.2, [](benchmark::State& state) { SearchOurs(state, kBlocks); },
     [](benchmark::State& state) { SearchPeer(state, kBlocks); }},
    {"neighbors/5,000 blocks at once and by tenths", 1.2,
     [](benchmark::State& state) { SearchOurs(state, kManyBlocks); },
     [](benchmark::State& state) { SearchByTenths(state, kManyBlocks); }},
};

}  // namespace
