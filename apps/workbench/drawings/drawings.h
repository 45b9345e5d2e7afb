#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "workbench/map/geometry.h"
#include "workbench/map/label_layer.h"

namespace workbench {

/// Colours are indices into the table of `CKvColor`.
inline constexpr int kColors = 256;
/// The colour, width and type that a line begins with.
inline constexpr int kUsualColor = 6;
/// Widths of lines, and weights of the strokes of texts.
inline constexpr int kLineWidths = 10;
/// Types of lines: solid, dashed, dotted, dash and dot, dash and two dots, and blank.
inline constexpr int kLineTypes = 6;

/// A line, or an outline.
struct DrawnLine {
    std::vector<Place> points;
    bool closed = false;
    bool filled = false;  ///< only where it is closed
    int color = kUsualColor;
    int fillColor = kUsualColor;
    int width = 0;
    int type = 0;
    bool operator==(const DrawnLine&) const = default;
};

/// Where a text stands: above its place, on it, or below it.
enum class TextRow : std::uint8_t { kAbove, kOn, kBelow };
inline constexpr std::array kTextRows{"ABOVE", "ON", "BELOW"};
/// Which part of a text stands at its place: its beginning, its middle, or its end.
enum class TextPart : std::uint8_t { kLeft, kCenter, kRight };
inline constexpr std::array kTextParts{"LEFT", "CENTER", "RIGHT"};

/// The word for a value, of a list in the order of the values.
template <typename Word, std::size_t Count>
const char* WordFor(const std::array<const char*, Count>& words, Word word) {
    return words[static_cast<std::size_t>(word)];
}

/// A line of text.
struct DrawnText {
    Place at;
    std::string text;
    double height = 0.05;  ///< of its capital letters, in inches at the map's scale
    double angle = 0;      ///< degrees, counterclockwise
    int color = kUsualColor;
    int weight = 0;
    TextRow row = TextRow::kOn;
    TextPart part = TextPart::kCenter;
    bool operator==(const DrawnText&) const = default;
};

/// A label as the database has it.
struct LabelKey {
    LabelLayer layer = LabelLayer::kLeases;
    std::string area;  ///< its code
    std::string label;

    auto Parts() const {
        return std::tuple(layer, std::string_view(area), std::string_view(label));
    }
};
/// The same, and what is like it, by reference.
using LabelKeyView = std::tuple<LabelLayer, std::string_view, std::string_view>;
struct LabelOrder {
    using is_transparent = void;
    static LabelKeyView PartsOf(const LabelKey& key) { return key.Parts(); }
    static LabelKeyView PartsOf(const LabelKeyView& key) { return key; }
    bool operator()(const auto& a, const auto& b) const { return PartsOf(a) < PartsOf(b); }
};
/// What labels are to be, in place of what the database says.
using LabelTexts = std::map<LabelKey, std::string, LabelOrder>;

/// What is written in the place of a label: itself where it is not replaced. Valid as long as both.
std::string_view TextOf(const LabelTexts& labels, LabelLayer layer, std::string_view area,
                        std::string_view label);

/// A block of the database that is filled with a colour.
struct BlockKey {
    std::string area;  ///< its code
    std::string block;
    auto operator<=>(const BlockKey&) const = default;
};

/// What was drawn on a map. A plain value; documents share it and never change it in place. Later
/// lines lie over earlier ones, texts over lines, and all over the filled blocks.
class Drawings {
public:
    std::vector<DrawnLine> lines;
    std::vector<DrawnText> texts;
    std::map<BlockKey, int> fills;  ///< the colour of each
    LabelTexts labels;

    bool Empty() const { return lines.empty() && texts.empty() && fills.empty() && labels.empty(); }
    bool operator==(const Drawings& other) const;
};

/// One of the drawings: a line or a text by its number, or a filled block.
struct DrawingRef {
    enum Kind : std::uint8_t { kLine, kText, kFill };
    Kind kind = kLine;
    std::size_t number = 0;
    BlockKey block = {};
    bool operator==(const DrawingRef&) const = default;
};

/// Takes it away.
void Erase(Drawings& drawings, const DrawingRef& ref);
/// Moves all of its points so far to the north and to the east, in degrees, or less far where it
/// would leave the earth. Filled blocks stay where they are.
void Shift(Drawings& drawings, const DrawingRef& ref, double north, double east);

/// `text` with each `search` in it replaced, whatever the case of ASCII letters. `search` is not
/// empty.
std::string Replaced(std::string_view text, std::string_view search, std::string_view replacement);

}  // namespace workbench
