#pragma once

#include "base/types.h"

/// Numbers of messages, notifications and styles, as the platform publishes them.

// Windows.
inline constexpr UINT WM_CREATE = 0x0001;
inline constexpr UINT WM_DESTROY = 0x0002;
inline constexpr UINT WM_MOVE = 0x0003;
inline constexpr UINT WM_SIZE = 0x0005;
inline constexpr UINT WM_SETFOCUS = 0x0007;
inline constexpr UINT WM_KILLFOCUS = 0x0008;
inline constexpr UINT WM_ENABLE = 0x000A;
inline constexpr UINT WM_SETTEXT = 0x000C;
inline constexpr UINT WM_GETTEXT = 0x000D;
inline constexpr UINT WM_GETTEXTLENGTH = 0x000E;
inline constexpr UINT WM_PAINT = 0x000F;
inline constexpr UINT WM_CLOSE = 0x0010;
inline constexpr UINT WM_SHOWWINDOW = 0x0018;
inline constexpr UINT WM_DRAWITEM = 0x002B;
inline constexpr UINT WM_SETFONT = 0x0030;
inline constexpr UINT WM_GETFONT = 0x0031;
inline constexpr UINT WM_NOTIFY = 0x004E;
inline constexpr UINT WM_GETDLGCODE = 0x0087;
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_KEYUP = 0x0101;
inline constexpr UINT WM_CHAR = 0x0102;
inline constexpr UINT WM_SYSCHAR = 0x0106;
inline constexpr UINT WM_INITDIALOG = 0x0110;
inline constexpr UINT WM_COMMAND = 0x0111;
inline constexpr UINT WM_TIMER = 0x0113;
inline constexpr UINT WM_HSCROLL = 0x0114;
inline constexpr UINT WM_VSCROLL = 0x0115;
inline constexpr UINT WM_MOUSEMOVE = 0x0200;
inline constexpr UINT WM_LBUTTONDOWN = 0x0201;
inline constexpr UINT WM_LBUTTONUP = 0x0202;
inline constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
inline constexpr UINT WM_RBUTTONDOWN = 0x0204;
inline constexpr UINT WM_RBUTTONUP = 0x0205;
inline constexpr UINT WM_CTLCOLOR = 0x0019;
inline constexpr UINT WM_CUT = 0x0300;
inline constexpr UINT WM_COPY = 0x0301;
inline constexpr UINT WM_PASTE = 0x0302;
inline constexpr UINT WM_CLEAR = 0x0303;
inline constexpr UINT WM_UNDO = 0x0304;
inline constexpr UINT WM_USER = 0x0400;

// What a control wants of the keyboard (answers to WM_GETDLGCODE).
inline constexpr int DLGC_WANTARROWS = 0x0001;
inline constexpr int DLGC_WANTTAB = 0x0002;
inline constexpr int DLGC_WANTALLKEYS = 0x0004;
inline constexpr int DLGC_HASSETSEL = 0x0008;
inline constexpr int DLGC_DEFPUSHBUTTON = 0x0010;
inline constexpr int DLGC_UNDEFPUSHBUTTON = 0x0020;
inline constexpr int DLGC_RADIOBUTTON = 0x0040;
inline constexpr int DLGC_WANTCHARS = 0x0080;
inline constexpr int DLGC_STATIC = 0x0100;
inline constexpr int DLGC_BUTTON = 0x2000;

