#pragma once

#include <cstddef>
#include <vector>

#include "geofiles/table.h"
#include "workbench/map/geometry.h"

namespace workbench {

/// Gathers the tables of an export: of what is put in, that which is seen.
class ExportTables {
public:
    /// `seen` is in map units.
    explicit ExportTables(const Box& seen) : seen_(seen) {}

    /// Of the table with the name and columns of `head` are the rows that come next.
    void Begin(const geofiles::Table& head);
    void Add(geofiles::Row row);

    /// Those that have rows.
    std::vector<geofiles::Table> Take();
    /// How many rows were taken, and how many have too few places to be drawn.
    std::size_t Count() const { return count_; }
    std::size_t LeftOut() const { return leftOut_; }

private:
    bool IsSeen(const geofiles::Row& row) const;

    Box seen_;
    std::vector<geofiles::Table> tables_;
    std::size_t current_ = 0;
    std::size_t count_ = 0;
    std::size_t leftOut_ = 0;
};

}  // namespace workbench
