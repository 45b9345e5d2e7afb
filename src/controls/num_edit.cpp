#include "controls/num_edit.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/text.h"
#include "window/dialog_keys.h"
#include "window/dialogs/message_box.h"
#include "window/window_system.h"

namespace {

const char* WordsFor(int code) {
    return code == CNumEdit::kOutOfRange ? "Given value is out of range.\n"
                                         : "Characters must be a number.\n";
}

bool IsWrong(int code) {
    return code == CNumEdit::kOutOfRange || code == CNumEdit::kNoNumber;
}

bool LetThroughUnjudged(UINT character) {
    // The other characters below the blank are commands of the edit, and type nothing.
    return character < ' ' || character == '.' ||
           (character < 0x80 && kv::IsDigit(static_cast<char>(character)));
}

/// Whether the key presses a push button, which takes no focus from the box, or sends OK. Cancel
/// gives up what the box holds.
bool PressesWithoutLeaving(const MSG& message) {
    kv::Node& host = *message.hwnd->Host();
    if (message.message == WM_KEYDOWN && message.wParam == VK_RETURN) {
        const kv::Node* button = kv::DefaultButton(host);
        return !button || button->Id() != IDCANCEL;
    }
    if (message.message != WM_SYSCHAR) return false;
    const kv::Node* button = kv::ButtonOf(host, static_cast<char>(message.wParam));
    return button && button->Id() != IDCANCEL;
}

}  // namespace

const CRuntimeClass CNumEdit::classCNumEdit{
    "CNumEdit", [] { return std::unique_ptr<CWnd>(std::make_unique<CNumEdit>()); }};

void CNumEdit::GetRange(double& dMin, double& dMax) const {
    dMin = m_dMinValue;
    dMax = m_dMaxValue;
}

void CNumEdit::SetRange(double dMin, double dMax) {
    m_dMinValue = dMin;
    m_dMaxValue = dMax;
}

int CNumEdit::Judge(const CString& text) const {
    if (text.GetLength() == 1 && (text[0] == '+' || text[0] == '-')) return kSignAlone;
    const auto number = kv::ScanLoneNumber(text.str());
    if (!number) return kNoNumber;
    return InRange(*number) ? kValid : kOutOfRange;
}

int CNumEdit::IsValid(const CString& str) const {
    const int code = Judge(str);
    if (m_bVerbose && IsWrong(code)) AfxMessageBox(str, MB_ICONSTOP);
    return code;
}

int CNumEdit::IsValid() const {
    const int code = Judge(WindowText());
    if (m_bVerbose && IsWrong(code)) AfxMessageBox(WordsFor(code), MB_ICONSTOP);
    return code;
}

double CNumEdit::GetValue() const {
    return IsValid() == kValid ? kv::Atof(WindowText()) : m_dMinValue;
}

CString& CNumEdit::ConstructFormat(CString& str, double dValue) {
    const bool fraction = kv::FormatG(dValue).find('.') != std::string::npos;
    str = kv::FormatText("%%.%df", fraction ? m_nPrecision : 0);
    return str;
}

int CNumEdit::SetValue(double dValue) {
    if (!InRange(dValue)) return 0;
    CString format;
    ConstructFormat(format, dValue);
    SetWindowText(kv::FormatPrintf(format.str(), dValue).c_str());
    return 1;
}

void CNumEdit::ChangeAmount(int nStep) {
    const double value = GetValue() + nStep * m_dDelta;
    SetValue(std::max(std::min(value, m_dMaxValue), m_dMinValue));
}

void CNumEdit::OnChar(UINT nChar, UINT, UINT) {
    if (nChar == ' ') return;
    if (m_hWnd->HasStyle(ES_READONLY)) {
        Default();
        return;
    }
    const auto window = m_hWnd->shared_from_this();
    const double former = GetValue();
    Default();
    if (window->Handle() != this || LetThroughUnjudged(nChar)) return;
    if (IsWrong(IsValid())) Restore(former);
}

/// What was typed ahead would be added to the text that is shown again.
void CNumEdit::Restore(double dValue) {
    SetValue(dValue);
    SetSel(0, -1);
    SendMessage(EM_SCROLLCARET);
    MSG waiting;
    while (kv::WindowSystem::Get().Take(waiting, m_hWnd, WM_CHAR, WM_CHAR)) {
    }
}

/// Whether the text is a number within the range, or empty. Tells about any other, and empties it.
/// The message takes the focus, which is not to be judged once more.
bool CNumEdit::MayBeLeft() {
    const auto window = m_hWnd->shared_from_this();
    const std::string text = WindowText();
    const auto number = kv::ScanNumber(text);
    if (m_bTelling || text.empty() || (number && InRange(*number))) return true;
    m_bTelling = true;
    AfxMessageBox("Value out of range");
    if (window->Handle() != this || window->Destroyed()) return false;
    m_bTelling = false;
    SetWindowText("");
    SetFocus();
    return false;
}

void CNumEdit::OnKillFocus(CWnd*) {
    const auto window = m_hWnd->shared_from_this();
    Default();
    if (window->Handle() == this && !window->Destroyed()) MayBeLeft();
}

BOOL CNumEdit::PreTranslateMessage(MSG* message) {
    if (message->hwnd == m_hWnd && PressesWithoutLeaving(*message) && !MayBeLeft()) return TRUE;
    return CEdit::PreTranslateMessage(message);
}

const kv::MessageMap& CNumEdit::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnMessage<&CNumEdit::OnChar>(WM_CHAR),
        kv::OnMessage<&CNumEdit::OnKillFocus>(WM_KILLFOCUS),
    };
    static const kv::MessageMap kMap{&CEdit::Messages(), kEntries};
    return kMap;
}
