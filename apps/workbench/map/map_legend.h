#pragma once

#include "workbench/map/map_look.h"
#include "workbench/map/map_model.h"

/// What the legend tells of, on the screen and on paper.
namespace workbench {

/// The fill of areas in that water.
const QColor& WaterColor(const MapLook& look, Water water);

struct LegendRow {
    const char* text;
    std::uint8_t kind;
};
inline constexpr LegendRow kWellRows[] = {{"Completed well", kWellCompleted},
                                          {"Drilling", kWellDrilling},
                                          {"Temporarily abandoned", kWellSuspended},
                                          {"Sidetracked", kWellSidetracked},
                                          {"Plugged and abandoned", kWellAbandoned}};
inline constexpr LegendRow kPlatformRows[] = {{"Platform", kPlatformStanding},
                                              {"Removed platform", kPlatformRemoved}};
inline constexpr LegendRow kPipelineRows[] = {
    {"Oil pipeline", kPipeOil}, {"Gas pipeline", kPipeGas}, {"Other pipeline", kPipeOther}};

struct WaterRow {
    const char* text;
    Water water;
};
inline constexpr WaterRow kWaterRows[] = {{"State waters", Water::kState},
                                          {"Bays and lakes", Water::kBay},
                                          {"Federal shelf", Water::kShelf},
                                          {"Federal deep water", Water::kDeep}};

}  // namespace workbench
