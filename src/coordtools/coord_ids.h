#pragma once

#include "coordtools/angle_ids.h"

/// Ids of the coordinate readout.
namespace kv::coord_dialog {

inline constexpr int kTemplate = 7007;

inline constexpr int kX = 7022;
inline constexpr int kY = 7023;
inline constexpr int kMapProjection = 7024;
inline constexpr int kUserProjection = 29078;
inline constexpr int kUnit = 7047;
inline constexpr int kFormat = 7048;
inline constexpr coordtools::AngleIds kLatitude{
    {29027, 29028, 29029}, {29030, 29031, 29032}, {29033, 29034, 29035}};
inline constexpr coordtools::AngleIds kLongitude{
    {29036, 29037, 29038}, {29039, 29040, 29041}, {29042, 7025, 29043}};
inline constexpr int kUnused[] = {7039, 7040};

}  // namespace kv::coord_dialog
