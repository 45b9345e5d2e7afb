#include "drawing/swatches/palette_opener.h"

#include <map>

namespace kv::swatches {

namespace {

std::map<int, OpenPalette>& Palettes() {
    static std::map<int, OpenPalette> palettes;
    return palettes;
}

}  // namespace

RegisterPalette::RegisterPalette(int number, OpenPalette open) {
    Palettes()[number] = open;
}

int RunPalette(int number, const CRect& swatch, CWnd* parent, int& value) {
    const auto found = Palettes().find(number);
    return found == Palettes().end() ? -1 : found->second(swatch, parent, value);
}

}  // namespace kv::swatches
