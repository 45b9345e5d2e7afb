#include "window/drawing/device_context.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "window/drawing/image_resource.h"
#include "window/drawing/look.h"
#include "window/drawing/raster.h"
#include "window/drawing/text_metrics.h"

namespace {

constexpr int kEverywhere = 1 << 28;

/// What is drawn and what is left out of a line by a pen one pixel wide, as the platform has it.
constexpr std::array<int, 2> kDash{18, 6};
constexpr std::array<int, 2> kDot{3, 3};
constexpr std::array<int, 4> kDashDot{9, 6, 3, 6};
constexpr std::array<int, 6> kDashDotDot{9, 3, 3, 3, 3, 3};
constexpr std::array<int, 2> kFocusDots{1, 1};

std::span<const int> DashesOf(const kv::Pen& pen) {
    if (pen.width > 1) return {};
    switch (pen.style) {
        case PS_DASH:
            return kDash;
        case PS_DOT:
            return kDot;
        case PS_DASHDOT:
            return kDashDot;
        case PS_DASHDOTDOT:
            return kDashDotDot;
        default:
            return {};
    }
}

/// The places at which lines may break: the blanks.
std::size_t NextBreak(const std::string& text, std::size_t from) {
    const std::size_t blank = text.find(' ', from);
    return blank == std::string::npos ? text.size() : blank;
}

}  // namespace

CDC::CDC(kv::Surface& surface) : surface_(&surface) {}

BOOL CDC::CreateCompatibleDC(CDC*) {
    if (surface_ || inMemory_) return FALSE;
    inMemory_ = true;
    return TRUE;
}

BOOL CDC::DeleteDC() {
    const bool was = inMemory_;
    if (was) surface_ = nullptr;
    selectedBitmap_ = nullptr;
    inMemory_ = false;
    return was;
}

void CDC::Share(const CDC& context) {
    surface_ = context.surface_;
    state_.origin = context.state_.origin;
    state_.clip = context.state_.clip;
}

// State.

int CDC::SaveDC() {
    saved_.push_back(state_);
    return static_cast<int>(saved_.size());
}

BOOL CDC::RestoreDC(int saved) {
    const int count = static_cast<int>(saved_.size());
    const int number = saved < 0 ? count + 1 + saved : saved;
    if (number < 1 || number > count) return FALSE;
    state_ = saved_[static_cast<std::size_t>(number - 1)];
    saved_.resize(static_cast<std::size_t>(number - 1));
    return TRUE;
}

CPen* CDC::SelectObject(CPen* pen) {
    static CPen black(PS_SOLID, 1, RGB(0, 0, 0));
    CPen* former = state_.selectedPen ? state_.selectedPen : &black;
    if (pen && pen->GetSafeHandle()) {
        state_.selectedPen = pen;
        state_.pen = *pen->GetSafeHandle();
    }
    return former;
}

CBrush* CDC::SelectObject(CBrush* brush) {
    static CBrush white(RGB(255, 255, 255));
    CBrush* former = state_.selectedBrush ? state_.selectedBrush : &white;
    if (brush && brush->GetSafeHandle()) {
        state_.selectedBrush = brush;
        state_.brush = *brush->GetSafeHandle();
    }
    return former;
}

CFont* CDC::SelectObject(CFont* font) {
    static CFont system;
    if (!system.GetSafeHandle()) system.CreateStockObject(SYSTEM_FONT);
    CFont* former = state_.selectedFont ? state_.selectedFont : &system;
    if (font && font->GetSafeHandle()) {
        state_.selectedFont = font;
        state_.font = *font->GetSafeHandle();
    }
    return former;
}

CBitmap* CDC::SelectObject(CBitmap* bitmap) {
    static CBitmap none;
    if (!inMemory_ || !bitmap) return nullptr;
    CBitmap* former = selectedBitmap_ ? selectedBitmap_ : &none;
    selectedBitmap_ = bitmap;
    surface_ = bitmap->GetSafeHandle();
    return former;
}

CGdiObject* CDC::SelectStockObject(int which) {
    static std::array<CPen, DEFAULT_GUI_FONT + 1> pens;
    static std::array<CBrush, DEFAULT_GUI_FONT + 1> brushes;
    static std::array<CFont, DEFAULT_GUI_FONT + 1> fonts;
    if (which < 0 || which > DEFAULT_GUI_FONT) return nullptr;
    const auto index = static_cast<std::size_t>(which);
    if (brushes[index].CreateStockObject(which)) return SelectObject(&brushes[index]);
    if (pens[index].CreateStockObject(which)) return SelectObject(&pens[index]);
    if (fonts[index].CreateStockObject(which)) return SelectObject(&fonts[index]);
    return nullptr;
}

