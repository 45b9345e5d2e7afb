#pragma once

#include <memory>
#include <vector>

#include "base/export.h"
#include "base/types.h"
#include "window/drawing/gdi_objects.h"
#include "window/drawing/raster.h"

class CImageList;

/// Which images of a list view are meant: those beside its rows, in report form the small ones.
inline constexpr int LVSIL_NORMAL = 0;
inline constexpr int LVSIL_SMALL = 1;

namespace kv {

/// Images of one size, by their index.
class KVGUICTL_API ImageList : public std::enable_shared_from_this<ImageList> {
public:
    explicit ImageList(CSize size) : size_(size) {}

    CSize Size() const { return size_; }
    int Count() const { return static_cast<int>(images_.size()); }
    /// Null where there is no such image.
    const Raster* At(int index) const;
    /// Cuts a strip into as many images as it has room for; returns the index of the first, -1 for
    /// none.
    int AddStrip(const Raster& strip);

    /// The object that made it; null when that is gone.
    CImageList* Handle() const { return handle_; }
    void SetHandle(CImageList* handle) { handle_ = handle; }

private:
    CSize size_;
    std::vector<Raster> images_;
    CImageList* handle_ = nullptr;
};

}  // namespace kv

using HIMAGELIST = kv::ImageList*;

/// A handle on a list of images. A control that shows them keeps them, also when the handle goes.
class KVGUICTL_API CImageList {
public:
    CImageList() = default;
    ~CImageList();
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;

    /// Images of that size in pixels; false where it is empty. An earlier list is let go.
    BOOL Create(int width, int height);
    /// The strip of that id in the resource chain, cut into images of that width; pixels of the
    /// colour `mask` are transparent. False, and no list, where there is none.
    BOOL Create(UINT imageId, int width, COLORREF mask);
    /// Index of the first new image, -1 for none.
    int Add(const CBitmap& strip, COLORREF mask);
    /// The image of that id in the resource chain, with its own transparency.
    int Add(UINT imageId);
    int GetImageCount() const;
    BOOL DeleteImageList();

    HIMAGELIST GetSafeHandle() const { return list_.get(); }

private:
    std::shared_ptr<kv::ImageList> list_;
};
