#pragma once

#include <optional>
#include <string>

#include "adaptors/adaptor.h"
#include "workbench/results/report_layers.h"

namespace workbench {

/// What a qualifier asks for: the rows of a layer for which a condition holds.
struct Match {
    const ReportLayer* layer;
    std::string condition;  ///< SQL; "t" is the layer's table
    std::string cut = {};   ///< words for the user where lines of the list file were cut
};

/// What the qualifier asks for that a dialog built with its sample inputs. Nothing for a dialog
/// that builds none, for one that was cancelled, and for an empty list. Throws std::runtime_error,
/// in words for the user, where the list file cannot be read, and where the dataset cannot tell.
std::optional<Match> MatchOf(const adaptors::Adaptor& adaptor, const adaptors::Run& run);

}  // namespace workbench