COLORREF CDC::SetTextColor(COLORREF color) {
    return std::exchange(state_.textColor, color);
}

COLORREF CDC::SetBkColor(COLORREF color) {
    return std::exchange(state_.backColor, color);
}

int CDC::SetBkMode(int mode) {
    return std::exchange(state_.backMode, mode);
}

UINT CDC::SetTextAlign(UINT align) {
    return std::exchange(state_.align, align);
}

CPoint CDC::SetViewportOrg(int x, int y) {
    return std::exchange(state_.origin, CPoint{x, y});
}

CRect CDC::Place(CRect rect) const {
    rect.OffsetRect(state_.origin.x, state_.origin.y);
    return rect;
}

CRect CDC::ClipOnSurface() const {
    if (!surface_) return {};
    const CSize extent = surface_->Extent();
    CRect clip{0, 0, extent.cx, extent.cy};
    if (state_.clip) clip.IntersectRect(clip, *state_.clip);
    return clip;
}

void CDC::IntersectClipRect(const CRect& rect) {
    CRect clip = state_.clip.value_or(CRect{-kEverywhere, -kEverywhere, kEverywhere, kEverywhere});
    clip.IntersectRect(clip, Place(rect));
    state_.clip = clip;
}

CRect CDC::GetClipBox() const {
    CRect box = ClipOnSurface();
    box.OffsetRect(-state_.origin.x, -state_.origin.y);
    return box;
}

/// The surface, with this context's clip in force: contexts that share a surface draw in turns.
kv::Surface* CDC::Ready() const {
    if (surface_) surface_->SetClip(ClipOnSurface());
    return surface_;
}

// Rectangles.

void CDC::FillRect(const CRect* rect, CBrush* brush) {
    if (rect && brush) FillRect(*rect, brush->GetSafeHandle());
}

void CDC::FillRect(const CRect& rect, HBRUSH brush) {
    kv::Surface* surface = Ready();
    if (surface && brush && !brush->hollow) surface->Fill(Place(rect), brush->color);
}

void CDC::FillSolidRect(const CRect* rect, COLORREF color) {
    SetBkColor(color);
    if (kv::Surface* surface = Ready()) surface->Fill(Place(*rect), color);
}

void CDC::FillSolidRect(int x, int y, int width, int height, COLORREF color) {
    const CRect rect{x, y, x + width, y + height};
    FillSolidRect(&rect, color);
}

void CDC::FrameRect(const CRect* rect, CBrush* brush) {
    const HBRUSH handle = brush ? brush->GetSafeHandle() : nullptr;
    if (handle && !handle->hollow) Draw3dRect(rect, handle->color, handle->color);
}

void CDC::Draw3dRect(const CRect* rect, COLORREF topLeft, COLORREF bottomRight) {
    kv::Surface* surface = Ready();
    if (!surface || rect->IsRectEmpty()) return;
    const CRect at = Place(*rect);
    surface->Fill({at.left, at.top, at.right - 1, at.top + 1}, topLeft);
    surface->Fill({at.left, at.top, at.left + 1, at.bottom - 1}, topLeft);
    surface->Fill({at.right - 1, at.top, at.right, at.bottom}, bottomRight);
    surface->Fill({at.left, at.bottom - 1, at.right, at.bottom}, bottomRight);
}

void CDC::DrawFocusRect(const CRect* rect) {
    kv::Surface* surface = Ready();
    if (!surface || rect->IsRectEmpty()) return;
    const CRect at = Place(*rect);
    const kv::Stroke dots{state_.textColor, 1, kFocusDots, std::nullopt};
    surface->Line({at.left, at.top}, {at.right, at.top}, dots);
    surface->Line({at.left, at.bottom - 1}, {at.right, at.bottom - 1}, dots);
    surface->Line({at.left, at.top}, {at.left, at.bottom}, dots);
    surface->Line({at.right - 1, at.top}, {at.right - 1, at.bottom}, dots);
}

// Figures and lines.

std::optional<kv::Stroke> CDC::PenStroke() const {
    if (state_.pen.style == PS_NULL) return std::nullopt;
    kv::Stroke stroke{state_.pen.color, state_.pen.width, DashesOf(state_.pen), std::nullopt};
    if (state_.backMode == OPAQUE) stroke.gap = state_.backColor;
    return stroke;
}

void CDC::DrawSegment(CPoint from, CPoint to) {
    const auto stroke = PenStroke();
    kv::Surface* surface = Ready();
    if (surface && stroke) surface->Line(Place(from), Place(to), *stroke);
}

BOOL CDC::Rectangle(const CRect* rect) {
    return Rectangle(rect->left, rect->top, rect->right, rect->bottom);
}

