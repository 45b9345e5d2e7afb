#pragma once

#include <cstdint>

/// How a line or polygon is drawn and edited: a record of two words. The first is a projection
/// code; the second holds flags, from bit 0 on in the order in which they stand here.
struct E_KV_LINE_OPTION {
    /// What the vertices are converted by.
    std::int32_t nProjection = 3;
    std::uint32_t bWait : 1 = 0;  ///< the host waits; OK can be pressed exactly then
    std::uint32_t bSpare1 : 1 = 0;
    std::uint32_t bModify : 1 = 0;  ///< the object exists already, and something changed
    std::uint32_t bPolygon : 1 = 0;
    std::uint32_t bFilled : 1 = 0;
    std::uint32_t bByMouse : 1 = 1;
    std::uint32_t bByKeyboard : 1 = 0;
    std::uint32_t bNewVertices : 1 = 0;  ///< the vertices that wait for OK are new
    std::uint32_t bRubberBand : 1 = 1;
    std::uint32_t bImperial : 1 = 1;  ///< X and Y in feet, not in meters
    std::uint32_t bSpare10 : 1 = 0;
    std::uint32_t nSpare : 21 = 0;
};
static_assert(sizeof(E_KV_LINE_OPTION) == 8);
