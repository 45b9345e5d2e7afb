#include "drawing/swatches/symbol_button.h"

#include <array>

#include "drawing/swatches/palette_ids.h"
#include "window/drawing/fine_image.h"

using namespace kv::palettes;

namespace kv::swatches {

namespace {

constexpr CPoint kNumberPlace{2, 2};
constexpr CPoint kPointPlace{1, 1};

constexpr std::array<const char*, kNumbers> kNumberNames = {
    "Number in a circle",  "Number in a square",  "Number in a diamond", "Number in a triangle",
    "Number in a hexagon", "Number in a capsule", "Number in a flag",    "Bare number"};

constexpr std::array<const char*, kPoints> kPointNames = {"Location",
                                                          "Oil well",
                                                          "Gas well",
                                                          "Oil and gas well",
                                                          "Condensate well",
                                                          "Dry hole",
                                                          "Dry hole with a show of oil",
                                                          "Dry hole with a show of gas",
                                                          "Plugged oil well",
                                                          "Plugged gas well",
                                                          "Plugged oil and gas well",
                                                          "Suspended well",
                                                          "Injection well",
                                                          "Disposal well",
                                                          "Water supply well",
                                                          "Drilling well",
                                                          "Junked hole",
                                                          "Platform",
                                                          "Observation well"};

template <std::size_t count>
const char* NameIn(const std::array<const char*, count>& names, int image, int first) {
    const bool among = image >= first && image < first + static_cast<int>(count);
    return among ? names[static_cast<std::size_t>(image - first)] : nullptr;
}

}  // namespace

std::string SymbolButton::ValueInWords() const {
    if (const char* name = NameIn(kNumberNames, m_nSymbolId, kFirstNumberImage)) return name;
    if (const char* name = NameIn(kPointNames, m_nSymbolId, kFirstPointImage)) return name;
    return "No symbol";
}

void SymbolButton::DrawValue(CDC& context, const CRect& rect) const {
    DrawPaper(context, rect);
    DrawFineImage(context, m_imagePlace, m_nSymbolId);
}

}  // namespace kv::swatches

CKvGuiLineNumSymbolButton::CKvGuiLineNumSymbolButton()
    : SymbolButton(kNumberSymbols, kv::swatches::kNumberPlace) {}

CKvGuiPointSymbolButton::CKvGuiPointSymbolButton()
    : SymbolButton(kPointSymbols, kv::swatches::kPointPlace) {}
