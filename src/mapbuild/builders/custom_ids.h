#pragma once

/// Template and controls of the custom map builder.
namespace kv::custom_bld {

inline constexpr int kTemplate = 15101;

inline constexpr int kMapName = 1238;
inline constexpr int kFeet = 1369;
inline constexpr int kMeters = 1370;
inline constexpr int kXYBounded = 1288;
inline constexpr int kLatLonBounded = 2100;
inline constexpr int kOriginXY = 1318;
inline constexpr int kOriginLatLon = 3003;
inline constexpr int kWidthAndHeight = 1255;
inline constexpr int kUpperRight = 1256;

// The lower left corner.
inline constexpr int kLatLabel = 1311;
inline constexpr int kLat = 1247;
inline constexpr int kLatDegLabel = 1302;
inline constexpr int kLatMin = 1248;
inline constexpr int kLatMinLabel = 1303;
inline constexpr int kLatSec = 1249;
inline constexpr int kLatSecLabel = 1304;
inline constexpr int kLonLabel = 1313;
inline constexpr int kLon = 1241;
inline constexpr int kLonDegLabel = 1305;
inline constexpr int kLonMin = 1242;
inline constexpr int kLonMinLabel = 1307;
inline constexpr int kLonSec = 1243;
inline constexpr int kLonSecLabel = 1309;
inline constexpr int kXLabel = 1295;
inline constexpr int kX = 1292;
inline constexpr int kYLabel = 1296;
inline constexpr int kY = 1233;

// The far side: the upper right corner, or a height and width.
inline constexpr int kFarGroup = 1319;
inline constexpr int kFarLatPlus = 1279;
inline constexpr int kFarLonPlus = 1282;
inline constexpr int kFarLatLabel = 1312;
inline constexpr int kFarLat = 1226;
inline constexpr int kFarLatDegLabel = 1299;
inline constexpr int kFarLatMin = 1231;
inline constexpr int kFarLatMinLabel = 1300;
inline constexpr int kFarLatSec = 1232;
inline constexpr int kFarLatSecLabel = 1301;
inline constexpr int kFarLonLabel = 1314;
inline constexpr int kFarLon = 1244;
inline constexpr int kFarLonDegLabel = 1306;
inline constexpr int kFarLonMin = 1245;
inline constexpr int kFarLonMinLabel = 1308;
inline constexpr int kFarLonSec = 1246;
inline constexpr int kFarLonSecLabel = 1310;
inline constexpr int kFarXLabel = 1298;
inline constexpr int kFarX = 1227;
inline constexpr int kFarYLabel = 1297;
inline constexpr int kFarY = 1234;
inline constexpr int kSizeLabel = 1317;
inline constexpr int kSize = 1315;

inline constexpr int kProjection = 1257;
inline constexpr int kSecondaryProjection = 1258;
inline constexpr int kSizingOptions = 1235;

}  // namespace kv::custom_bld
