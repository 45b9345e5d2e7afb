#pragma once

#include <functional>
#include <string>

#include "base/export.h"

namespace kv {

class Node;

/// What a person does with the window by which a query can be cancelled.
using ActOnWait = std::function<void(Node& window)>;

/// Told of the queries that a person may come to wait for, by their texts; none is within another.
struct QueryWaits {
    /// Ahead of one. For what it gives the window comes up at once, and goes again; without, it is
    /// left to time whether it comes up.
    std::function<ActOnWait(const std::string& sql)> begins;
    std::function<void()> ends;
};

/// Names who is told, nobody where the functions are empty, and returns who was.
KVGUICTL_API QueryWaits SetQueryWaits(QueryWaits waits);

ActOnWait TellQueryBegins(const std::string& sql);
void TellQueryEnds();

}  // namespace kv
