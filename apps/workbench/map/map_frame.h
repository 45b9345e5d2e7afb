#pragma once

#include <QString>
#include <vector>

#include "workbench/map/geometry.h"

namespace workbench {

/// The edge of a map that was built, in the projection that is drawn.
struct MapFrame {
    std::vector<Point> outline;  ///< closed; the first corner is not repeated
    QString name;
    QString details;  ///< in what projection and at what scale

    /// Around the whole edge, which may be curved or turned.
    Box Bounds() const {
        Box box;
        for (const Point& corner : outline)
            box.Include(corner);
        return box;
    }
};

}  // namespace workbench
