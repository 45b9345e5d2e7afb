#include "controls/num_edit.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/text.h"
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

void CNumEdit::OnKillFocus(CWnd*) {
    const auto window = m_hWnd->shared_from_this();
    Default();
    if (window->Handle() != this || window->Destroyed()) return;
    const std::string text = WindowText();
    const auto number = kv::ScanNumber(text);
    if (text.empty() || (number && InRange(*number))) return;
    AfxMessageBox("Value out of range");
    if (window->Handle() != this || window->Destroyed()) return;
    SetWindowText("");
    SetFocus();
}

const kv::MessageMap& CNumEdit::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnMessage<&CNumEdit::OnChar>(WM_CHAR),
        kv::OnMessage<&CNumEdit::OnKillFocus>(WM_KILLFOCUS),
    };
    static const kv::MessageMap kMap{&CEdit::Messages(), kEntries};
    return kMap;
}
