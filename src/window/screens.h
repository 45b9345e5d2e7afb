#pragma once

#include "base/export.h"
#include "base/types.h"

namespace kv {

class Desktop;

/// Of a desktop that may have several.
class KVGUICTL_API Screens {
public:
    virtual ~Screens() = default;
    /// What the screen at that place, or else the nearest one, has for the contents of a window.
    virtual CRect ScreenAround(CPoint at) const = 0;
};

/// `screens` outlive what is asked, and are asked while that desktop is the present one. Null where
/// it knows of no several.
KVGUICTL_API void SetScreens(const Desktop& desktop, const Screens* screens);
/// Null where that desktop knows of no several.
KVGUICTL_API const Screens* ScreensOf(const Desktop& desktop);

/// That of the present desktop; one that knows of no several has a single screen, at the origin.
KVGUICTL_API CRect ScreenAround(CPoint at);
/// The screen that the middle of a rectangle lies on.
KVGUICTL_API CRect ScreenAround(const CRect& place);

}  // namespace kv
