#pragma once

#include <optional>
#include <string>

#include "adaptors/adaptor.h"
#include "frame/kvcom/min_max_2dd.h"
#include "window/desktop.h"

/// Inputs of the dialogs for scale and paper.
namespace adaptors {

inline constexpr const char* kPrinterInWords =
    "an object with device, form, paper, landscape, width and height (tenths of a millimetre)";

/// A printer as a script tells it; what is left out is as it is with a printer of Letter paper.
/// None where the value is no such object.
std::optional<kv::PrinterSettings> PrinterFrom(const Json& value);

/// "bounds" and "unit".
Input BoundsInput();
Input UnitInput();
CMinMax2Dd_t BoundsOf(const Run& run);
int UnitOf(const Run& run);

}  // namespace adaptors
