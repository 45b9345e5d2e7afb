#pragma once

#include <algorithm>
#include <cstdint>

/// The platform's plain types, under its names and with its widths where they matter.

using BOOL = int;
using UINT = unsigned int;
using DWORD = std::uint32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;

/// A colour as 0x00BBGGRR.
using COLORREF = std::uint32_t;

inline constexpr BOOL FALSE = 0;
inline constexpr BOOL TRUE = 1;

constexpr COLORREF RGB(int red, int green, int blue) {
    return static_cast<COLORREF>((red & 0xFF) | ((green & 0xFF) << 8) | ((blue & 0xFF) << 16));
}
constexpr int GetRValue(COLORREF color) {
    return static_cast<int>(color & 0xFF);
}
constexpr int GetGValue(COLORREF color) {
    return static_cast<int>((color >> 8) & 0xFF);
}
constexpr int GetBValue(COLORREF color) {
    return static_cast<int>((color >> 16) & 0xFF);
}

constexpr WPARAM MAKEWPARAM(int low, int high) {
    return static_cast<WPARAM>((static_cast<std::uint32_t>(low) & 0xFFFFu) |
                               (static_cast<std::uint32_t>(high) << 16));
}
constexpr LPARAM MAKELPARAM(int low, int high) {
    return static_cast<LPARAM>(MAKEWPARAM(low, high));
}
constexpr int LOWORD(std::uintptr_t value) {
    return static_cast<int>(value & 0xFFFF);
}
constexpr int HIWORD(std::uintptr_t value) {
    return static_cast<int>((value >> 16) & 0xFFFF);
}

/// A place in logical pixels.
struct CPoint {
    int x = 0;
    int y = 0;
    bool operator==(const CPoint&) const = default;
};

/// An extent in logical pixels.
struct CSize {
    int cx = 0;
    int cy = 0;
    bool operator==(const CSize&) const = default;
};

/// A rectangle in logical pixels; right and bottom lie just outside it.
struct CRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CPoint TopLeft() const { return {left, top}; }
    CSize Size() const { return {Width(), Height()}; }
    bool IsRectEmpty() const { return right <= left || bottom <= top; }
    bool PtInRect(CPoint at) const {
        return at.x >= left && at.x < right && at.y >= top && at.y < bottom;
    }
    void OffsetRect(int dx, int dy) {
        left += dx;
        right += dx;
        top += dy;
        bottom += dy;
    }
    void DeflateRect(int dx, int dy) {
        left += dx;
        right -= dx;
        top += dy;
        bottom -= dy;
    }
    /// True, and this rectangle the common part, if the two have one; else false and empty.
    bool IntersectRect(const CRect& a, const CRect& b) {
        *this = {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                 std::min(a.bottom, b.bottom)};
        if (!IsRectEmpty()) return true;
        *this = {};
        return false;
    }
    bool operator==(const CRect&) const = default;
};

using RECT = CRect;

/// Results of dialogs and message boxes, and the ids of their buttons.
enum : int { IDOK = 1, IDCANCEL = 2, IDABORT = 3, IDRETRY = 4, IDIGNORE = 5, IDYES = 6, IDNO = 7 };

/// The id of controls that need none.
inline constexpr int IDC_STATIC = 65535;
