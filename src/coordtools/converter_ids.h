#pragma once

#include "coordtools/angle_ids.h"

/// Ids of the converter between latitude and longitude and X/Y.
namespace kv::converter {

inline constexpr int kTemplate = 14608;

// The upper group.
inline constexpr int kToXY = 29005;
inline constexpr int kToLatLon = 29006;
inline constexpr int kProjection = 29007;
inline constexpr int kFormat = 29008;
inline constexpr int kUnit = 29009;
inline constexpr int kX = 29010;
inline constexpr int kY = 29011;
inline constexpr int kConvert = 29014;
inline constexpr coordtools::AngleIds kLatitude{
    {7011, 7014, 29021}, {7012, 7015, 29022}, {7013, 7016, 29023}};
inline constexpr coordtools::AngleIds kLongitude{
    {7017, 7020, 29024}, {7018, 7021, 29025}, {7019, 7022, 29026}};
inline constexpr int kNad27 = 29081;
inline constexpr int kNad83 = 29082;

// The lower group.
inline constexpr int kFromProjection = 29312;
inline constexpr int kFromUnit = 29308;
inline constexpr int kFromX = 29306;
inline constexpr int kFromY = 29307;
inline constexpr int kToProjection = 29313;
inline constexpr int kToUnit = 29311;
inline constexpr int kToX = 29309;
inline constexpr int kToY = 29310;
inline constexpr int kConvertXY = 29314;

}  // namespace kv::converter
