#include "window/drawing/fine_image.h"

#include <map>

#include "window/drawing/device_context.h"

namespace kv {

namespace {

/// From here on the fine image loses less than the plain one gains.
constexpr double kEnoughPixels = 1.5;

std::map<int, const ImageResource*>& FineImages() {
    static std::map<int, const ImageResource*> images;
    return images;
}

const ImageResource* FineImageFor(const CDC& context, int id) {
    const auto* scaled = dynamic_cast<const ScaledSurface*>(context.GetSurface());
    if (!scaled || scaled->PixelsAcross() < kEnoughPixels) return nullptr;
    const auto found = FineImages().find(id);
    return found == FineImages().end() ? nullptr : found->second;
}

}  // namespace

RegisterFineImage::RegisterFineImage(const ImageResource& fine) {
    FineImages()[fine.id] = &fine;
}

bool DrawFineImage(CDC& context, CPoint at, int id) {
    const ImageResource* image = FindImage(id);
    if (!image) return false;
    const ImageResource* fine = FineImageFor(context, id);
    const ImageResource& drawn = fine ? *fine : *image;
    CBitmap picture;
    CDC source;
    source.CreateCompatibleDC(&context);
    picture.CreateFrom(DecodeImage(drawn));
    source.SelectObject(&picture);
    return context.StretchBlt(at.x, at.y, image->width, image->height, &source, 0, 0, drawn.width,
                              drawn.height, SRCCOPY) != FALSE;
}

}  // namespace kv
