#pragma once

/// Template and controls of the dialog for a maximum and a minimum angle.
namespace kv::dms_dlg {

inline constexpr int kTemplate = 13002;

inline constexpr int kMaxLabel = 18092;
inline constexpr int kMaxDegEdit = 23071;
inline constexpr int kMaxDegSpin = 23072;
inline constexpr int kMaxMinEdit = 23073;
inline constexpr int kMaxMinSpin = 23074;
inline constexpr int kMaxSecEdit = 23075;
inline constexpr int kMaxSecSpin = 23076;
inline constexpr int kMaxDegLabel = 23096;
inline constexpr int kMaxMinLabel = 23097;
inline constexpr int kMaxSecLabel = 23098;

inline constexpr int kMinLabel = 18093;
inline constexpr int kMinDegEdit = 23099;
inline constexpr int kMinDegSpin = 23100;
inline constexpr int kMinMinEdit = 23102;
inline constexpr int kMinMinSpin = 23103;
inline constexpr int kMinSecEdit = 23104;
inline constexpr int kMinSecSpin = 23105;
inline constexpr int kMinDegLabel = 23106;
inline constexpr int kMinMinLabel = 23107;
inline constexpr int kMinSecLabel = 23108;

}  // namespace kv::dms_dlg
