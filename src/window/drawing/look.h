#pragma once

#include <map>
#include <string>

#include "base/export.h"
#include "base/types.h"
#include "window/drawing/font.h"

/// The fonts and colours that windows are drawn with.
namespace kv {

/// Indices of the system's colours, as the platform numbers them.
enum class SystemColor {
    kWindow = 5,
    kWindowText = 8,
    kHighlight = 13,
    kHighlightText = 14,
    kButtonFace = 15,
    kButtonShadow = 16,
    kGrayText = 17,
    kButtonText = 18,
    kButtonHighlight = 20,
    kDarkShadow = 21,
    kLight = 22,
};

/// What text is measured by where there is no surface to draw it on, and what controls are painted
/// in. A desktop is one.
class KVGUICTL_API Look {
public:
    virtual ~Look() = default;
    /// Extent of one line of text, in logical pixels.
    virtual CSize TextExtent(const std::string& text, const Font& font) = 0;
    virtual COLORREF Color(SystemColor which) = 0;
    virtual Font DefaultFont() = 0;
};

/// The layer's own font, and the platform's usual light colours.
class KVGUICTL_API PlainLook : public Look {
public:
    PlainLook();
    CSize TextExtent(const std::string& text, const Font& font) override;
    COLORREF Color(SystemColor which) override { return colors_[which]; }
    Font DefaultFont() override { return {}; }
    void SetColor(SystemColor which, COLORREF color) { colors_[which] = color; }

private:
    std::map<SystemColor, COLORREF> colors_;
};

/// The one in force: a plain one where none was set.
KVGUICTL_API Look& CurrentLook();
/// Not owned; null takes it back.
KVGUICTL_API void SetLook(Look* look);

}  // namespace kv
