#pragma once

#include "base/export.h"

/// A colour, as its index in the table of `CKvColor`, 0 to 255.
enum KVColor : int { KV_COLOR_DEFAULT = 6 };

/// The table of the 256 colours that maps are drawn in; none is in it twice.
///
/// 0 to 15 are the named colours, from black to white. 16 to 239 are fourteen hues from red around
/// to pink with sixteen shades each: ten bright ones from dark to light, then six soft ones. 240 to
/// 255 are grays.
class KVGUICTL_API CKvColor {
public:
    /// Red, green and blue of a colour, 0 to 255 each. False, with black, for an index outside the
    /// table.
    static bool GetRGBColor(int nIndex, int& nRed, int& nGreen, int& nBlue);

    /// The colour index of a cell of the short palette, 0 to 39: the named colours, and then, in
    /// the table's order, the 24 that are found one by one as those furthest from all found before.
    /// 0 for any other cell.
    static int Get256CrossIndexRGB(int nCell);
};
