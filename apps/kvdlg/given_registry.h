#pragma once

#include <map>
#include <optional>
#include <string>

#include "adaptors/adaptor.h"

namespace kvdlg {

/// As long as it lives, the application's registry is the one that the head of a script holds,
/// where it holds one; what is stored meanwhile goes with it.
class GivenRegistry {
public:
    /// Throws BadScript where it is no registry, FileFailure where there is no room for it.
    GivenRegistry(const adaptors::Json& script, const std::map<std::string, int>& lines);
    ~GivenRegistry();
    GivenRegistry(const GivenRegistry&) = delete;
    GivenRegistry& operator=(const GivenRegistry&) = delete;

private:
    std::string file_;  ///< "" where the script holds none
    std::optional<std::string> former_;
};

}  // namespace kvdlg
