#include "drawing/swatches/line_button.h"

#include <array>

#include "window/drawing/look.h"

using kv::swatches::Inside;

namespace {

constexpr COLORREF kInk = RGB(0, 0, 0);

constexpr std::array<const char*, kv::swatches::kTextStyles> kStyleWords = {
    "Normal", "Bold", "Italic", "Bold Italic"};

/// Fractions of `kUnit` pixels.
struct LineType {
    const char* words;
    double gap;
    std::array<double, 3> dashes;
};
constexpr double kUnit = 20.0;
constexpr std::array<LineType, 6> kLineTypes = {{
    {"solid", 0.0, {1.0, 0.0, 0.0}},
    {"dashed", 0.5, {0.5, 0.0, 0.0}},
    {"dotted", 0.1, {0.1, 0.0, 0.0}},
    {"dash and dot", 0.1, {0.5, 0.1, 0.0}},
    {"dash and two dots", 0.1, {0.5, 0.1, 0.1}},
    {"blank", 1.0, {0.0, 0.0, 0.0}},
}};

template <typename Table>
const typename Table::value_type* Find(const Table& table, int index) {
    const bool known = index >= 0 && index < static_cast<int>(table.size());
    return known ? &table[static_cast<std::size_t>(index)] : nullptr;
}

int InPixels(double fraction) {
    return static_cast<int>(fraction * kUnit);
}

int MiddleOf(const CRect& rect) {
    return (rect.top + rect.bottom) / 2;
}

}  // namespace

namespace kv::swatches {

std::string TextStyleWord(int style) {
    const auto* word = Find(kStyleWords, style);
    return word ? *word : "";
}

}  // namespace kv::swatches

std::string CKvGuiLineWidthButton::ValueInWords() const {
    if (m_eDlgType != E_DIALOG_LINE_WIDTH) return kv::swatches::TextStyleWord(m_nValue);
    return m_nValue < 0 ? "No line width" : "Line width " + std::to_string(m_nValue + 1);
}

void CKvGuiLineWidthButton::DrawValue(CDC& context, const CRect& rect) const {
    CRect inside = Inside(rect);
    if (m_eDlgType != E_DIALOG_LINE_WIDTH) {
        context.SetBkMode(TRANSPARENT);
        context.SetTextColor(kv::CurrentLook().Color(kv::SystemColor::kButtonText));
        context.DrawText(kv::swatches::TextStyleWord(m_nValue), &inside,
                         DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        return;
    }
    kv::swatches::DrawPaper(context, rect);
    if (m_nValue < 0) return;
    const int thickness = m_nValue + 1;
    const bool odd = m_nValue % 2 != 0;
    const int middle = MiddleOf(rect);
    inside.top = middle - (odd ? thickness : thickness + 1) / 2;
    inside.bottom = middle + (odd ? thickness : thickness - 1) / 2;
    context.FillSolidRect(&inside, kInk);
}

std::string CKvGuiLineTypeButton::ValueInWords() const {
    const LineType* type = Find(kLineTypes, m_nValue);
    if (!type) return "No line type";
    return "Line type " + std::to_string(m_nValue + 1) + ", " + type->words;
}

void CKvGuiLineTypeButton::DrawValue(CDC& context, const CRect& rect) const {
    kv::swatches::DrawPaper(context, rect);
    const LineType* type = Find(kLineTypes, m_nValue);
    if (!type) return;
    const CRect inside = Inside(rect);
    const int middle = MiddleOf(rect);
    for (int x = inside.left; x < inside.right;) {
        for (std::size_t i = 0; i < type->dashes.size() && x < inside.right; ++i) {
            const int dash = InPixels(type->dashes[i]);
            if (i > 0 && dash == 0) continue;
            const CRect bar{x, middle - 2, std::min(x + dash, inside.right), middle + 2};
            if (!bar.IsRectEmpty()) context.FillSolidRect(&bar, kInk);
            x += dash + InPixels(type->gap);
        }
    }
}
