#pragma once

#include <cstdint>

#include "base/types.h"
#include "window/drawing/image_list.h"
#include "window/drawing/image_resource.h"
#include "window/wnd.h"

/// Styles of list views.
inline constexpr DWORD LVS_REPORT = 0x0001;
inline constexpr DWORD LVS_SINGLESEL = 0x0004;
inline constexpr DWORD LVS_SHOWSELALWAYS = 0x0008;
inline constexpr DWORD LVS_SORTASCENDING = 0x0010;
inline constexpr DWORD LVS_SORTDESCENDING = 0x0020;
inline constexpr DWORD LVS_NOCOLUMNHEADER = 0x4000;
inline constexpr DWORD LVS_EX_GRIDLINES = 0x01;
/// Columns behind the first show images, too.
inline constexpr DWORD LVS_EX_SUBITEMIMAGES = 0x02;
inline constexpr DWORD LVS_EX_CHECKBOXES = 0x04;
inline constexpr DWORD LVS_EX_FULLROWSELECT = 0x20;

inline constexpr UINT LVM_GETIMAGELIST = 0x1002;
inline constexpr UINT LVM_SETIMAGELIST = 0x1003;
inline constexpr UINT LVM_GETITEMCOUNT = 0x1004;
inline constexpr UINT LVM_GETITEM = 0x1005;
inline constexpr UINT LVM_SETITEM = 0x1006;
inline constexpr UINT LVM_INSERTITEM = 0x1007;
inline constexpr UINT LVM_DELETEITEM = 0x1008;
inline constexpr UINT LVM_DELETEALLITEMS = 0x1009;
inline constexpr UINT LVM_GETNEXTITEM = 0x100C;
inline constexpr UINT LVM_FINDITEM = 0x100D;
inline constexpr UINT LVM_GETSTRINGWIDTH = 0x1011;
inline constexpr UINT LVM_HITTEST = 0x1012;
inline constexpr UINT LVM_ENSUREVISIBLE = 0x1013;
inline constexpr UINT LVM_GETCOLUMN = 0x1019;
inline constexpr UINT LVM_SETCOLUMN = 0x101A;
inline constexpr UINT LVM_INSERTCOLUMN = 0x101B;
inline constexpr UINT LVM_DELETECOLUMN = 0x101C;
inline constexpr UINT LVM_GETCOLUMNWIDTH = 0x101D;
inline constexpr UINT LVM_SETCOLUMNWIDTH = 0x101E;
inline constexpr UINT LVM_GETHEADER = 0x101F;
inline constexpr UINT LVM_GETTOPINDEX = 0x1027;
inline constexpr UINT LVM_GETCOUNTPERPAGE = 0x1028;
inline constexpr UINT LVM_SETITEMSTATE = 0x102B;
inline constexpr UINT LVM_GETITEMSTATE = 0x102C;
inline constexpr UINT LVM_GETITEMTEXT = 0x102D;
inline constexpr UINT LVM_SETITEMTEXT = 0x102E;
inline constexpr UINT LVM_SETITEMCOUNT = 0x102F;
inline constexpr UINT LVM_GETSELECTEDCOUNT = 0x1032;
inline constexpr UINT LVM_SETICONSPACING = 0x1035;
inline constexpr UINT LVM_SETEXTENDEDLISTVIEWSTYLE = 0x1036;
inline constexpr UINT LVM_GETEXTENDEDLISTVIEWSTYLE = 0x1037;
inline constexpr UINT LVM_GETSUBITEMRECT = 0x1038;
inline constexpr UINT LVM_SUBITEMHITTEST = 0x1039;
inline constexpr UINT LVM_SETCOLUMNORDERARRAY = 0x103A;
inline constexpr UINT LVM_GETCOLUMNORDERARRAY = 0x103B;
inline constexpr UINT LVM_SETHOTITEM = 0x103C;
inline constexpr UINT LVM_GETHOTITEM = 0x103D;
inline constexpr UINT LVM_SETHOTCURSOR = 0x103E;
inline constexpr UINT LVM_GETHOTCURSOR = 0x103F;
inline constexpr UINT LVM_APPROXIMATEVIEWRECT = 0x1040;
inline constexpr UINT LVM_SETWORKAREAS = 0x1041;
inline constexpr UINT LVM_GETSELECTIONMARK = 0x1042;
inline constexpr UINT LVM_SETSELECTIONMARK = 0x1043;
inline constexpr UINT LVM_SETBKIMAGE = 0x1044;
inline constexpr UINT LVM_GETBKIMAGE = 0x1045;
inline constexpr UINT LVM_GETWORKAREAS = 0x1046;
inline constexpr UINT LVM_SETHOVERTIME = 0x1047;
inline constexpr UINT LVM_GETHOVERTIME = 0x1048;
inline constexpr UINT LVM_GETNUMBEROFWORKAREAS = 0x1049;
inline constexpr UINT HDM_GETITEMCOUNT = 0x1200;