BOOL CDC::Rectangle(int left, int top, int right, int bottom) {
    const CRect rect{left, top, right - 1, bottom - 1};
    FillRect(rect, &state_.brush);
    const CPoint corners[] = {{rect.left, rect.top},
                              {rect.right, rect.top},
                              {rect.right, rect.bottom},
                              {rect.left, rect.bottom},
                              {rect.left, rect.top}};
    return Polyline(corners, static_cast<int>(std::size(corners)));
}

BOOL CDC::Ellipse(const CRect* rect) {
    return Ellipse(rect->left, rect->top, rect->right, rect->bottom);
}

BOOL CDC::Ellipse(int left, int top, int right, int bottom) {
    kv::Surface* surface = Ready();
    if (!surface) return TRUE;
    const auto stroke = PenStroke();
    const int less = stroke ? 0 : 1;
    std::optional<COLORREF> fill;
    if (!state_.brush.hollow) fill = state_.brush.color;
    surface->Ellipse(Place(CRect{left, top, right - less, bottom - less}), fill, stroke);
    return TRUE;
}

BOOL CDC::Polygon(const CPoint* corners, int count) {
    if (!corners || count < 2) return FALSE;
    std::vector<CPoint> placed;
    for (int i = 0; i < count; ++i)
        placed.push_back(Place(corners[i]));
    kv::Surface* surface = Ready();
    if (surface && !state_.brush.hollow) surface->Polygon(placed, state_.brush.color);
    Polyline(corners, count);
    DrawSegment(corners[count - 1], corners[0]);
    return TRUE;
}

BOOL CDC::Polyline(const CPoint* points, int count) {
    if (!points || count < 2) return FALSE;
    for (int i = 1; i < count; ++i)
        DrawSegment(points[i - 1], points[i]);
    return TRUE;
}

CPoint CDC::MoveTo(int x, int y) {
    return std::exchange(state_.position, CPoint{x, y});
}

BOOL CDC::LineTo(int x, int y) {
    DrawSegment(state_.position, {x, y});
    state_.position = {x, y};
    return TRUE;
}

COLORREF CDC::SetPixel(int x, int y, COLORREF color) {
    const CPoint at = Place(CPoint{x, y});
    if (kv::Surface* surface = Ready()) surface->Fill({at.x, at.y, at.x + 1, at.y + 1}, color);
    return color;
}

COLORREF CDC::GetPixel(int x, int y) const {
    const CPoint at = Place(CPoint{x, y});
    return ClipOnSurface().PtInRect(at) ? surface_->Pixel(at) : CLR_INVALID;
}

// Images.

BOOL CDC::BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY,
                 DWORD rop) {
    return StretchBlt(x, y, width, height, source, sourceX, sourceY, width, height, rop);
}

BOOL CDC::StretchBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY,
                     int sourceWidth, int sourceHeight, DWORD rop) {
    if (rop != SRCCOPY || !source || !source->selectedBitmap_) return FALSE;
    const HBITMAP picture = source->selectedBitmap_->GetSafeHandle();
    if (!picture) return FALSE;
    const CRect from{sourceX, sourceY, sourceX + sourceWidth, sourceY + sourceHeight};
    if (kv::Surface* surface = Ready()) {
        surface->Image(Place(CRect{x, y, x + width, y + height}), *picture, source->Place(from));
    }
    return TRUE;
}

BOOL CDC::DrawImage(int x, int y, const kv::ImageResource* image) {
    if (!image) return FALSE;
    DrawPicture(x, y, kv::DecodeImage(*image));
    return TRUE;
}

void CDC::DrawPicture(int x, int y, const kv::Raster& picture) {
    const CRect whole{0, 0, picture.Width(), picture.Height()};
    CRect target = whole;
    target.OffsetRect(x, y);
    if (kv::Surface* surface = Ready()) surface->Image(Place(target), picture, whole);
}

// Text.

kv::Font CDC::CurrentFont() const {
    return state_.font ? *state_.font : kv::CurrentLook().DefaultFont();
}

kv::TextSize CDC::Measure(const std::string& text) const {
    const kv::Font font = CurrentFont();
    if (surface_) return surface_->Measure(text, font);
    const CSize extent = kv::CurrentLook().TextExtent(text, font);
    return {extent.cx, extent.cy, extent.cy};
}

CSize CDC::GetTextExtent(const CString& text) const {
    const kv::TextSize size = Measure(text.str());
    return {size.width, size.height};
}

BOOL CDC::TextOut(int x, int y, const CString& text) {
    kv::Surface* surface = Ready();
    if (!surface) return TRUE;
    const kv::TextSize size = Measure(text.str());
    CPoint at{x, y};
    if ((state_.align & TA_CENTER) == TA_CENTER) {
        at.x -= size.width / 2;
    } else if (state_.align & TA_RIGHT) {
        at.x -= size.width;
    }
    if ((state_.align & TA_BASELINE) == TA_BASELINE) {
        at.y -= size.ascent;
    } else if (state_.align & TA_BOTTOM) {
        at.y -= size.height;
    }
    DrawLine({text.str(), std::string::npos}, at);
    return TRUE;
}

