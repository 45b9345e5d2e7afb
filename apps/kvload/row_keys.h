#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "kvload/store.h"
#include "kvload/targets.h"

namespace kvload {

/// Tells rows of a target that are there already, or came before, from new ones.
class RowKeys {
public:
    explicit RowKeys(const Target& target);

    /// Learns those that the database has.
    void Read(Store& store);

    /// Whether the same row, cell by cell, was there. Only of what has no vertices or place.
    bool Knows(const kv::sample::Row& row) const;

    /// Throws Refused, with the one that has it, where the row takes what must be a row's own.
    /// Otherwise the row is known from now on by `name`.
    void Add(const kv::sample::Row& row, const std::string& name);

private:
    struct Key {
        std::vector<size_t> columns;
        std::string words;
        /// Whether an empty cell makes the row one of its own.
        bool emptyIsNone = true;
        std::unordered_map<std::string, std::string> seen = {};
    };

    void AddKey(std::vector<std::string> columns, bool emptyIsNone);

    const Target& target_;
    std::vector<Key> keys_;
    std::unordered_set<std::string> rows_;
};

}  // namespace kvload
