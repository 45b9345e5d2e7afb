#pragma once

#include <string>
#include <vector>

#include "sampledata/tables.h"

namespace kv::sample {

/// The cells of one row in the order of the table's columns, as text; an empty one is null.
using Row = std::vector<std::string>;

/// Where the dataset goes: one table after the other, each begun and ended.
class Sink {
public:
    virtual ~Sink() = default;
    virtual void Begin(const Table& table) = 0;
    virtual void Add(const Row& row) = 0;
    virtual void End() = 0;
};

}  // namespace kv::sample
