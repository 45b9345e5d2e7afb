#include "drawing/swatches/color_words.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "frame/kvcom/color.h"

namespace kv::swatches {

namespace {

constexpr std::array<const char*, 16> kNamed = {
    "black", "maroon", "green", "olive",  "navy", "purple",  "teal", "silver",
    "gray",  "red",    "lime",  "yellow", "blue", "magenta", "cyan", "white"};

/// A hue's name, up to so many degrees of the circle of colours.
struct HueName {
    int end;
    const char* name;
    const char* darkName;
};
constexpr HueName kHues[] = {
    {12, "red", "red"},        {45, "orange", "brown"}, {72, "yellow", "olive"},
    {105, "lime", "green"},    {140, "green", "green"}, {165, "sea green", "sea green"},
    {192, "cyan", "teal"},     {218, "azure", "azure"}, {248, "blue", "blue"},
    {278, "violet", "violet"}, {312, "purple", "plum"}, {345, "pink", "crimson"},
    {360, "red", "red"},
};

constexpr double kGrayBelow = 0.12;
constexpr double kSoftBelow = 0.6;
constexpr double kDarkBelow = 0.4;

struct Shade {
    double lightness;
    const char* word;
};
/// Each up to so much lightness.
constexpr Shade kShades[] = {
    {0.22, "very dark "}, {kDarkBelow, "dark "}, {0.62, ""}, {0.8, "light "}, {1.01, "pale "}};

const char* ShadeOf(double lightness) {
    return std::ranges::find_if(kShades,
                                [=](const Shade& each) { return lightness < each.lightness; })
        ->word;
}

std::string InWords(double red, double green, double blue) {
    const auto [low, high] = std::minmax({red, green, blue});
    const double lightness = (low + high) / 2;
    const double range = high - low;
    const double saturation = range == 0 ? 0 : range / (1 - std::abs(2 * lightness - 1));
    const std::string shade = ShadeOf(lightness);
    if (saturation < kGrayBelow) return shade + "gray";

    double sixth = high == red     ? (green - blue) / range
                   : high == green ? (blue - red) / range + 2
                                   : (red - green) / range + 4;
    if (sixth < 0) sixth += 6;
    const HueName& hue =
        *std::ranges::find_if(kHues, [=](const HueName& each) { return 60 * sixth < each.end; });
    const std::string soft = saturation < kSoftBelow ? "soft " : "";
    return soft + shade + (lightness < kDarkBelow ? hue.darkName : hue.name);
}

}  // namespace

std::string NameOfColor(int index) {
    int red = 0;
    int green = 0;
    int blue = 0;
    if (!CKvColor::GetRGBColor(index, red, green, blue)) return {};
    if (index < static_cast<int>(kNamed.size())) return kNamed[static_cast<std::size_t>(index)];
    constexpr double kMost = 255;
    return InWords(red / kMost, green / kMost, blue / kMost);
}

std::string ColorInWords(int index) {
    const std::string name = NameOfColor(index);
    return name.empty() ? "No color" : "Color " + std::to_string(index + 1) + ", " + name;
}

}  // namespace kv::swatches
