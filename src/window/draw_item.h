#pragma once

#include "base/export.h"
#include "base/types.h"

class CDC;

namespace kv {
class Node;
}

/// What WM_DRAWITEM carries: the control that is to be drawn, in what state, and where.
struct DRAWITEMSTRUCT {
    UINT CtlType = 0;
    UINT CtlID = 0;
    UINT itemID = 0;
    UINT itemAction = 0;  ///< ODA_...
    UINT itemState = 0;   ///< ODS_...
    kv::Node* hwndItem = nullptr;
    CDC* hDC = nullptr;
    CRect rcItem;
};
using LPDRAWITEMSTRUCT = DRAWITEMSTRUCT*;

inline constexpr UINT ODT_BUTTON = 4;
inline constexpr UINT ODA_DRAWENTIRE = 0x0001;
inline constexpr UINT ODA_SELECT = 0x0002;
inline constexpr UINT ODA_FOCUS = 0x0004;
inline constexpr UINT ODS_SELECTED = 0x0001;
inline constexpr UINT ODS_GRAYED = 0x0002;
inline constexpr UINT ODS_DISABLED = 0x0004;
inline constexpr UINT ODS_CHECKED = 0x0008;
inline constexpr UINT ODS_FOCUS = 0x0010;
inline constexpr UINT ODS_DEFAULT = 0x0020;

namespace kv {

/// A handle that draws its control, when that control is owner-drawn.
class KVGUICTL_API OwnerDrawn {
public:
    virtual ~OwnerDrawn() = default;
    virtual void DrawItem(DRAWITEMSTRUCT* item) = 0;
};

}  // namespace kv
