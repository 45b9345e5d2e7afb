#pragma once

#include "coordtools/angle_ids.h"

/// Ids of the converter between NAD27 and NAD83.
namespace kv::nad_convert {

inline constexpr int kTemplate = 15113;

inline constexpr int k27To83 = 29116;
inline constexpr int k83To27 = 29117;
inline constexpr int kConvert = 29115;

// Panels.
inline constexpr int kFormat27 = 29009;
inline constexpr coordtools::AngleIds kLatitude27{
    {7023, 7026, 29027}, {7024, 7027, 29028}, {7025, 7028, 29029}};
inline constexpr coordtools::AngleIds kLongitude27{
    {7029, 7032, 29030}, {7030, 7033, 29031}, {7031, 7034, 29032}};

inline constexpr int kFormat83 = 29118;
inline constexpr coordtools::AngleIds kLatitude83{
    {29119, 29120, 29121}, {29122, 29123, 29124}, {29125, 29126, 29127}};
inline constexpr coordtools::AngleIds kLongitude83{
    {29128, 29129, 29130}, {29131, 29132, 29133}, {29134, 29135, 29136}};

}  // namespace kv::nad_convert