/// Which fields of a record mean something.
inline constexpr UINT LVIF_TEXT = 0x01;
inline constexpr UINT LVIF_IMAGE = 0x02;
inline constexpr UINT LVIF_PARAM = 0x04;
inline constexpr UINT LVIF_STATE = 0x08;
inline constexpr UINT LVIF_INDENT = 0x10;
inline constexpr UINT LVCF_FMT = 0x01;
inline constexpr UINT LVCF_WIDTH = 0x02;
inline constexpr UINT LVCF_TEXT = 0x04;
inline constexpr UINT LVCF_SUBITEM = 0x08;
inline constexpr UINT LVCF_IMAGE = 0x10;
inline constexpr UINT LVCF_ORDER = 0x20;
inline constexpr int LVCFMT_LEFT = 0;
inline constexpr int LVCFMT_RIGHT = 1;
inline constexpr int LVCFMT_CENTER = 2;

/// Widths of a column that it finds itself: as wide as its widest cell; as wide as its heading, the
/// last column up to the right edge.
inline constexpr int LVSCW_AUTOSIZE = -1;
inline constexpr int LVSCW_AUTOSIZE_USEHEADER = -2;

/// State of a row. The image of its check box stands in the bits from 0x1000 on: 1 clear, 2
/// checked.
inline constexpr UINT LVIS_FOCUSED = 0x0001;
inline constexpr UINT LVIS_SELECTED = 0x0002;
inline constexpr UINT LVIS_CUT = 0x0004;
inline constexpr UINT LVIS_DROPHILITED = 0x0008;
inline constexpr UINT LVIS_STATEIMAGEMASK = 0xF000;

inline constexpr UINT LVNI_ALL = 0x0000;
inline constexpr UINT LVNI_FOCUSED = 0x0001;
inline constexpr UINT LVNI_SELECTED = 0x0002;
inline constexpr UINT LVNI_CUT = 0x0004;
inline constexpr UINT LVNI_DROPHILITED = 0x0008;
inline constexpr UINT LVNI_ABOVE = 0x0100;
inline constexpr UINT LVNI_BELOW = 0x0200;
inline constexpr UINT LVNI_TOLEFT = 0x0400;
inline constexpr UINT LVNI_TORIGHT = 0x0800;
inline constexpr UINT LVFI_PARAM = 0x0001;
inline constexpr UINT LVFI_STRING = 0x0002;
/// The same as LVFI_PARTIAL.
inline constexpr UINT LVFI_SUBSTRING = 0x0004;
inline constexpr UINT LVFI_PARTIAL = 0x0008;
inline constexpr UINT LVFI_WRAP = 0x0020;

/// Where a point lies.
inline constexpr UINT LVHT_NOWHERE = 0x0001;
inline constexpr UINT LVHT_ONITEMICON = 0x0002;
inline constexpr UINT LVHT_ONITEMLABEL = 0x0004;
inline constexpr UINT LVHT_ONITEMSTATEICON = 0x0008;
inline constexpr UINT LVHT_ONITEM = LVHT_ONITEMICON | LVHT_ONITEMLABEL | LVHT_ONITEMSTATEICON;
inline constexpr UINT LVHT_ABOVE = 0x0008;
inline constexpr UINT LVHT_BELOW = 0x0010;
inline constexpr UINT LVHT_TORIGHT = 0x0020;
inline constexpr UINT LVHT_TOLEFT = 0x0040;

