#include "window/drawing/image_list.h"

#include "window/drawing/image_resource.h"

namespace kv {

namespace {

/// A part of a picture; what lies outside that is transparent.
Raster Cut(const Raster& from, CPoint corner, CSize size) {
    Raster part(size.cx, size.cy);
    for (int y = 0; y < size.cy; ++y) {
        for (int x = 0; x < size.cx; ++x)
            part.SetArgb(x, y, from.Argb(corner.x + x, corner.y + y));
    }
    return part;
}

Raster Masked(Raster picture, COLORREF mask) {
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            if (picture.Argb(x, y) == ToArgb(mask)) picture.SetArgb(x, y, 0);
        }
    }
    return picture;
}

}  // namespace

const Raster* ImageList::At(int index) const {
    return index >= 0 && index < Count() ? &images_[static_cast<std::size_t>(index)] : nullptr;
}

int ImageList::AddStrip(const Raster& strip) {
    const int added = strip.Width() / size_.cx;
    if (added == 0) return -1;
    const int first = Count();
    for (int index = 0; index < added; ++index) {
        images_.push_back(Cut(strip, {index * size_.cx, 0}, size_));
    }
    return first;
}

}  // namespace kv

CImageList::~CImageList() {
    DeleteImageList();
}

BOOL CImageList::Create(int width, int height) {
    DeleteImageList();
    if (width <= 0 || height <= 0) return FALSE;
    list_ = std::make_shared<kv::ImageList>(CSize{width, height});
    list_->SetHandle(this);
    return TRUE;
}

BOOL CImageList::Create(UINT imageId, int width, COLORREF mask) {
    DeleteImageList();
    CBitmap strip;
    return strip.LoadBitmap(imageId) && Create(width, strip.GetSafeHandle()->Height()) &&
           Add(strip, mask) >= 0;
}

int CImageList::Add(const CBitmap& strip, COLORREF mask) {
    const kv::Raster* picture = strip.GetSafeHandle();
    return list_ && picture ? list_->AddStrip(kv::Masked(*picture, mask)) : -1;
}

int CImageList::Add(UINT imageId) {
    const kv::ImageResource* image = kv::FindImage(static_cast<int>(imageId));
    return list_ && image ? list_->AddStrip(kv::DecodeImage(*image)) : -1;
}

int CImageList::GetImageCount() const {
    return list_ ? list_->Count() : 0;
}

BOOL CImageList::DeleteImageList() {
    if (!list_) return FALSE;
    list_->SetHandle(nullptr);
    list_.reset();
    return TRUE;
}
