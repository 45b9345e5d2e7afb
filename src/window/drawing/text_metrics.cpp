#include "window/drawing/text_metrics.h"

#include <algorithm>

#include "window/drawing/font_glyphs.h"
#include "window/drawing/font_scale.h"

namespace kv {

namespace {

/// The text without its marks; `mnemonic`, if given, takes the character behind the first one.
std::string Unmarked(const std::string& text, char* mnemonic) {
    std::string shown;
    shown.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '&') {
            shown += text[at];
            continue;
        }
        if (++at == text.size()) break;
        shown += text[at];
        if (text[at] != '&' && mnemonic && !*mnemonic) *mnemonic = text[at];
    }
    return shown;
}

}  // namespace

TextSize MeasureLine(const std::string& text, const Font& font) {
    const FontScale scale(font);
    TextSize size{0, scale.CellHeight(), scale.Ascent()};
    std::string_view rest = text;
    while (!rest.empty())
        size.width += scale.Advance(GlyphOf(TakeCharacter(rest)));
    return size;
}

CSize MeasureText(const std::string& text, const Font& font) {
    const TextSize size = MeasureLine(text, font);
    return {size.width, size.height};
}

std::string WithoutMnemonic(const std::string& text) {
    return Unmarked(text, nullptr);
}

char MnemonicOf(const std::string& text) {
    char mnemonic = 0;
    Unmarked(text, &mnemonic);
    return mnemonic;
}

}  // namespace kv
