#pragma once

#include "base/export.h"
#include "window/node.h"

inline constexpr UINT PBM_SETRANGE = WM_USER + 1;
inline constexpr UINT PBM_SETPOS = WM_USER + 2;
inline constexpr UINT PBM_DELTAPOS = WM_USER + 3;
inline constexpr UINT PBM_SETSTEP = WM_USER + 4;
inline constexpr UINT PBM_STEPIT = WM_USER + 5;
inline constexpr UINT PBM_SETRANGE32 = WM_USER + 6;
inline constexpr UINT PBM_GETRANGE = WM_USER + 7;
inline constexpr UINT PBM_GETPOS = WM_USER + 8;

/// What PBM_GETRANGE fills.
struct PBRANGE {
    int iLow = 0;
    int iHigh = 0;
};

namespace kv {

/// A progress bar.
class KVGUICTL_API ProgressNode : public Node {
public:
    ProgressNode(int id, DWORD style) : Node(NodeClass::kProgress, id, style) {}

    int Lower() const { return lower_; }
    int Upper() const { return upper_; }
    int Position() const { return position_; }

    LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    /// Returns the former range, as far as 16 bits of each end hold it.
    LRESULT SetRange(int lower, int upper);
    /// Brings the position into the range, and returns the one that was.
    int SetPosition(long long position);
    int StepIt();

    int lower_ = 0;
    int upper_ = 100;
    int position_ = 0;
    int step_ = 10;
};

}  // namespace kv
