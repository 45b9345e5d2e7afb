#include "controls/input_validation_edit.h"

#include <algorithm>
#include <string>

#include "base/text.h"

bool CInputValidationEdit::Takes(UINT nChar) const {
    // Those below the blank are commands of the edit, such as backspace and copy.
    if (nChar < ' ') return true;
    int start = 0;
    int end = 0;
    GetSel(start, end);
    if (nChar == '+' || nChar == '-') return start == 0;
    if (nChar == '.') return start != 0;
    return nChar < 0x80 && kv::IsDigit(static_cast<char>(nChar));
}

void CInputValidationEdit::OnChar(UINT nChar, UINT, UINT) {
    if (Takes(nChar)) Default();
}

void CInputValidationEdit::TestString() {
    std::string text = WindowText();
    if (text.empty()) return;
    const auto behindFirst = text.begin() + 1;
    text.erase(std::remove_if(behindFirst, text.end(), [](char ch) { return !kv::IsDigit(ch); }),
               text.end());
    SetWindowText(text.c_str());
}

const kv::MessageMap& CInputValidationEdit::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnMessage<&CInputValidationEdit::OnChar>(WM_CHAR),
    };
    static const kv::MessageMap kMap{&CEdit::Messages(), kEntries};
    return kMap;
}
