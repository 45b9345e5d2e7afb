#pragma once

#include "coordtools/angle_ids.h"

/// Ids of the distance check.
namespace kv::distance_dialog {

inline constexpr int kTemplate = 7008;

inline constexpr int kDistance = 7025;
inline constexpr int kUnit = 7034;
inline constexpr int kOffsetX = 7031;
inline constexpr int kOffsetY = 7032;
inline constexpr int kMapProjection = 7045;
inline constexpr int kUserProjection = 29079;
inline constexpr int kFormat = 7049;
inline constexpr int kStartX = 7027;
inline constexpr int kStartY = 7028;
inline constexpr coordtools::AngleIds kStartLatitude{
    {29044, 29045, 29046}, {29047, 29048, 29049}, {29050, 29051, 29052}};
inline constexpr coordtools::AngleIds kStartLongitude{
    {29053, 29054, 29055}, {29056, 29057, 29058}, {29059, 7026, 29060}};
inline constexpr int kEndX = 7029;
inline constexpr int kEndY = 7030;
inline constexpr coordtools::AngleIds kEndLatitude{
    {29061, 29062, 29063}, {29064, 29065, 29066}, {29067, 29068, 29069}};
inline constexpr coordtools::AngleIds kEndLongitude{
    {29070, 29071, 29072}, {29073, 29074, 29075}, {29076, 7035, 29077}};
inline constexpr int kUnused[] = {7041, 7042, 7043, 7044};

}  // namespace kv::distance_dialog
