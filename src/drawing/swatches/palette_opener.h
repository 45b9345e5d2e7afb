#pragma once

#include "base/types.h"

class CWnd;

namespace kv::swatches {

/// Opens a palette modally on a swatch's rectangle on the screen. `value` is what the palette
/// begins with, and then what was picked. Answers as `DoModal` does.
using OpenPalette = int (*)(const CRect& swatch, CWnd* parent, int& value);

/// A palette says by a static object of its own which swatches open it.
class RegisterPalette {
public:
    RegisterPalette(int number, OpenPalette open);
};

/// -1, and nothing opens, for a number without a palette.
int RunPalette(int number, const CRect& swatch, CWnd* parent, int& value);

}  // namespace kv::swatches
