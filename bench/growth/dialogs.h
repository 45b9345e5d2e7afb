#pragma once

#include <string>

namespace growth {

/// Measures, without a screen, what people do in the bar and the dialogs on that dataset, and
/// prints the figures.
void MeasureDialogs(const std::string& server);

}  // namespace growth
