#include "controls/ms_mask.h"

#include <algorithm>
#include <utility>

#include "controls/mask_format.h"
#include "window/desktop.h"
#include "window/dialog_keys.h"
#include "window/drawing/device_context.h"
#include "window/window_system.h"

using kv::SystemColor;
using kv::WindowSystem;

namespace {

std::string Given(LPCTSTR text) {
    return text ? text : "";
}

COLORREF SystemColorOf(SystemColor which) {
    return WindowSystem::Get().GetDesktop().Color(which);
}

}  // namespace

const CRuntimeClass CMSMask::classCMSMask{
    "CMSMask", [] { return std::unique_ptr<CWnd>(std::make_unique<CMSMask>()); }};

const CLSID& CMSMask::GetClsid() {
    static constexpr CLSID kClass{
        0xC932BA85, 0x4374, 0x101B, {0xA5, 0x6C, 0x00, 0xAA, 0x00, 0x36, 0x68, 0xDC}};
    return kClass;
}

BOOL CMSMask::Create(LPCTSTR, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                     CWnd* pParentWnd, UINT nID) {
    return Create(lpszWindowName, dwStyle, rect, pParentWnd, nID);
}

BOOL CMSMask::Create(LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                     UINT nID) {
    return CreateNode(kv::NodeClass::kEdit, lpszWindowName, dwStyle | ES_AUTOHSCROLL, rect,
                      pParentWnd, static_cast<int>(nID));
}

void CMSMask::PreSubclassWindow() {
    if (Masked()) m_mask.Assign(m_hWnd->Text());
    SetMaxLength(m_maxLength);
    ShowText();
}

// The text.

std::string CMSMask::WholeText() const {
    if (Masked()) return m_mask.Shown();
    return m_formatted ? m_plain : WindowText();
}

bool CMSMask::HasFocus() const {
    return m_hWnd && WindowSystem::Get().Focus() == m_hWnd;
}

void CMSMask::ShowText() {
    if (!m_hWnd) return;
    const std::string whole = WholeText();
    const std::string text = Masked() ? m_mask.Text() : whole;
    const bool plainly = HasFocus() || !GetHideSelection();
    const std::string formatted = plainly ? text : kv::FormatMasked(m_format, text);
    m_formatted = formatted != text;
    if (m_formatted) m_plain = whole;
    m_hWnd->SetText(m_formatted ? formatted : whole);
}

void CMSMask::Changed(const kv::Mask& former, int caret) {
    const std::string shown = m_mask.Shown();
    if (shown == former.Shown()) {
        Select(caret, caret);
        return;
    }
    m_undo = former;
    const auto window = m_hWnd->shared_from_this();
    ShowText();
    Select(caret, caret);
    DefWindowProc(EM_SETMODIFY, TRUE, 0);
    window->Notify(EN_UPDATE);
    window->Notify(EN_CHANGE);
}

void CMSMask::EnterCharacter(const std::string& character) {
    const auto [first, last] = GetSelection();
    const kv::Mask former = m_mask;
    m_mask.Erase(first, last);
    const auto behind = m_mask.Enter(first, character);
    if (!behind) {
        m_mask = former;
        return;
    }
    const auto window = m_hWnd->shared_from_this();
    Changed(former, *behind);
    if (window->Handle() == this && m_mask.FullAt(*behind)) GoOnWhenFull();
}

void CMSMask::EnterText(const std::string& text, int first, int last) {
    const kv::Mask former = m_mask;
    m_mask.Erase(first, last);
    const std::string erased = m_mask.Shown();
    const int behind = m_mask.Paste(first, text);
    // What the mask takes nothing of does not take anything away either.
    if (m_mask.Shown() == erased && !text.empty()) m_mask = former;
    Changed(former, behind);
}

void CMSMask::EraseSelection() {
    const auto [first, last] = GetSelection();
    const kv::Mask former = m_mask;
    m_mask.Erase(first, last);
    Changed(former, first);
}

void CMSMask::GoOnWhenFull() {
    if (!m_autoTab || !HasFocus()) return;
    kv::Node* next = kv::NextTabStop(*m_hWnd->Host(), m_hWnd, true);
    if (next && next != m_hWnd) kv::FocusByTab(*next);
}

// What a person does.

