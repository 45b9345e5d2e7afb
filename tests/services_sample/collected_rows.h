#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "sampledata/dataset.h"
#include "sampledata/sink.h"

namespace test {

/// Keeps every row of the dataset in memory.
class CollectedRows : public kv::sample::Sink {
public:
    void Begin(const kv::sample::Table& table) override {
        table_ = &table;
        rows_[table.name];
    }
    void Add(const kv::sample::Row& row) override {
        if (row.size() != table_->columns.size()) throw std::runtime_error(table_->name);
        rows_[table_->name].push_back(row);
    }
    void End() override { table_ = nullptr; }

    const std::vector<kv::sample::Row>& Of(const std::string& table) const {
        return rows_.at(table);
    }
    const std::map<std::string, std::vector<kv::sample::Row>>& All() const { return rows_; }

    /// One column of a table.
    std::vector<std::string> Column(const std::string& table, const std::string& column) const {
        const auto& columns = kv::sample::TableNamed(table).columns;
        std::size_t place = 0;
        while (columns.at(place).name != column)
            ++place;
        std::vector<std::string> cells;
        for (const kv::sample::Row& row : Of(table))
            cells.push_back(row[place]);
        return cells;
    }

private:
    const kv::sample::Table* table_ = nullptr;
    std::map<std::string, std::vector<kv::sample::Row>> rows_;
};

/// The dataset, made once in this process.
inline const CollectedRows& Dataset() {
    static const CollectedRows dataset = [] {
        CollectedRows made;
        kv::sample::WriteDataset(made, [](const std::string&) {});
        return made;
    }();
    return dataset;
}

}  // namespace test
