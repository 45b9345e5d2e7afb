#include "window/drawing/gdi_objects.h"

#include <algorithm>
#include <cstring>

#include "window/drawing/image_resource.h"
#include "window/drawing/look.h"
#include "window/drawing/raster.h"

namespace {

/// Height of a line over that of the characters alone, in the dialog font.
constexpr int kLineHeight = 13;
constexpr int kCharacterHeight = 11;

int LineHeightOf(int characterHeight) {
    return (characterHeight * kLineHeight + kCharacterHeight / 2) / kCharacterHeight;
}

int LineHeightOf(const LOGFONT& description) {
    if (description.lfHeight > 0) return description.lfHeight;
    if (description.lfHeight < 0) return LineHeightOf(-description.lfHeight);
    return kv::CurrentLook().DefaultFont().height;
}

struct StockBrush {
    int which;
    kv::Brush brush;
};
constexpr StockBrush kStockBrushes[] = {
    {WHITE_BRUSH, {false, RGB(255, 255, 255)}}, {LTGRAY_BRUSH, {false, RGB(192, 192, 192)}},
    {GRAY_BRUSH, {false, RGB(128, 128, 128)}},  {DKGRAY_BRUSH, {false, RGB(64, 64, 64)}},
    {BLACK_BRUSH, {false, RGB(0, 0, 0)}},       {NULL_BRUSH, {true, RGB(0, 0, 0)}},
};

struct StockPen {
    int which;
    kv::Pen pen;
};
constexpr StockPen kStockPens[] = {
    {WHITE_PEN, {PS_SOLID, 1, RGB(255, 255, 255)}},
    {BLACK_PEN, {PS_SOLID, 1, RGB(0, 0, 0)}},
    {NULL_PEN, {PS_NULL, 1, RGB(0, 0, 0)}},
};

}  // namespace

BOOL CPen::CreatePen(int style, int width, COLORREF color) {
    return Own(std::make_unique<kv::Pen>(kv::Pen{style, std::max(width, 1), color}));
}

BOOL CPen::CreateStockObject(int which) {
    for (const auto& stock : kStockPens) {
        if (stock.which == which) return Own(std::make_unique<kv::Pen>(stock.pen));
    }
    return FALSE;
}

BOOL CBrush::CreateSolidBrush(COLORREF color) {
    return Own(std::make_unique<kv::Brush>(kv::Brush{false, color}));
}

BOOL CBrush::CreateStockObject(int which) {
    for (const auto& stock : kStockBrushes) {
        if (stock.which == which) return Own(std::make_unique<kv::Brush>(stock.brush));
    }
    return FALSE;
}

BOOL CFont::CreateFontIndirect(const LOGFONT* description) {
    const kv::Font font{description->lfFaceName, LineHeightOf(*description),
                        description->lfWeight >= FW_BOLD, description->lfItalic != 0};
    return Own(std::make_unique<kv::Font>(font));
}

BOOL CFont::CreatePointFont(int tenths, const char* face) {
    // A logical pixel is a ninety-sixth of an inch, a point a seventy-second.
    const int characterHeight = (std::max(tenths, 0) * 96 + 360) / 720;
    const kv::Font font{face ? face : "", LineHeightOf(characterHeight), false, false};
    return Own(std::make_unique<kv::Font>(font));
}

BOOL CFont::CreateStockObject(int which) {
    if (which != DEFAULT_GUI_FONT && which != ANSI_VAR_FONT && which != SYSTEM_FONT) return FALSE;
    return Own(std::make_unique<kv::Font>(kv::CurrentLook().DefaultFont()));
}

BOOL CFont::GetLogFont(LOGFONT* description) const {
    const kv::Font* font = GetSafeHandle();
    if (!font) return FALSE;
    *description = {};
    description->lfHeight = font->height;
    description->lfWeight = font->bold ? FW_BOLD : FW_NORMAL;
    description->lfItalic = font->italic;
    font->face.copy(description->lfFaceName, sizeof description->lfFaceName - 1);
    return TRUE;
}

CBitmap::CBitmap() = default;
CBitmap::~CBitmap() = default;

BOOL CBitmap::CreateFrom(kv::Raster picture) {
    if (picture.Extent().cx == 0 || picture.Extent().cy == 0) return FALSE;
    return Own(std::make_unique<kv::Raster>(std::move(picture)));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC*, int width, int height) {
    return CreateFrom(kv::Raster(width, height, kv::ToArgb(RGB(255, 255, 255))));
}

BOOL CBitmap::LoadBitmap(UINT id) {
    DeleteObject();
    const kv::ImageResource* image = kv::FindImage(static_cast<int>(id));
    return image && CreateFrom(kv::DecodeImage(*image));
}

int CBitmap::GetBitmap(BITMAP* extent) const {
    const kv::Raster* picture = GetSafeHandle();
    if (!picture) return 0;
    *extent = {picture->Width(), picture->Height()};
    return static_cast<int>(sizeof(BITMAP));
}