// Keys.
inline constexpr int VK_BACK = 0x08;
inline constexpr int VK_TAB = 0x09;
inline constexpr int VK_RETURN = 0x0D;
inline constexpr int VK_SHIFT = 0x10;
inline constexpr int VK_CONTROL = 0x11;
inline constexpr int VK_MENU = 0x12;
inline constexpr int VK_ESCAPE = 0x1B;
inline constexpr int VK_SPACE = 0x20;
inline constexpr int VK_PRIOR = 0x21;
inline constexpr int VK_NEXT = 0x22;
inline constexpr int VK_END = 0x23;
inline constexpr int VK_HOME = 0x24;
inline constexpr int VK_LEFT = 0x25;
inline constexpr int VK_UP = 0x26;
inline constexpr int VK_RIGHT = 0x27;
inline constexpr int VK_DOWN = 0x28;
inline constexpr int VK_INSERT = 0x2D;
inline constexpr int VK_DELETE = 0x2E;
inline constexpr int VK_F4 = 0x73;
/// A key that only brings a character.
inline constexpr int VK_PACKET = 0xE7;

// Edits.
inline constexpr UINT EM_GETSEL = 0x00B0;
inline constexpr UINT EM_SETSEL = 0x00B1;
inline constexpr UINT EM_SCROLLCARET = 0x00B7;
inline constexpr UINT EM_GETMODIFY = 0x00B8;
inline constexpr UINT EM_SETMODIFY = 0x00B9;
inline constexpr UINT EM_GETLINECOUNT = 0x00BA;
inline constexpr UINT EM_LINELENGTH = 0x00C1;
inline constexpr UINT EM_REPLACESEL = 0x00C2;
inline constexpr UINT EM_LIMITTEXT = 0x00C5;
inline constexpr UINT EM_CANUNDO = 0x00C6;
inline constexpr UINT EM_UNDO = 0x00C7;
inline constexpr UINT EM_EMPTYUNDOBUFFER = 0x00CD;
inline constexpr UINT EM_SETREADONLY = 0x00CF;
inline constexpr UINT EM_GETLIMITTEXT = 0x00D5;
inline constexpr int EN_SETFOCUS = 0x0100;
inline constexpr int EN_KILLFOCUS = 0x0200;
inline constexpr int EN_CHANGE = 0x0300;
inline constexpr int EN_UPDATE = 0x0400;
inline constexpr int EN_MAXTEXT = 0x0501;

// Buttons.
inline constexpr UINT BM_GETCHECK = 0x00F0;
inline constexpr UINT BM_SETCHECK = 0x00F1;
inline constexpr UINT BM_GETSTATE = 0x00F2;
inline constexpr UINT BM_SETSTATE = 0x00F3;
inline constexpr UINT BM_SETSTYLE = 0x00F4;
inline constexpr UINT BM_CLICK = 0x00F5;
inline constexpr UINT BM_GETIMAGE = 0x00F6;
inline constexpr UINT BM_SETIMAGE = 0x00F7;
inline constexpr int BN_CLICKED = 0;
inline constexpr int BN_DOUBLECLICKED = 5;
inline constexpr int BN_SETFOCUS = 6;
inline constexpr int BN_KILLFOCUS = 7;
inline constexpr int BST_UNCHECKED = 0;
inline constexpr int BST_CHECKED = 1;

// Combo boxes.
inline constexpr UINT CB_GETEDITSEL = 0x0140;
inline constexpr UINT CB_LIMITTEXT = 0x0141;
inline constexpr UINT CB_SETEDITSEL = 0x0142;
inline constexpr UINT CB_ADDSTRING = 0x0143;
inline constexpr UINT CB_DELETESTRING = 0x0144;
inline constexpr UINT CB_GETCOUNT = 0x0146;
inline constexpr UINT CB_GETCURSEL = 0x0147;
inline constexpr UINT CB_GETLBTEXT = 0x0148;
inline constexpr UINT CB_GETLBTEXTLEN = 0x0149;
inline constexpr UINT CB_INSERTSTRING = 0x014A;
inline constexpr UINT CB_RESETCONTENT = 0x014B;
inline constexpr UINT CB_FINDSTRING = 0x014C;
inline constexpr UINT CB_SELECTSTRING = 0x014D;
inline constexpr UINT CB_SETCURSEL = 0x014E;
inline constexpr UINT CB_SHOWDROPDOWN = 0x014F;
inline constexpr UINT CB_GETITEMDATA = 0x0150;
inline constexpr UINT CB_SETITEMDATA = 0x0151;
inline constexpr UINT CB_GETDROPPEDSTATE = 0x0157;
inline constexpr UINT CB_FINDSTRINGEXACT = 0x0158;
inline constexpr int CB_ERR = -1;
inline constexpr int CBN_SELCHANGE = 1;
inline constexpr int CBN_DBLCLK = 2;
inline constexpr int CBN_SETFOCUS = 3;
inline constexpr int CBN_KILLFOCUS = 4;
inline constexpr int CBN_EDITCHANGE = 5;
inline constexpr int CBN_EDITUPDATE = 6;
inline constexpr int CBN_DROPDOWN = 7;
inline constexpr int CBN_CLOSEUP = 8;
inline constexpr int CBN_SELENDOK = 9;
inline constexpr int CBN_SELENDCANCEL = 10;

