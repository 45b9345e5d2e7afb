#pragma once

#include <QString>

#include "workbench/map/map_painter.h"
#include "workbench/printing/page_grid.h"
#include "workbench/printing/paper_drawings.h"
#include "workbench/printing/paper_look.h"
#include "workbench/printing/paper_map.h"

namespace workbench {

/// All that decides what comes out on paper.
struct PrintPlan {
    PaperMap map;
    PaperDrawings drawings;
    PageGrid grid;
    Sheet sheet;
    int scale = 0;  ///< feet per inch
    InkMode ink = InkMode::kColor;
    int leastFontSize = 0;  ///< points; 0 for none
    MapLayers layers;
    QString title;
    QString date;

    /// What is written in the place of a label of the database; empty for nothing.
    std::string_view Label(LabelLayer layer, const AreaMap& area, std::string_view label) const {
        const Drawings* drawn = drawings.from.drawings.get();
        return drawn ? TextOf(drawn->labels, layer, area.code, label) : label;
    }

    /// The size of a text that is usually so large, in points.
    double TextSize(double usual) const { return leastFontSize > usual ? leastFontSize : usual; }
};

}  // namespace workbench
