#pragma once

/// Template and controls of the vertices builder.
namespace kv::vertice_builder {

inline constexpr int kTemplate = 15122;

inline constexpr int kXyMode = 29238;
inline constexpr int kLatLonMode = 29239;
inline constexpr int kFormat = 29273;
inline constexpr int kDecimal = 29271;
inline constexpr int kDms = 29272;

inline constexpr int kXLabel = 29240;
inline constexpr int kYLabel = 29241;
inline constexpr int kX = 29171;
inline constexpr int kY = 29172;
inline constexpr int kDegreeLabel = 29242;
inline constexpr int kMinuteLabel = 29246;
inline constexpr int kSecondLabel = 29247;
inline constexpr int kLatLabel = 29248;
inline constexpr int kLonLabel = 29249;
inline constexpr int kLatDegree = 29243;
inline constexpr int kLatMinute = 29244;
inline constexpr int kLatSecond = 29245;
inline constexpr int kLonDegree = 29250;
inline constexpr int kLonMinute = 29251;
inline constexpr int kLonSecond = 29252;

inline constexpr int kRows = 29173;
inline constexpr int kAdd = 29177;
inline constexpr int kInsert = 29178;
inline constexpr int kEditRow = 29182;
inline constexpr int kDelete = 29179;
inline constexpr int kMoveUp = 29180;
inline constexpr int kMoveDown = 29181;
inline constexpr int kLoad = 29170;
inline constexpr int kSave = 29174;
inline constexpr int kAccept = 29176;
/// A command that hosts may send; the dialog has no control for it.
inline constexpr int kClose = 29161;

}  // namespace kv::vertice_builder