// List boxes.
inline constexpr UINT LB_ADDSTRING = 0x0180;
inline constexpr UINT LB_INSERTSTRING = 0x0181;
inline constexpr UINT LB_DELETESTRING = 0x0182;
inline constexpr UINT LB_SELITEMRANGEEX = 0x0183;
inline constexpr UINT LB_RESETCONTENT = 0x0184;
inline constexpr UINT LB_SETSEL = 0x0185;
inline constexpr UINT LB_SETCURSEL = 0x0186;
inline constexpr UINT LB_GETSEL = 0x0187;
inline constexpr UINT LB_GETCURSEL = 0x0188;
inline constexpr UINT LB_GETTEXT = 0x0189;
inline constexpr UINT LB_GETTEXTLEN = 0x018A;
inline constexpr UINT LB_GETCOUNT = 0x018B;
inline constexpr UINT LB_SELECTSTRING = 0x018C;
inline constexpr UINT LB_FINDSTRING = 0x018F;
inline constexpr UINT LB_GETSELCOUNT = 0x0190;
inline constexpr UINT LB_GETSELITEMS = 0x0191;
inline constexpr UINT LB_GETITEMDATA = 0x0199;
inline constexpr UINT LB_SETITEMDATA = 0x019A;
inline constexpr UINT LB_SETCARETINDEX = 0x019E;
inline constexpr UINT LB_GETCARETINDEX = 0x019F;
inline constexpr UINT LB_FINDSTRINGEXACT = 0x01A2;
inline constexpr int LB_ERR = -1;
inline constexpr int LBN_SELCHANGE = 1;
inline constexpr int LBN_DBLCLK = 2;
inline constexpr int LBN_SELCANCEL = 3;
inline constexpr int LBN_SETFOCUS = 4;
inline constexpr int LBN_KILLFOCUS = 5;

// Statics.
inline constexpr UINT STM_SETIMAGE = 0x0172;
inline constexpr UINT STM_GETIMAGE = 0x0173;
inline constexpr WPARAM IMAGE_BITMAP = 0;
inline constexpr WPARAM IMAGE_ICON = 1;

// Styles of windows.
inline constexpr DWORD WS_CHILD = 0x40000000;
inline constexpr DWORD WS_VISIBLE = 0x10000000;
inline constexpr DWORD WS_DISABLED = 0x08000000;
inline constexpr DWORD WS_BORDER = 0x00800000;
inline constexpr DWORD WS_VSCROLL = 0x00200000;
inline constexpr DWORD WS_GROUP = 0x00020000;
inline constexpr DWORD WS_TABSTOP = 0x00010000;

// Styles of edits.
inline constexpr DWORD ES_MULTILINE = 0x0004;
inline constexpr DWORD ES_UPPERCASE = 0x0008;
inline constexpr DWORD ES_LOWERCASE = 0x0010;
inline constexpr DWORD ES_PASSWORD = 0x0020;
inline constexpr DWORD ES_AUTOHSCROLL = 0x0080;
inline constexpr DWORD ES_NOHIDESEL = 0x0100;
inline constexpr DWORD ES_READONLY = 0x0800;
inline constexpr DWORD ES_WANTRETURN = 0x1000;
inline constexpr DWORD ES_NUMBER = 0x2000;

