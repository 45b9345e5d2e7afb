#pragma once

#include <string>
#include <vector>

#include "frame/kvcom/util_lldrv.h"
#include "frame/kvdbkvn/db_util.h"
#include "workbench/dataset.h"
#include "workbench/map/geometry.h"

namespace test {

// A block of the sample that wells and pipelines lie in.
inline constexpr const char* kArea = "43113";
inline constexpr const char* kBlock = "391";

/// Its corners in X and Y, in feet, by the tables and the driver alone.
inline std::vector<workbench::Point> CornersOfTheBlock() {
    const int projection = CKvDbUtil::S_GetProjectionByArea(kArea, "");
    const workbench::Rows rows("select v.lat, v.lon from " + workbench::TableName("_lbi") + " b, " +
                               workbench::TableName("_lbv") +
                               " v where b.areacode = " + workbench::Quoted(kArea) +
                               " and b.lbnum = " + workbench::Quoted(kBlock) +
                               " and v.refnum = b.refnum order by v.ptnum");
    std::vector<workbench::Point> corners;
    for (int row = 0; row < rows.Count(); ++row) {
        workbench::Point xy;
        CKvUtilLLdrv::LLdrv(rows.Number(row, 0), rows.Number(row, 1), &xy.x, &xy.y, projection, 0,
                            1, 100.0F, 0.0F, 0.0F);
        corners.push_back(xy);
    }
    return corners;
}

}  // namespace test
