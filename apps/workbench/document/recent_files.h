#pragma once

#include <string>
#include <vector>

namespace workbench {

/// The files that were opened or saved last, the newest first. The profile keeps them.
class RecentFiles {
public:
    std::vector<std::string> Paths() const;
    void Add(const std::string& path);
};

}  // namespace workbench
