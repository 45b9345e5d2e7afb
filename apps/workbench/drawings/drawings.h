#pragma once

namespace workbench {

/// What was drawn on a map. A plain value; documents share it and never change it in place.
class Drawings {
public:
    bool operator==(const Drawings&) const = default;
};

}  // namespace workbench
