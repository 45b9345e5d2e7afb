#pragma once

#include <cstdint>

#include "base/types.h"
#include "window/messages.h"

/// Messages of combo boxes whose rows have images.
inline constexpr UINT CBEM_SETIMAGELIST = 0x0402;
inline constexpr UINT CBEM_GETIMAGELIST = 0x0403;
inline constexpr UINT CBEM_INSERTITEM = 0x0401;
inline constexpr UINT CBEM_DELETEITEM = CB_DELETESTRING;
inline constexpr UINT CBEM_GETITEM = 0x0404;
inline constexpr UINT CBEM_SETITEM = 0x0405;

/// Which fields of a record mean something.
inline constexpr UINT CBEIF_TEXT = 0x01;
inline constexpr UINT CBEIF_IMAGE = 0x02;
inline constexpr UINT CBEIF_LPARAM = 0x20;

/// A row of a combo box with images. Its text is given with it, and read by CB_GETLBTEXT.
struct COMBOBOXEXITEM {
    UINT mask = 0;             ///< CBEIF_...
    std::intptr_t iItem = -1;  ///< -1 puts a new row at the end
    char* pszText = nullptr;
    int iImage = -1;  ///< in the list of images; -1 for none
    LPARAM lParam = 0;
};
