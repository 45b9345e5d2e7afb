#pragma once

#include "base/export.h"

/// A colour, as its index in the table of `CKvColor`, 0 to 255.
enum KVColor : int { KV_COLOR_DEFAULT = 6 };

/// The table of the 256 colours that maps are drawn in: 0 to 15 the named colours, from black to
/// white, 16 to 231 a cube of six levels of red, green and blue, blue changing fastest, 232 to 255
/// greys.
class KVGUICTL_API CKvColor {
public:
    /// Red, green and blue of a colour, 0 to 255 each. False, with black, for an index outside the
    /// table.
    static bool GetRGBColor(int nIndex, int& nRed, int& nGreen, int& nBlue);

    /// The colour index of a cell of the short palette, 0 to 39: first the named colours, then the
    /// colours that lie furthest from all ahead of them. 0 for any other cell.
    static int Get256CrossIndexRGB(int nCell);
};
