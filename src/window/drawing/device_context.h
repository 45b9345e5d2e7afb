#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "base/cstring.h"
#include "base/export.h"
#include "base/types.h"
#include "window/drawing/gdi_objects.h"
#include "window/drawing/surface.h"

namespace kv {
class Raster;
struct ImageResource;
}  // namespace kv

inline constexpr int TRANSPARENT = 1;
inline constexpr int OPAQUE = 2;

inline constexpr UINT TA_LEFT = 0x00;
inline constexpr UINT TA_RIGHT = 0x02;
inline constexpr UINT TA_CENTER = 0x06;
inline constexpr UINT TA_TOP = 0x00;
inline constexpr UINT TA_BOTTOM = 0x08;
inline constexpr UINT TA_BASELINE = 0x18;

inline constexpr UINT DT_LEFT = 0x0000;
inline constexpr UINT DT_TOP = 0x0000;
inline constexpr UINT DT_CENTER = 0x0001;
inline constexpr UINT DT_RIGHT = 0x0002;
inline constexpr UINT DT_VCENTER = 0x0004;
inline constexpr UINT DT_BOTTOM = 0x0008;
inline constexpr UINT DT_WORDBREAK = 0x0010;
inline constexpr UINT DT_SINGLELINE = 0x0020;
inline constexpr UINT DT_NOCLIP = 0x0100;
inline constexpr UINT DT_CALCRECT = 0x0400;
inline constexpr UINT DT_NOPREFIX = 0x0800;
inline constexpr UINT DT_END_ELLIPSIS = 0x8000;

inline constexpr DWORD SRCCOPY = 0x00CC0020;

inline constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;

/// Draws on a surface, in logical pixels from an origin of its own.
///
/// A context without a surface, as one for a window that is not being painted, draws nothing, and
/// measures text by the desktop. It starts with a black pen one pixel wide, a white brush, the
/// desktop's font, black text, and a white, opaque background. What is selected into it must
/// outlive that.
class KVGUICTL_API CDC {
public:
    CDC() = default;
    /// The surface is not owned.
    explicit CDC(kv::Surface& surface);
    virtual ~CDC() = default;
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    /// Becomes a context in memory, which draws on the bitmap that is selected into it.
    BOOL CreateCompatibleDC(CDC* context);
    BOOL DeleteDC();
    kv::Surface* GetSurface() const { return surface_; }

    // State.

    /// Keeps the state for `RestoreDC` and answers with its number, 1 being the first.
    int SaveDC();
    /// Goes back to the state of that number, or with -1 to the last one.
    BOOL RestoreDC(int saved);

    /// Each selects the object and answers with the one that was. Null and objects not made yet
    /// change nothing.
    CPen* SelectObject(CPen* pen);
    CBrush* SelectObject(CBrush* brush);
    CFont* SelectObject(CFont* font);
    /// Only in a context in memory.
    CBitmap* SelectObject(CBitmap* bitmap);
    CGdiObject* SelectStockObject(int which);

    COLORREF SetTextColor(COLORREF color);
    COLORREF GetTextColor() const { return state_.textColor; }
    COLORREF SetBkColor(COLORREF color);
    COLORREF GetBkColor() const { return state_.backColor; }
    int SetBkMode(int mode);
    int GetBkMode() const { return state_.backMode; }
    UINT SetTextAlign(UINT align);
    UINT GetTextAlign() const { return state_.align; }

    /// The place on the surface of this context's point (0, 0).
    CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(CPoint origin) { return SetViewportOrg(origin.x, origin.y); }
    CPoint GetViewportOrg() const { return state_.origin; }

    /// Keeps all further drawing within what the rectangle shares with the clip so far.
    void IntersectClipRect(const CRect& rect);
    /// What can be drawn on, in this context's own coordinates.
    CRect GetClipBox() const;

    // Rectangles.