LRESULT CMSMask::OnChar(WPARAM wParam, LPARAM) {
    const char ch = static_cast<char>(wParam);
    const auto window = m_hWnd->shared_from_this();
    if (!Masked()) {
        const std::size_t former = window->Text().size();
        const LRESULT result = Default();
        const std::size_t length = window->Text().size();
        const bool full = length > former && length >= static_cast<std::size_t>(m_maxLength);
        if (window->Handle() == this && full) GoOnWhenFull();
        return result;
    }
    const bool control = static_cast<unsigned char>(ch) < ' ' && ch != '\b';
    if (control || ReadOnly()) return control ? Default() : 0;
    const auto [first, last] = GetSelection();
    if (ch == '\b') {
        if (first != last) {
            EraseSelection();
            return 0;
        }
        const kv::Mask former = m_mask;
        const int caret = m_mask.EraseAhead(first);
        Changed(former, caret);
        return 0;
    }
    m_typed += ch;
    if (m_typed.size() < kv::SequenceSize(m_typed.front())) return 0;
    std::string typed = std::exchange(m_typed, {});
    while (!typed.empty() && window->Handle() == this) {
        const std::size_t size = kv::CharacterSize(typed);
        EnterCharacter(typed.substr(0, size));
        typed.erase(0, size);
    }
    return 0;
}

LRESULT CMSMask::OnKeyDown(WPARAM wParam, LPARAM) {
    const kv::Modifiers keys = kv::CurrentModifiers();
    if (!Masked() || ReadOnly() || wParam != VK_DELETE || keys.shift || keys.alt) return Default();
    const auto [first, last] = GetSelection();
    if (first != last) {
        EraseSelection();
        return 0;
    }
    const kv::Mask former = m_mask;
    const int caret = m_mask.EraseBehind(first);
    Changed(former, caret);
    return 0;
}

LRESULT CMSMask::OnPaste(WPARAM, LPARAM) {
    if (!Masked()) return Default();
    if (ReadOnly()) return 0;
    const auto [first, last] = GetSelection();
    EnterText(WindowSystem::Get().GetDesktop().ClipboardText(), first, last);
    return 0;
}

LRESULT CMSMask::OnCopy(WPARAM, LPARAM) {
    const auto [first, last] = GetSelection();
    if (!Masked() || first == last || m_hWnd->HasStyle(ES_PASSWORD)) return Default();
    const bool literals = m_clipMode != mskExcludeLiterals;
    const bool prompts = literals && m_promptInclude;
    WindowSystem::Get().GetDesktop().SetClipboardText(m_mask.Clip(first, last, literals, prompts));
    return TRUE;
}

LRESULT CMSMask::OnCut(WPARAM wParam, LPARAM lParam) {
    if (!Masked()) return Default();
    if (ReadOnly() || m_hWnd->HasStyle(ES_PASSWORD)) return 0;
    if (GetSelLength() > 0 && OnCopy(wParam, lParam)) EraseSelection();
    return 0;
}

LRESULT CMSMask::OnClear(WPARAM, LPARAM) {
    if (!Masked()) return Default();
    if (!ReadOnly()) EraseSelection();
    return 0;
}

LRESULT CMSMask::OnUndo(WPARAM, LPARAM) {
    if (!Masked()) return Default();
    if (!m_undo) return FALSE;
    const kv::Mask former = std::exchange(m_mask, *m_undo);
    Changed(former, static_cast<int>(m_mask.Shown().size()));
    return TRUE;
}

LRESULT CMSMask::OnCanUndo(WPARAM, LPARAM) {
    return Masked() ? m_undo.has_value() : Default();
}

LRESULT CMSMask::OnReplaceSel(WPARAM, LPARAM lParam) {
    if (!Masked()) return Default();
    const auto [first, last] = GetSelection();
    EnterText(lParam ? kv::TextOf(lParam) : "", first, last);
    return 0;
}

LRESULT CMSMask::OnSetText(WPARAM, LPARAM lParam) {
    if (!Masked()) {
        m_formatted = false;
        const auto window = m_hWnd->shared_from_this();
        const LRESULT result = Default();
        if (window->Handle() == this) ShowText();
        return result;
    }
    const kv::Mask former = m_mask;
    if (!m_mask.Assign(lParam ? kv::TextOf(lParam) : "")) return FALSE;
    Changed(former, 0);
    m_undo.reset();
    return TRUE;
}

LRESULT CMSMask::OnSetFocus(WPARAM, LPARAM) {
    ShowText();
    return Default();
}

LRESULT CMSMask::OnKillFocus(WPARAM, LPARAM) {
    m_typed.clear();
    const auto window = m_hWnd->shared_from_this();
    const LRESULT result = Default();
    if (window->Handle() == this) ShowText();
    return result;
}

