#include "kvload/row_keys.h"

#include <algorithm>
#include <string_view>

#include "base/text.h"
#include "kvload/refused.h"

namespace kvload {
namespace {

using kv::sample::Row;

std::string AsOne(const Row& row) {
    std::string joined;
    for (const std::string& cell : row)
        joined.append(cell).push_back('\x1f');
    return joined;
}

}  // namespace

RowKeys::RowKeys(const Target& target) : target_(target) {
    constexpr std::string_view kUnique = "unique ";
    for (const std::string_view index : TableOf(target).indexes) {
        if (!index.starts_with(kUnique) || index.ends_with(kRefnum)) continue;
        std::vector<std::string> columns = kv::Split(index.substr(kUnique.size()), ',');
        for (std::string& column : columns)
            column = kv::Trim(column);
        AddKey(std::move(columns), true);
    }
    if (!target.identity.empty()) AddKey({target.identity.begin(), target.identity.end()}, false);
}

void RowKeys::AddKey(std::vector<std::string> columns, bool emptyIsNone) {
    Key key{.columns = {}, .words = {}, .emptyIsNone = emptyIsNone};
    for (const std::string& column : columns) {
        key.columns.push_back(static_cast<size_t>(ColumnIndex(TableOf(target_), column)));
        key.words.append(key.words.empty() ? "" : ", ").append(column);
    }
    keys_.push_back(std::move(key));
}

void RowKeys::Read(Store& store) {
    std::string columns;
    for (const kv::sample::Column& column : TableOf(target_).columns)
        columns.append(columns.empty() ? "" : ", ").append(column.name);
    for (const Row& row :
         store.Query("select " + columns + " from " + store.Named(target_.table))) {
        try {
            Add(row, "the database");
        } catch (const Refused&) {
            // Rows that the database has twice are for `kvload check`.
        }
    }
}

bool RowKeys::Knows(const Row& row) const {
    return target_.places == Places::kNone && rows_.contains(AsOne(row));
}

void RowKeys::Add(const Row& row, const std::string& name) {
    std::vector<std::pair<Key*, std::string>> taken;
    for (Key& key : keys_) {
        Row cells;
        for (const size_t column : key.columns)
            cells.push_back(row[column]);
        if (key.emptyIsNone && std::ranges::any_of(cells, &std::string::empty)) continue;
        std::string text = AsOne(cells);
        if (const auto other = key.seen.find(text); other != key.seen.end())
            throw Refused("its " + key.words + " is that of " + other->second + " already");
        taken.emplace_back(&key, std::move(text));
    }
    for (auto& [key, text] : taken)
        key->seen.emplace(std::move(text), name);
    if (target_.places == Places::kNone) rows_.insert(AsOne(row));
}

}  // namespace kvload