// Styles of buttons; the low four bits tell the kind.
inline constexpr DWORD BS_PUSHBUTTON = 0x0;
inline constexpr DWORD BS_DEFPUSHBUTTON = 0x1;
inline constexpr DWORD BS_AUTOCHECKBOX = 0x3;
inline constexpr DWORD BS_GROUPBOX = 0x7;
inline constexpr DWORD BS_AUTORADIOBUTTON = 0x9;
inline constexpr DWORD BS_OWNERDRAW = 0xB;
inline constexpr DWORD BS_TYPEMASK = 0xF;
inline constexpr DWORD BS_ICON = 0x40;
inline constexpr DWORD BS_BITMAP = 0x80;
inline constexpr DWORD BS_NOTIFY = 0x4000;

// Styles of combo boxes; the low two bits tell the kind.
inline constexpr DWORD CBS_SIMPLE = 0x1;
inline constexpr DWORD CBS_DROPDOWN = 0x2;
inline constexpr DWORD CBS_DROPDOWNLIST = 0x3;
inline constexpr DWORD CBS_TYPEMASK = 0x3;
inline constexpr DWORD CBS_AUTOHSCROLL = 0x0040;
inline constexpr DWORD CBS_SORT = 0x0100;

// Styles of list boxes.
inline constexpr DWORD LBS_NOTIFY = 0x0001;
inline constexpr DWORD LBS_SORT = 0x0002;
inline constexpr DWORD LBS_MULTIPLESEL = 0x0008;
inline constexpr DWORD LBS_EXTENDEDSEL = 0x0800;

// Styles of statics; the low five bits tell the kind.
inline constexpr DWORD SS_LEFT = 0x00;
inline constexpr DWORD SS_CENTER = 0x01;
inline constexpr DWORD SS_RIGHT = 0x02;
inline constexpr DWORD SS_ICON = 0x03;
inline constexpr DWORD SS_OWNERDRAW = 0x0D;
inline constexpr DWORD SS_BITMAP = 0x0E;
inline constexpr DWORD SS_NOPREFIX = 0x80;
inline constexpr DWORD SS_TYPEMASK = 0x1F;

// Message boxes.
inline constexpr UINT MB_OK = 0;
inline constexpr UINT MB_OKCANCEL = 1;
inline constexpr UINT MB_YESNOCANCEL = 3;
inline constexpr UINT MB_YESNO = 4;
inline constexpr UINT MB_ICONSTOP = 0x10;
inline constexpr UINT MB_ICONQUESTION = 0x20;
inline constexpr UINT MB_ICONEXCLAMATION = 0x30;
inline constexpr UINT MB_ICONINFORMATION = 0x40;
inline constexpr UINT MB_TYPEMASK = 0x0F;

// Commands.
inline constexpr int CN_COMMAND = 0;
inline constexpr int CN_UPDATE_COMMAND_UI = -1;

// Showing.
inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOW = 5;
inline constexpr UINT SWP_NOSIZE = 0x0001;
inline constexpr UINT SWP_NOMOVE = 0x0002;
inline constexpr UINT SWP_NOZORDER = 0x0004;
inline constexpr UINT SWP_SHOWWINDOW = 0x0040;
inline constexpr UINT SWP_HIDEWINDOW = 0x0080;

// Where a control's colours are asked for (WM_CTLCOLOR).
inline constexpr UINT CTLCOLOR_EDIT = 1;
inline constexpr UINT CTLCOLOR_LISTBOX = 2;
inline constexpr UINT CTLCOLOR_BTN = 3;
inline constexpr UINT CTLCOLOR_DLG = 4;
inline constexpr UINT CTLCOLOR_STATIC = 6;
