#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "kvload/mapping.h"
#include "kvload/source.h"
#include "kvload/store.h"

namespace kvload {

/// One source and what is to be made of it.
struct Job {
    std::string path;
    Mapping mapping;
};

/// What became of one source.
struct Outcome {
    std::string path;
    std::string target;
    /// Where its places come from; "" where it has none.
    std::string system;
    long long rows = 0;
    long long loaded = 0;
    /// Rows that were there already, cell by cell.
    long long repeated = 0;
    std::vector<std::string> leftOut;  ///< rows with the reason
    std::vector<std::string> notes;    ///< rows of which not all was taken as it stands
};

/// Who watches a load. Both are called for every row.
struct Watcher {
    /// `of` is below 0 where nobody knows.
    std::function<void(const std::string& step, long long done, long long of)> progress;
    /// True ends the load.
    std::function<bool()> cancelled;
};

class Cancelled : public std::runtime_error {
public:
    Cancelled() : std::runtime_error("Cancelled") {}
};

/// Fills the dataset's tables from the sources, those ahead to which others refer; makes the tables
/// that are missing. With `replace`, the tables that are filled lose their rows first. All is kept
/// or nothing: whatever is thrown, `Cancelled` among it, the database is as it was. The words of
/// what is thrown begin with the source, where one is the reason.
std::vector<Outcome> Load(std::vector<Job> jobs, Store& store, bool replace,
                          const Watcher& watcher);

}  // namespace kvload
