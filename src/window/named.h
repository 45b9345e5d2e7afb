#pragma once

#include <string>

#include "base/export.h"

namespace kv {

/// A handle that tells what its control is read out as, where a label does not say enough. Views
/// ask it when they are made, and whenever the tool tip changes.
class KVGUICTL_API Named {
public:
    virtual ~Named() = default;
    /// Empty for what the label says.
    virtual std::string SpokenName() const = 0;
};

}  // namespace kv
