#pragma once

#include <nlohmann/json_fwd.hpp>
#include <stdexcept>

#include "workbench/drawings/drawings.h"

namespace workbench {

/// What is no drawings; the words say where it is broken, and how.
class BadDrawings : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Drawings as a file keeps them: four lists, "lines", "texts", "blocks" and "labels". Places are
/// pairs of longitude and latitude in degrees.
nlohmann::json ToJson(const Drawings& drawings);
/// Throws BadDrawings for what is not such a thing, for a member that it does not know, and for a
/// value out of its range: nothing that a file holds is lost in silence.
Drawings DrawingsFromJson(const nlohmann::json& json);

}  // namespace workbench
