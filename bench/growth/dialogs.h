#pragma once

#include <string>

namespace growth {

/// Measures, without a screen, what people do in the bar and the dialogs on that dataset, and
/// prints the figures. False where some of it failed, which is told; the rest is measured then.
bool MeasureDialogs(const std::string& server);

}  // namespace growth