/// Draws a line of text from its top left corner, with the background under it and the line under
/// its mnemonic.
void CDC::DrawLine(const TextLine& line, CPoint at) {
    kv::Surface* surface = Ready();
    if (!surface || line.text.empty()) return;
    const CPoint place = Place(at);
    if (state_.backMode == OPAQUE) {
        const kv::TextSize size = Measure(line.text);
        surface->Fill({place.x, place.y, place.x + size.width, place.y + size.height},
                      state_.backColor);
    }
    surface->Text(place, line.text, CurrentFont(), state_.textColor);
    if (line.mnemonic >= line.text.size()) return;
    const int left = place.x + Measure(line.text.substr(0, line.mnemonic)).width;
    const int width = Measure(line.text.substr(line.mnemonic, 1)).width - 1;
    const int top = place.y + Measure(line.text).ascent + 1;
    surface->Fill({left, top, left + width, top + 1}, state_.textColor);
}

/// The lines that a text makes: at its line ends, and where it is wider than `width`, if it may.
std::vector<CDC::TextLine> CDC::BreakText(const std::string& text, int width, UINT format) const {
    std::vector<TextLine> lines(1);
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool more = at + 1 < text.size();
        TextLine& line = lines.back();
        if (text[at] == '&' && !(format & DT_NOPREFIX)) {
            if (!more) break;
            ++at;
            if (text[at] != '&') line.mnemonic = std::min(line.mnemonic, line.text.size());
            line.text += text[at];
        } else if (text[at] == '\r' && more && text[at + 1] == '\n') {
            continue;
        } else if (text[at] == '\n' && !(format & DT_SINGLELINE)) {
            lines.emplace_back();
        } else {
            line.text += text[at];
        }
    }
    if (!(format & DT_WORDBREAK) || (format & DT_SINGLELINE)) return lines;
    std::vector<TextLine> wrapped;
    for (const TextLine& line : lines)
        WrapLine(line, width, wrapped);
    return wrapped;
}

void CDC::WrapLine(const TextLine& line, int width, std::vector<TextLine>& lines) const {
    std::size_t start = 0;
    do {
        std::size_t end = NextBreak(line.text, start);
        while (end < line.text.size()) {
            const std::size_t next = NextBreak(line.text, end + 1);
            if (Measure(line.text.substr(start, next - start)).width > width) break;
            end = next;
        }
        TextLine part{line.text.substr(start, end - start), std::string::npos};
        if (line.mnemonic >= start && line.mnemonic < end) part.mnemonic = line.mnemonic - start;
        lines.push_back(std::move(part));
        start = end + 1;
    } while (start < line.text.size());
}

/// The line, with its end replaced by three periods where it is wider than `width`.
CDC::TextLine CDC::Shorten(const TextLine& line, int width) const {
    if (Measure(line.text).width <= width) return line;
    std::string text = line.text;
    while (!text.empty() && Measure(text + "...").width > width) {
        // Never through the middle of a character.
        do {
            text.pop_back();
        } while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80);
    }
    const bool kept = line.mnemonic < text.size();
    return {text + "...", kept ? line.mnemonic : std::string::npos};
}

int CDC::DrawText(const CString& text, CRect* rect, UINT format) {
    std::vector<TextLine> lines = BreakText(text.str(), rect->Width(), format);
    const int lineHeight = Measure("").height;
    const int height = lineHeight * static_cast<int>(lines.size());
    if (format & DT_CALCRECT) {
        int width = 0;
        for (const TextLine& line : lines)
            width = std::max(width, Measure(line.text).width);
        rect->right = rect->left + width;
        rect->bottom = rect->top + height;
        return height;
    }
    const std::optional<CRect> formerClip = state_.clip;
    if (!(format & DT_NOCLIP)) IntersectClipRect(*rect);
    int y = rect->top;
    if (format & DT_SINGLELINE) {
        if (format & DT_VCENTER) y += (rect->Height() - lineHeight) / 2;
        if (format & DT_BOTTOM) y = rect->bottom - lineHeight;
    }
    for (const TextLine& full : lines) {
        const TextLine line = format & DT_END_ELLIPSIS ? Shorten(full, rect->Width()) : full;
        const int room = rect->Width() - Measure(line.text).width;
        int x = rect->left;
        if (format & DT_CENTER) x += room / 2;
        if (format & DT_RIGHT) x += room;
        DrawLine(line, {x, y});
        y += lineHeight;
    }
    state_.clip = formerClip;
    return height;
}
