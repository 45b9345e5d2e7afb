#include "kvload/load.h"

#include <algorithm>
#include <set>
#include <utility>

#include "kvload/cell_value.h"
#include "kvload/refused.h"
#include "kvload/row_keys.h"
#include "kvload/row_maker.h"
#include "kvload/source_module.h"
#include "sampledata/zones.h"

namespace kvload {
namespace {

using kv::sample::Row;
using kv::sample::TableNamed;

constexpr std::string_view kBlockTable = "gulf_mexico_lbi";
constexpr const char* kProjectionTable = "gulf_mexico_area_projection";
constexpr const char* kOrderTable = "nvd2000_area_order";
constexpr const char* kZoneTable = "gulf_mexico_zone_code";

bool IsEmpty(Store& store, const char* table) {
    return store.Query("select 1 from " + store.Named(table) + " limit 1").empty();
}

long long Greatest(Store& store, const char* column, const char* table) {
    const auto rows = store.Query(std::string("select coalesce(max(") + column + "), 0) from " +
                                  store.Named(table));
    return std::stoll(rows.front().front());
}

void MakeMissingTables(Store& store) {
    for (const kv::sample::Table& table : kv::sample::Tables()) {
        if (store.Has(table)) continue;
        store.Create(table);
        store.Begin(table);
        store.End();
    }
    if (IsEmpty(store, kZoneTable)) kv::sample::WriteZones(store);
}

/// The tables that a target fills, its own first.
std::vector<const char*> TablesOf(const Target& target) {
    std::vector<const char*> tables = {target.table};
    if (target.vertices) tables.push_back(target.vertices);
    if (std::string_view(target.name) == "areas")
        tables.insert(tables.end(), {kProjectionTable, kOrderTable});
    return tables;
}

void EmptyTables(const std::vector<Job>& jobs, Store& store) {
    std::set<const Target*> targets;
    for (const Job& job : jobs)
        if (targets.insert(job.mapping.target).second)
            for (const char* table : TablesOf(*job.mapping.target))
                store.Run("delete from " + store.Named(table));
}

/// What one source gives, ready to be written.
struct Batch {
    std::vector<Row> rows;
    /// Where each row's vertices begin, and the end of the last.
    std::vector<size_t> starts = {0};
    Spots vertices;
    /// Of areas.
    std::vector<std::string> projections;
};

class Loader {
public:
    Loader(Store& store, const Watcher& watcher) : store_(store), watcher_(watcher) {
        for (const Row& area : store.Query("select areaname, stcode, area_abbr from " +
                                           store.Named("gulf_mexico_connam2")))
            areas_.Add(area[0], area[1], area[2]);
    }

    Outcome Load(const Job& job) {
        Outcome outcome;
        outcome.path = job.path;
        outcome.target = job.mapping.target->name;
        Batch batch = Read(job, outcome);
        Number(*job.mapping.target, batch);
        Write(*job.mapping.target, batch);
        outcome.loaded = static_cast<long long>(batch.rows.size());
        return outcome;
    }

private:
    void Step(const std::string& step, long long done, long long of) const {
        if (watcher_.cancelled()) throw Cancelled();
        watcher_.progress(step, done, of);
    }

    /// Areas that share a name are told apart by their blocks. Those that a run brings are written
    /// before what lies in them is read.
    void KnowBlocks(const Mapping& mapping) {
        const bool areNeeded = mapping.target->table != kBlockTable &&
                               std::ranges::any_of(mapping.fields, [](const FieldRule& rule) {
                                   return !rule.by.empty();
                               });
        if (!areNeeded || knowsBlocks_) return;
        for (const Row& block :
             store_.Query("select areacode, lbnum, lbext from " + store_.Named(kBlockTable)))
            areas_.AddBlock(block[0], block[1], block[2]);
        knowsBlocks_ = true;
    }

    Batch Read(const Job& job, Outcome& outcome) {
        KnowBlocks(job.mapping);
        const auto layer = Open({job.path, job.mapping.layer, job.mapping.place.wkt});
        const RowMaker maker(job.mapping, *layer, areas_);
        outcome.system = maker.System();
        RowKeys keys(*job.mapping.target);
        keys.Read(store_);
        Batch batch;
        Feature feature;
        for (;;) {
            std::string failure;
            const Layer::Reading reading = layer->Read(feature, failure);
            if (reading == Layer::Reading::kEnd) return batch;
            ++outcome.rows;
            if (reading == Layer::Reading::kFailed)
                throw BadSource("It is damaged at row " + std::to_string(outcome.rows) + ": " +
                                failure);
            Step("reading " + job.path, outcome.rows, layer->Count());
            Take(maker, keys, feature, outcome, batch);
        }
    }

