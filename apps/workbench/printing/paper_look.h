#pragma once

#include "workbench/map/map_look.h"

namespace workbench {

enum class InkMode { kColor, kGray, kBlackAndWhite };

/// The map's colours as they are on white paper, all of them opaque.
MapLook LookOnPaper(InkMode mode);

/// A colour of a line or a text, or of a filling, in that ink.
QColor LineOnPaper(const QColor& color, InkMode mode);
QColor FillOnPaper(const QColor& color, InkMode mode);

}  // namespace workbench