inline constexpr int LVIR_BOUNDS = 0;
inline constexpr int LVIR_ICON = 1;
inline constexpr int LVIR_LABEL = 2;

/// Most work areas of a list view.
inline constexpr int LV_MAX_WORKAREAS = 16;

inline constexpr int NM_CLICK = -2;
inline constexpr int NM_DBLCLK = -3;
inline constexpr int NM_RETURN = -4;
inline constexpr int NM_RCLICK = -5;
inline constexpr int NM_SETFOCUS = -7;
inline constexpr int NM_KILLFOCUS = -8;
/// Ahead of a change; an answer other than 0 prevents it.
inline constexpr int LVN_ITEMCHANGING = -100;
inline constexpr int LVN_ITEMCHANGED = -101;
inline constexpr int LVN_INSERTITEM = -102;
/// Ahead of the end of a row, whose data it carries.
inline constexpr int LVN_DELETEITEM = -103;
/// Ahead of the end of all rows, also where the list view itself ends. An answer other than 0 saves
/// the LVN_DELETEITEM of each.
inline constexpr int LVN_DELETEALLITEMS = -104;
inline constexpr int LVN_COLUMNCLICK = -108;
/// A double-click on a row, or Enter.
inline constexpr int LVN_ITEMACTIVATE = -114;
inline constexpr int LVN_KEYDOWN = -155;

/// One cell of a row, with the row's own properties in that of column 0. Read, the text is copied
/// to `pszText`, a buffer of `cchTextMax` bytes.
struct LVITEM {
    UINT mask = 0;
    int iItem = 0;
    int iSubItem = 0;
    UINT state = 0;
    UINT stateMask = 0;
    char* pszText = nullptr;
    int cchTextMax = 0;
    int iImage = -1;
    LPARAM lParam = 0;
    int iIndent = 0;
};

struct LVCOLUMN {
    UINT mask = 0;
    int fmt = LVCFMT_LEFT;
    int cx = 0;
    char* pszText = nullptr;
    int cchTextMax = 0;
    int iSubItem = 0;
    int iImage = -1;
    int iOrder = 0;
};

struct LVFINDINFO {
    UINT flags = 0;
    const char* psz = nullptr;
    LPARAM lParam = 0;
};

struct LVHITTESTINFO {
    CPoint pt;
    UINT flags = 0;
    int iItem = -1;
    int iSubItem = 0;
};

/// A picture behind the rows. Not owned.
struct LVBKIMAGE {
    DWORD ulFlags = 0;
    const kv::ImageResource* hbm = nullptr;
    int xOffsetPercent = 0;
    int yOffsetPercent = 0;
};

/// A mouse pointer; what it points to is the caller's.
using HCURSOR = const void*;

/// What LVN_ and mouse notifications of a list view carry. What a notification has no use for is 0,
/// the row -1.
struct NMLISTVIEW {
    NMHDR hdr;
    int iItem = -1;
    int iSubItem = 0;
    UINT uNewState = 0;
    UINT uOldState = 0;
    UINT uChanged = 0;
    CPoint ptAction;
    LPARAM lParam = 0;
};

inline constexpr UINT LVKF_ALT = 0x0001;
inline constexpr UINT LVKF_CONTROL = 0x0002;
inline constexpr UINT LVKF_SHIFT = 0x0004;

/// What clicks and LVN_ITEMACTIVATE carry: also the keys (LVKF_...) that are held.
struct NMITEMACTIVATE : NMLISTVIEW {
    UINT uKeyFlags = 0;
};

/// What LVN_KEYDOWN carries.
struct NMLVKEYDOWN {
    NMHDR hdr;
    std::uint16_t wVKey;
    UINT flags;
};
