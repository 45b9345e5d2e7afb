#include "window/controls/edit.h"

#include "window/controls/edit_node.h"
#include "window/node_factory.h"

namespace {

const kv::RegisterControl<kv::EditNode, CEdit> kRegistered{kv::NodeClass::kEdit};

}  // namespace

BOOL CEdit::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CreateNode(kv::NodeClass::kEdit, "", style, rect, parent, static_cast<int>(id));
}

DWORD CEdit::GetSel() const {
    return static_cast<DWORD>(SendMessage(EM_GETSEL));
}

void CEdit::GetSel(int& start, int& end) const {
    DWORD first = 0;
    DWORD last = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    start = static_cast<int>(first);
    end = static_cast<int>(last);
}

void CEdit::SetSel(int start, int end, BOOL noScroll) {
    SendMessage(EM_SETSEL, static_cast<WPARAM>(start), end);
    if (!noScroll) SendMessage(EM_SCROLLCARET);
}

void CEdit::ReplaceSel(LPCTSTR text, BOOL canUndo) {
    SendMessage(EM_REPLACESEL, static_cast<WPARAM>(canUndo), kv::AsParam(text));
}

void CEdit::LimitText(int characters) {
    SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(characters));
}

void CEdit::SetLimitText(UINT characters) {
    SendMessage(EM_LIMITTEXT, characters);
}

UINT CEdit::GetLimitText() const {
    return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT));
}

int CEdit::GetLineCount() const {
    return m_hWnd ? static_cast<int>(SendMessage(EM_GETLINECOUNT)) : 1;
}

int CEdit::LineLength(int place) const {
    return static_cast<int>(SendMessage(EM_LINELENGTH, static_cast<WPARAM>(place)));
}

BOOL CEdit::SetReadOnly(BOOL readOnly) {
    return static_cast<BOOL>(SendMessage(EM_SETREADONLY, static_cast<WPARAM>(readOnly)));
}

BOOL CEdit::GetModify() const {
    return static_cast<BOOL>(SendMessage(EM_GETMODIFY));
}

void CEdit::SetModify(BOOL modified) {
    SendMessage(EM_SETMODIFY, static_cast<WPARAM>(modified));
}

BOOL CEdit::CanUndo() const {
    return static_cast<BOOL>(SendMessage(EM_CANUNDO));
}

BOOL CEdit::Undo() {
    return static_cast<BOOL>(SendMessage(EM_UNDO));
}

void CEdit::EmptyUndoBuffer() {
    SendMessage(EM_EMPTYUNDOBUFFER);
}

void CEdit::Cut() {
    SendMessage(WM_CUT);
}

void CEdit::Copy() {
    SendMessage(WM_COPY);
}

void CEdit::Paste() {
    SendMessage(WM_PASTE);
}

void CEdit::Clear() {
    SendMessage(WM_CLEAR);
}
