#pragma once

#include "base/export.h"
#include "base/types.h"
#include "window/drawing/image_resource.h"

class CDC;

namespace kv {

/// What a surface also is whose logical pixels are more than one of its own.
class KVGUICTL_API ScaledSurface {
public:
    virtual ~ScaledSurface() = default;
    /// Its own pixels for a logical one, across.
    virtual double PixelsAcross() const = 0;
};

/// The image of an id has a second one of the same extent, drawn in twice as many pixels each way.
/// Defined as a static object beside the data, which must have static lifetime, too.
class KVGUICTL_API RegisterFineImage {
public:
    explicit RegisterFineImage(const ImageResource& fine);
};

/// Draws the image of that id, in the extent that it has of itself, from its fine one where the
/// surface has the pixels to show it. False, and nothing drawn, where there is no such image.
KVGUICTL_API bool DrawFineImage(CDC& context, CPoint at, int id);

}  // namespace kv
