#pragma once

#include <memory>
#include <string>

#include "base/export.h"
#include "base/types.h"
#include "window/drawing/font.h"

/// What a device context draws with. Each object owns what its `Create...` made until
/// `DeleteObject`; a second `Create...` replaces it. A null handle is an object not made yet.

inline constexpr int PS_SOLID = 0;
inline constexpr int PS_DASH = 1;
inline constexpr int PS_DOT = 2;
inline constexpr int PS_DASHDOT = 3;
inline constexpr int PS_DASHDOTDOT = 4;
inline constexpr int PS_NULL = 5;

// What every program has; see `CDC::SelectStockObject` and `CreateStockObject`.
inline constexpr int WHITE_BRUSH = 0;
inline constexpr int LTGRAY_BRUSH = 1;
inline constexpr int GRAY_BRUSH = 2;
inline constexpr int DKGRAY_BRUSH = 3;
inline constexpr int BLACK_BRUSH = 4;
inline constexpr int NULL_BRUSH = 5;
inline constexpr int WHITE_PEN = 6;
inline constexpr int BLACK_PEN = 7;
inline constexpr int NULL_PEN = 8;
inline constexpr int ANSI_VAR_FONT = 12;
inline constexpr int SYSTEM_FONT = 13;
inline constexpr int DEFAULT_GUI_FONT = 17;

inline constexpr int FW_NORMAL = 400;
inline constexpr int FW_BOLD = 700;

class CDC;

/// A font's description. A height above 0 is that of a line, below 0 that of the characters alone,
/// 0 the dialog font's; all in logical pixels.
struct LOGFONT {
    int lfHeight = 0;
    int lfWeight = FW_NORMAL;
    unsigned char lfItalic = 0;
    char lfFaceName[32] = "";
};

/// A bitmap's extent in pixels.
struct BITMAP {
    int bmWidth = 0;
    int bmHeight = 0;
};

namespace kv {

class Raster;

struct Pen {
    int style = PS_SOLID;
    int width = 1;
    COLORREF color = 0;
};

struct Brush {
    bool hollow = false;
    COLORREF color = 0;
};

}  // namespace kv

using HPEN = const kv::Pen*;
using HBRUSH = const kv::Brush*;
using HFONT = const kv::Font*;
using HBITMAP = kv::Raster*;

class KVGUICTL_API CGdiObject {
public:
    virtual ~CGdiObject() = default;
    /// False when there is nothing to delete.
    virtual BOOL DeleteObject() = 0;
};

namespace kv {

template <typename Data>
class GdiObject : public CGdiObject {
public:
    Data* GetSafeHandle() const { return data_.get(); }
    operator Data*() const { return data_.get(); }
    BOOL DeleteObject() override {
        const bool had = data_ != nullptr;
        data_.reset();
        return had;
    }

protected:
    BOOL Own(std::unique_ptr<Data> data) {
        data_ = std::move(data);
        return data_ != nullptr;
    }

private:
    std::unique_ptr<Data> data_;
};

}  // namespace kv

class KVGUICTL_API CPen : public kv::GdiObject<const kv::Pen> {
public:
    CPen() = default;
    CPen(int style, int width, COLORREF color) { CreatePen(style, width, color); }
    /// A width of 0 is one pixel. Dashes are for lines one pixel wide; wider ones are solid.
    BOOL CreatePen(int style, int width, COLORREF color);
    BOOL CreateStockObject(int which);
};

class KVGUICTL_API CBrush : public kv::GdiObject<const kv::Brush> {
public:
    CBrush() = default;
    explicit CBrush(COLORREF color) { CreateSolidBrush(color); }
    BOOL CreateSolidBrush(COLORREF color);
    BOOL CreateStockObject(int which);
};

class KVGUICTL_API CFont : public kv::GdiObject<const kv::Font> {
public:
    BOOL CreateFontIndirect(const LOGFONT* description);
    /// Height in tenths of a point.
    BOOL CreatePointFont(int tenths, const char* face);
    BOOL CreateStockObject(int which);
    /// False when there is no font.
    BOOL GetLogFont(LOGFONT* description) const;
};

class KVGUICTL_API CBitmap : public kv::GdiObject<kv::Raster> {
public:
    CBitmap();
    ~CBitmap() override;
    /// White, and of that extent. False where it is empty.
    BOOL CreateCompatibleBitmap(CDC* context, int width, int height);
    /// The picture of that id in the resource chain; false, and no bitmap, where there is none.
    BOOL LoadBitmap(UINT id);
    BOOL CreateFrom(kv::Raster picture);
    /// The number of bytes of the record; 0 when there is no bitmap.
    int GetBitmap(BITMAP* extent) const;
};
