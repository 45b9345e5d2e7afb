#pragma once

#include <QCursor>

namespace workbench {

/// The cursors of the map that tell which readout waits: a cross with a small sign beside it.
QCursor CoordinatesCursor();
QCursor HeldCursor();
QCursor DistanceCursor();

}  // namespace workbench