// Properties of the mask and the text.

CString CMSMask::GetMask() {
    return m_mask.Pattern();
}

void CMSMask::SetMask(LPCTSTR mask) {
    const std::string text = Masked() ? m_mask.Text() : WholeText();
    const bool wasMasked = Masked();
    if (!m_mask.SetPattern(Given(mask))) return;
    m_undo.reset();
    if (Masked() && !wasMasked) m_mask.Assign(text);
    if (!Masked()) {
        m_plain = text;
        m_formatted = true;
    }
    ShowText();
}

CString CMSMask::GetPromptChar() {
    return CString(m_mask.Prompt());
}

void CMSMask::SetPromptChar(LPCTSTR prompt) {
    if (prompt && m_mask.SetPrompt(*prompt)) ShowText();
}

BOOL CMSMask::GetPromptInclude() {
    return m_promptInclude;
}

void CMSMask::SetPromptInclude(BOOL include) {
    m_promptInclude = include != FALSE;
}

BOOL CMSMask::GetAllowPrompt() {
    return m_mask.PromptAllowed();
}

void CMSMask::SetAllowPrompt(BOOL allow) {
    m_mask.AllowPrompt(allow != FALSE);
}

CString CMSMask::GetText() {
    return Masked() && !m_promptInclude ? m_mask.Text() : WholeText();
}

void CMSMask::SetText(LPCTSTR text) {
    SetWindowText(text);
}

CString CMSMask::GetClipText() {
    return Masked() ? m_mask.Entered() : WholeText();
}

void CMSMask::SetClipText(LPCTSTR text) {
    if (!Masked()) {
        SetText(text);
    } else if (m_hWnd) {
        EnterText(Given(text), 0, static_cast<int>(m_mask.Shown().size()));
    }
}

CString CMSMask::GetFormat() {
    return m_format;
}

void CMSMask::SetFormat(LPCTSTR format) {
    m_format = Given(format);
    ShowText();
}

CString CMSMask::GetFormattedText() {
    const std::string text = Masked() ? m_mask.Text() : WholeText();
    const std::string formatted = kv::FormatMasked(m_format, text);
    return formatted == text ? WholeText() : formatted;
}

void CMSMask::SetFormattedText(LPCTSTR text) {
    SetClipText(text);
}

long CMSMask::GetClipMode() {
    return m_clipMode;
}

void CMSMask::SetClipMode(long mode) {
    if (mode == mskIncludeLiterals || mode == mskExcludeLiterals) m_clipMode = mode;
}

short CMSMask::GetMaxLength() {
    return m_maxLength;
}

void CMSMask::SetMaxLength(short length) {
    if (length < 1 || length > static_cast<short>(kv::Mask::kMostPlaces)) return;
    m_maxLength = length;
    SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(length));
}

BOOL CMSMask::GetAutoTab() {
    return m_autoTab;
}

void CMSMask::SetAutoTab(BOOL on) {
    m_autoTab = on != FALSE;
}

// Properties of the selection.

CMSMask::Selection CMSMask::GetSelection() const {
    DWORD first = 0;
    DWORD last = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    return {static_cast<int>(first), static_cast<int>(last)};
}

void CMSMask::Select(int first, int last) {
    SendMessage(EM_SETSEL, static_cast<WPARAM>(first), last);
}

long CMSMask::GetSelStart() {
    return GetSelection().first;
}

void CMSMask::SetSelStart(long start) {
    const int place = static_cast<int>(std::max(start, 0L));
    Select(place, place);
}

long CMSMask::GetSelLength() {
    const auto [first, last] = GetSelection();
    return last - first;
}

void CMSMask::SetSelLength(long length) {
    const int first = GetSelection().first;
    Select(first, first + static_cast<int>(std::max(length, 0L)));
}

CString CMSMask::GetSelText() {
    const auto [first, last] = GetSelection();
    return CString(WindowText()).Mid(first, last - first);
}

void CMSMask::SetSelText(LPCTSTR text) {
    SendMessage(EM_REPLACESEL, TRUE, kv::AsParam(text));
}

BOOL CMSMask::GetHideSelection() {
    return !m_hWnd || !m_hWnd->HasStyle(ES_NOHIDESEL);
}

void CMSMask::SetHideSelection(BOOL hide) {
    if (hide) {
        ModifyStyle(ES_NOHIDESEL, 0);
    } else {
        ModifyStyle(0, ES_NOHIDESEL);
    }
    ShowText();
}

