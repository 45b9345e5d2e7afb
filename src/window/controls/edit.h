#pragma once

#include "base/cstring.h"
#include "base/export.h"
#include "window/wnd.h"

/// A handle on an edit. Places and counts are bytes.
class KVGUICTL_API CEdit : public CWnd {
public:
    static constexpr CRuntimeClass classCEdit{"CEdit"};
    const CRuntimeClass* GetRuntimeClass() const override { return &classCEdit; }

    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);

    /// The selection's start in the low word, its end in the high one.
    DWORD GetSel() const;
    void GetSel(int& start, int& end) const;
    /// The caret goes to `end`. -1 as the end means the end of the text; -1 as the start takes the
    /// selection away.
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    /// As typed in place of the selection.
    void ReplaceSel(LPCTSTR text, BOOL canUndo = FALSE);

    /// Limits what a person can enter; 0 means no limit.
    void LimitText(int characters = 0);
    void SetLimitText(UINT characters);
    UINT GetLimitText() const;

    /// How many lines the text has, at least one.
    int GetLineCount() const;
    /// Bytes of the line that the place is in, without its end; -1 asks how many bytes of the lines
    /// of the selection are not selected. Of a single line its whole text.
    int LineLength(int place = -1) const;

    BOOL SetReadOnly(BOOL readOnly = TRUE);
    BOOL GetModify() const;
    void SetModify(BOOL modified = TRUE);

    BOOL CanUndo() const;
    /// A second undo takes the first one back. Of several lines, false when there is nothing to
    /// undo.
    BOOL Undo();
    void EmptyUndoBuffer();
    void Cut();
    void Copy();
    void Paste();
    void Clear();
};
