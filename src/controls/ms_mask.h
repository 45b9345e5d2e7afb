#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/cstring.h"
#include "controls/mask.h"
#include "window/controls/edit.h"
#include "window/drawing/gdi_objects.h"
#include "window/drawing/image_resource.h"
#include "window/message_handlers.h"
#include "window/runtime_class.h"

/// Identifies a class of controls.
struct CLSID {
    std::uint32_t Data1;
    std::uint16_t Data2;
    std::uint16_t Data3;
    std::uint8_t Data4[8];
    bool operator==(const CLSID&) const = default;
};

/// Whether literals and prompts go to the clipboard along with what was entered.
inline constexpr long mskIncludeLiterals = 0;
inline constexpr long mskExcludeLiterals = 1;

/// A masked edit: what is typed, pasted or set has to fit a mask; see `kv::Mask` for its
/// characters.
///
/// It stands on an edit, which `Create` makes, or which it attaches to (`SubclassDlgItem`). Typing
/// replaces what stands at the caret; backspace and delete empty a place and leave the others where
/// they are; pasting takes what fits and leaves out the rest. Without a mask it is a plain edit of
/// at most `GetMaxLength` characters. With a format, and as long as the selection is hidden
/// elsewhere, it shows the formatted text while the focus is somewhere else.
///
/// Places and lengths are bytes. Detached from it, the edit is a plain one with the text as shown.
class KVGUICTL_API CMSMask : public CWnd {
public:
    CMSMask() = default;

    static const CLSID& GetClsid();
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                        const RECT& rect, CWnd* pParentWnd, UINT nID);
    BOOL Create(LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                UINT nID);

    // The mask and its text.

    /// A mask of more than 64 places changes nothing.
    CString GetMask();
    void SetMask(LPCTSTR mask);
    /// The character of empty places, the underscore at first; the text's first character counts,
    /// and has to be a printable ASCII one.
    CString GetPromptChar();
    void SetPromptChar(LPCTSTR prompt);
    /// Whether `GetText` gives empty places as prompts; at first it does.
    BOOL GetPromptInclude();
    void SetPromptInclude(BOOL include);
    /// Whether the prompt character may be entered; at first not.
    BOOL GetAllowPrompt();
    void SetAllowPrompt(BOOL allow);
    /// The text with its literals, and with its prompts if they are included; without them, it is
    /// empty when nothing was entered. Set, it has to fit the mask, with literals or without; any
    /// other text changes nothing.
    CString GetText();
    void SetText(LPCTSTR text);
    /// What was entered, without literals and prompts. Set, it is entered anew as by pasting.
    CString GetClipText();
    void SetClipText(LPCTSTR text);
    /// See `kv::FormatMasked`.
    CString GetFormat();
    void SetFormat(LPCTSTR format);
    /// The text as the format shows it. Set, it is entered anew as by pasting.
    CString GetFormattedText();
    void SetFormattedText(LPCTSTR text);
    /// `mskIncludeLiterals` or `mskExcludeLiterals`: what cutting and copying take.
    long GetClipMode();
    void SetClipMode(long mode);
    /// Most characters without a mask, from 1 to 64; 64 at first.
    short GetMaxLength();
    void SetMaxLength(short length);
    /// Whether the focus goes on to the next control when all is entered; at first not.
    BOOL GetAutoTab();
    void SetAutoTab(BOOL on);

    // The selection.

    long GetSelStart();
    void SetSelStart(long start);
    long GetSelLength();
    void SetSelLength(long length);
    /// Set, it is entered in place of the selection, as by pasting.
    CString GetSelText();
    void SetSelText(LPCTSTR text);
    BOOL GetHideSelection();
    void SetHideSelection(BOOL hide);

    // Looks.

    COLORREF GetBackColor();
    void SetBackColor(COLORREF color);
    COLORREF GetForeColor();
    void SetForeColor(COLORREF color);
    /// 0 none, 1 a single line.
    long GetBorderStyle();
    void SetBorderStyle(long style);
    /// 0 flat, 1 three-dimensional.
    long GetAppearance();
    void SetAppearance(long appearance);
    long GetMousePointer();
    void SetMousePointer(long pointer);
    /// Pictures and fonts are not owned.
    const kv::ImageResource* GetMouseIcon();
    void SetMouseIcon(const kv::ImageResource* icon);
    void SetRefMouseIcon(const kv::ImageResource* icon);
    CFont* GetFont();
    void SetRefFont(CFont* font);
    BOOL GetEnabled();
    void SetEnabled(BOOL enabled);
    /// The window as a number. The window of a control cannot be exchanged: set, nothing changes.
    long GetHWnd();
    void SetHWnd(long window);
    long GetOLEDragMode();
    void SetOLEDragMode(long mode);
    long GetOLEDropMode();
    void SetOLEDropMode(long mode);

    void Refresh();
    /// Hands out the selected text as the drag of a selection does: on the clipboard.
    void OLEDrag();

    static const CRuntimeClass classCMSMask;
    const CRuntimeClass* GetRuntimeClass() const override { return &classCMSMask; }

    static const kv::MessageMap& Messages();
    const kv::MessageMap& GetMessageMap() const override { return Messages(); }

protected:
    LRESULT OnChar(WPARAM wParam, LPARAM lParam);
    LRESULT OnKeyDown(WPARAM wParam, LPARAM lParam);
    LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
    LRESULT OnCopy(WPARAM wParam, LPARAM lParam);
    LRESULT OnCut(WPARAM wParam, LPARAM lParam);
    LRESULT OnClear(WPARAM wParam, LPARAM lParam);
    LRESULT OnUndo(WPARAM wParam, LPARAM lParam);
    LRESULT OnCanUndo(WPARAM wParam, LPARAM lParam);
    LRESULT OnReplaceSel(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    LRESULT OnSetFocus(WPARAM wParam, LPARAM lParam);
    LRESULT OnKillFocus(WPARAM wParam, LPARAM lParam);
    HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    void PreSubclassWindow() override;

private:
    struct Selection {
        int first;
        int last;
    };

    bool Masked() const { return !m_mask.Empty(); }
    bool ReadOnly() const { return m_hWnd && m_hWnd->HasStyle(ES_READONLY); }
    Selection GetSelection() const;
    void Select(int first, int last);
    /// The text with literals and prompts, whatever is shown just now.
    std::string WholeText() const;
    bool HasFocus() const;
    /// Shows the mask's text, or the formatted one.
    void ShowText();
    /// Shows what a person made of the mask's text, tells of it, and remembers `former` for undo.
    void Changed(const kv::Mask& former, int caret);
    void EnterCharacter(const std::string& character);
    void EnterText(const std::string& text, int first, int last);
    void EraseSelection();
    void GoOnWhenFull();

    kv::Mask m_mask;
    std::optional<kv::Mask> m_undo;
    /// Without a mask: the text, while the formatted one is shown in its place.
    std::string m_plain;
    bool m_formatted = false;
    /// Bytes of a character that is being typed.
    std::string m_typed;
    std::string m_format;
    bool m_promptInclude = true;
    bool m_autoTab = false;
    long m_clipMode = mskIncludeLiterals;
    short m_maxLength = static_cast<short>(kv::Mask::kMostPlaces);
    std::optional<COLORREF> m_backColor;
    std::optional<COLORREF> m_foreColor;
    CBrush m_brush;
    long m_appearance = 1;
    long m_mousePointer = 0;
    long m_dragMode = 0;
    long m_dropMode = 0;
    const kv::ImageResource* m_mouseIcon = nullptr;
    CFont* m_font = nullptr;
};
