#pragma once

#include <nlohmann/json_fwd.hpp>

#include "workbench/drawings/drawings.h"

namespace workbench {

/// Drawings as a file keeps them.
nlohmann::json ToJson(const Drawings& drawings);
/// Throws `nlohmann::json::exception` for what is not such a thing.
Drawings DrawingsFromJson(const nlohmann::json& json);

}  // namespace workbench
