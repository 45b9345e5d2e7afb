#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "window/rows/row_list.h"

namespace kv {

/// Finds rows by what is typed into a list. Characters that come quickly one behind the other make
/// up one text; a single one, or one that is repeated, goes on to the next row that begins with it.
class TypeSearch {
public:
    using Time = std::chrono::system_clock::time_point;
    /// First row behind a row that begins with a text, going round; -1 for none.
    using Find = std::function<int(const std::string& text, int behind)>;

    /// The row to go to, or -1. `current` is the row to start from, or -1.
    int Type(char ch, Time now, const Find& find, int current);
    int Type(char ch, Time now, const RowList& rows, int current);
    /// Whether a next character would be added to a text.
    bool Running(Time now) const;
    void Stop() { typed_.clear(); }

private:
    std::string typed_;
    Time last_;
};

}  // namespace kv