    void Take(const RowMaker& maker, RowKeys& keys, const Feature& feature, Outcome& outcome,
              Batch& batch) {
        const auto name = [&] { return maker.NameOf(feature, outcome.rows); };
        try {
            Made made = maker.Make(feature);
            if (keys.Knows(made.row)) {
                ++outcome.repeated;
                return;
            }
            keys.Add(made.row, "row " + std::to_string(outcome.rows));
            for (const std::string& note : made.notes)
                outcome.notes.push_back(name() + ": " + note);
            if (outcome.target == "areas") areas_.Add(made.row[0], made.row[1], made.row[2]);
            batch.vertices.insert(batch.vertices.end(), made.vertices.begin(), made.vertices.end());
            batch.starts.push_back(batch.vertices.size());
            batch.projections.push_back(std::move(made.projection));
            batch.rows.push_back(std::move(made.row));
        } catch (const Refused& reason) {
            outcome.leftOut.push_back(name() + ": " + reason.what());
        }
    }

    /// Gives blocks the numbers that their outlines go by.
    void Number(const Target& target, Batch& batch) {
        const int column = ColumnIndex(TableOf(target), kRefnum);
        if (column < 0) return;
        long long refnum = Greatest(store_, kRefnum, target.table);
        for (Row& row : batch.rows)
            row[static_cast<size_t>(column)] = std::to_string(++refnum);
    }

    void Write(const Target& target, const Batch& batch) {
        WriteRows(target.table, batch.rows);
        if (target.vertices) WriteVertices(target, batch);
        if (std::string_view(target.name) == "areas") WriteWhatAreasBring(batch);
    }

    void WriteRows(const char* table, const std::vector<Row>& rows) {
        store_.Begin(TableNamed(table));
        for (size_t i = 0; i < rows.size(); ++i) {
            Step(std::string("writing ") + table, static_cast<long long>(i + 1),
                 static_cast<long long>(rows.size()));
            store_.Add(rows[i]);
        }
        store_.End();
    }

    void WriteVertices(const Target& target, const Batch& batch) {
        const kv::sample::Table& table = TableNamed(target.vertices);
        const auto key = static_cast<size_t>(ColumnIndex(TableOf(target), table.columns[0].name));
        store_.Begin(table);
        for (size_t i = 0; i < batch.rows.size(); ++i) {
            Step(std::string("writing ") + target.vertices, static_cast<long long>(i + 1),
                 static_cast<long long>(batch.rows.size()));
            for (size_t at = batch.starts[i]; at < batch.starts[i + 1]; ++at) {
                const Spot& spot = batch.vertices[at];
                store_.Add({batch.rows[i][key], std::to_string(at - batch.starts[i] + 1),
                            DegreesText(spot.y), DegreesText(spot.x)});
            }
        }
        store_.End();
    }

    /// Their projections, and their places in the order of names, behind those that have one.
    void WriteWhatAreasBring(const Batch& batch) {
        std::vector<Row> projections, order;
        long long place = Greatest(store_, "seq", kOrderTable);
        for (size_t i = 0; i < batch.rows.size(); ++i) {
            const Row& area = batch.rows[i];
            if (!batch.projections[i].empty())
                projections.push_back({area[1], batch.projections[i]});
            const std::string text = std::to_string(++place);
            order.push_back({area[0], text, text});
        }
        WriteRows(kProjectionTable, projections);
        WriteRows(kOrderTable, order);
    }

    Store& store_;
    const Watcher& watcher_;
    AreaIndex areas_;
    bool knowsBlocks_ = false;
};

}  // namespace

std::vector<Outcome> Load(std::vector<Job> jobs, Store& store, bool replace,
                          const Watcher& watcher) {
    std::ranges::stable_sort(jobs, {}, [](const Job& job) { return job.mapping.target; });
    MakeMissingTables(store);
    if (replace) EmptyTables(jobs, store);
    Loader loader(store, watcher);
    std::vector<Outcome> outcomes;
    for (const Job& job : jobs) {
        try {
            outcomes.push_back(loader.Load(job));
        } catch (const BadSource& bad) {
            throw std::runtime_error(job.path + ": " + bad.what());
        }
    }
    store.Commit();
    return outcomes;
}

}  // namespace kvload