// Properties of its looks.

HBRUSH CMSMask::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT) {
    const bool own = pWnd && pWnd->m_hWnd == m_hWnd && (m_backColor || m_foreColor);
    if (!own) return reinterpret_cast<HBRUSH>(Default());
    pDC->SetTextColor(GetForeColor());
    pDC->SetBkColor(GetBackColor());
    m_brush.CreateSolidBrush(GetBackColor());
    return m_brush;
}

COLORREF CMSMask::GetBackColor() {
    return m_backColor ? *m_backColor : SystemColorOf(SystemColor::kWindow);
}

void CMSMask::SetBackColor(COLORREF color) {
    m_backColor = color;
    Invalidate();
}

COLORREF CMSMask::GetForeColor() {
    return m_foreColor ? *m_foreColor : SystemColorOf(SystemColor::kWindowText);
}

void CMSMask::SetForeColor(COLORREF color) {
    m_foreColor = color;
    Invalidate();
}

long CMSMask::GetBorderStyle() {
    return GetStyle() & WS_BORDER ? 1 : 0;
}

void CMSMask::SetBorderStyle(long style) {
    if (style == 0) ModifyStyle(WS_BORDER, 0);
    if (style == 1) ModifyStyle(0, WS_BORDER);
}

long CMSMask::GetAppearance() {
    return m_appearance;
}

void CMSMask::SetAppearance(long appearance) {
    m_appearance = appearance;
}

long CMSMask::GetMousePointer() {
    return m_mousePointer;
}

void CMSMask::SetMousePointer(long pointer) {
    m_mousePointer = pointer;
}

const kv::ImageResource* CMSMask::GetMouseIcon() {
    return m_mouseIcon;
}

void CMSMask::SetMouseIcon(const kv::ImageResource* icon) {
    m_mouseIcon = icon;
}

void CMSMask::SetRefMouseIcon(const kv::ImageResource* icon) {
    m_mouseIcon = icon;
}

CFont* CMSMask::GetFont() {
    return m_font;
}

void CMSMask::SetRefFont(CFont* font) {
    m_font = font;
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font ? font->GetSafeHandle() : nullptr), TRUE);
}

BOOL CMSMask::GetEnabled() {
    return IsWindowEnabled();
}

void CMSMask::SetEnabled(BOOL enabled) {
    EnableWindow(enabled);
}

long CMSMask::GetHWnd() {
    return static_cast<long>(reinterpret_cast<std::intptr_t>(m_hWnd));
}

void CMSMask::SetHWnd(long) {
    // Read-only, as published.
}

long CMSMask::GetOLEDragMode() {
    return m_dragMode;
}

void CMSMask::SetOLEDragMode(long mode) {
    m_dragMode = mode;
}

long CMSMask::GetOLEDropMode() {
    return m_dropMode;
}

void CMSMask::SetOLEDropMode(long mode) {
    m_dropMode = mode;
}

void CMSMask::Refresh() {
    Invalidate();
}

void CMSMask::OLEDrag() {
    SendMessage(WM_COPY);
}

const kv::MessageMap& CMSMask::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnMessage<&CMSMask::OnChar>(WM_CHAR),
        kv::OnMessage<&CMSMask::OnKeyDown>(WM_KEYDOWN),
        kv::OnMessage<&CMSMask::OnPaste>(WM_PASTE),
        kv::OnMessage<&CMSMask::OnCopy>(WM_COPY),
        kv::OnMessage<&CMSMask::OnCut>(WM_CUT),
        kv::OnMessage<&CMSMask::OnClear>(WM_CLEAR),
        kv::OnMessage<&CMSMask::OnUndo>(WM_UNDO),
        kv::OnMessage<&CMSMask::OnUndo>(EM_UNDO),
        kv::OnMessage<&CMSMask::OnCanUndo>(EM_CANUNDO),
        kv::OnMessage<&CMSMask::OnReplaceSel>(EM_REPLACESEL),
        kv::OnMessage<&CMSMask::OnSetText>(WM_SETTEXT),
        kv::OnMessage<&CMSMask::OnSetFocus>(WM_SETFOCUS),
        kv::OnMessage<&CMSMask::OnKillFocus>(WM_KILLFOCUS),
        kv::OnMessage<&CMSMask::OnCtlColor>(WM_CTLCOLOR),
    };
    static const kv::MessageMap kMap{&CWnd::Messages(), kEntries};
    return kMap;
}