    void FillRect(const CRect* rect, CBrush* brush);
    void FillRect(const CRect& rect, HBRUSH brush);
    /// Sets the background colour, too.
    void FillSolidRect(const CRect* rect, COLORREF color);
    void FillSolidRect(int x, int y, int width, int height, COLORREF color);
    /// A frame one pixel wide, within the rectangle.
    void FrameRect(const CRect* rect, CBrush* brush);
    /// The same: top and left in one colour, bottom and right in the other.
    void Draw3dRect(const CRect* rect, COLORREF topLeft, COLORREF bottomRight);
    void DrawFocusRect(const CRect* rect);

    // Figures: outlined by the pen, filled by the brush. With a null pen, a rectangle or an ellipse
    // is one pixel less wide and high.

    BOOL Rectangle(const CRect* rect);
    BOOL Rectangle(int left, int top, int right, int bottom);
    BOOL Ellipse(const CRect* rect);
    BOOL Ellipse(int left, int top, int right, int bottom);
    BOOL Polygon(const CPoint* corners, int count);
    BOOL Polyline(const CPoint* points, int count);

    // Lines: from the current place on, without the last point.

    CPoint MoveTo(int x, int y);
    CPoint MoveTo(CPoint to) { return MoveTo(to.x, to.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(CPoint to) { return LineTo(to.x, to.y); }
    CPoint GetCurrentPosition() const { return state_.position; }

    COLORREF SetPixel(int x, int y, COLORREF color);
    /// CLR_INVALID outside the clip.
    COLORREF GetPixel(int x, int y) const;

    // Images. A source is a context in memory with a bitmap; `rop` is SRCCOPY, and false is the
    // answer for any other.

    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY,
                DWORD rop);
    BOOL StretchBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY,
                    int sourceWidth, int sourceHeight, DWORD rop);
    /// An icon or bitmap of the resources, in its own size; false for null.
    BOOL DrawImage(int x, int y, const kv::ImageResource* image);
    /// A picture in its own size, by its opacity.
    void DrawPicture(int x, int y, const kv::Raster& picture);

    // Text.

    BOOL TextOut(int x, int y, const CString& text);
    /// Draws within the rectangle and answers with the height of the text. DT_CALCRECT draws
    /// nothing and fits the rectangle to the text.
    int DrawText(const CString& text, CRect* rect, UINT format);
    CSize GetTextExtent(const CString& text) const;

protected:
    /// Goes on drawing where `context` draws: on its surface, from its origin, within its clip.
    void Share(const CDC& context);

private:
    struct State {
        CPen* selectedPen = nullptr;
        CBrush* selectedBrush = nullptr;
        CFont* selectedFont = nullptr;
        kv::Pen pen;
        kv::Brush brush{false, RGB(255, 255, 255)};
        std::optional<kv::Font> font;
        COLORREF textColor = RGB(0, 0, 0);
        COLORREF backColor = RGB(255, 255, 255);
        int backMode = OPAQUE;
        UINT align = TA_LEFT;
        CPoint origin;
        CPoint position;
        std::optional<CRect> clip;  ///< on the surface
    };
    struct TextLine {
        std::string text;
        std::size_t mnemonic = std::string::npos;
    };

    kv::Surface* Ready() const;
    CPoint Place(CPoint at) const { return {at.x + state_.origin.x, at.y + state_.origin.y}; }
    CRect Place(CRect rect) const;
    CRect ClipOnSurface() const;
    std::optional<kv::Stroke> PenStroke() const;
    kv::Font CurrentFont() const;
    kv::TextSize Measure(const std::string& text) const;
    void DrawSegment(CPoint from, CPoint to);
    std::vector<TextLine> BreakText(const std::string& text, int width, UINT format) const;
    void WrapLine(const TextLine& line, int width, std::vector<TextLine>& lines) const;
    TextLine Shorten(const TextLine& line, int width) const;
    void DrawLine(const TextLine& line, CPoint at);

    kv::Surface* surface_ = nullptr;
    bool inMemory_ = false;
    CBitmap* selectedBitmap_ = nullptr;
    State state_;
    std::vector<State> saved_;
};
