#include "controls/dir_dialog_edit.h"

#include <algorithm>

#include "base/paths.h"
#include "base/text.h"
#include "base/utf8.h"
#include "controls/dir_dialog_ids.h"
#include "window/dialog_keys.h"
#include "window/message_handlers.h"

namespace {

bool IsUpper(char ch) {
    return ch >= 'A' && ch <= 'Z';
}
bool IsLower(char ch) {
    return ch >= 'a' && ch <= 'z';
}

bool IsInCapitals(const std::string& name) {
    return std::ranges::any_of(name, IsUpper) && std::ranges::none_of(name, IsLower) &&
           name.find(' ') == std::string::npos;
}

/// Whether the last character lacks bytes that are still to come.
bool EndsInsideCharacter(std::string_view text) {
    std::size_t lead = text.size();
    while (lead > 0 && (static_cast<unsigned char>(text[lead - 1]) & 0xC0) == 0x80)
        --lead;
    if (lead == 0) return false;
    const kv::Utf8Character last = kv::Utf8At(text, lead - 1);
    return last.code >= 0xC2 && last.length == 1;
}

}  // namespace

namespace kv::dir_dialog {

std::string RestOfName(std::string_view typed, const std::string& name) {
    if (typed.empty() || typed.size() > name.size()) return {};
    const std::string shown =
        IsInCapitals(name) ? name.substr(0, 1) + ToLower(name.substr(1)) : name;
    const std::string rest = shown.substr(typed.size());
    const char last = typed.back();
    if (last == shown[typed.size() - 1]) return rest;
    return IsUpper(last) ? ToUpper(rest) : ToLower(rest);
}

}  // namespace kv::dir_dialog

UINT CDirDialogEdit::OnGetDlgCode() {
    return DLGC_WANTALLKEYS | DLGC_WANTCHARS | DLGC_WANTARROWS | DLGC_HASSETSEL;
}

LRESULT CDirDialogEdit::OnKeyDown(WPARAM key, LPARAM) {
    switch (static_cast<int>(key)) {
        case VK_TAB:
            Leave(kv::CurrentModifiers().shift);
            return 0;
        case VK_RETURN:
            m_chooser.TakeEnter();
            return 0;
        case VK_ESCAPE:
            GetParent()->SendMessage(WM_COMMAND, IDCANCEL);
            return 0;
        case VK_DELETE:
            Default();
            GoAlong();
            return 0;
        default:
            return Default();
    }
}

/// To the button that opens, or back to what stands ahead.
void CDirDialogEdit::Leave(bool back) {
    const CWnd& dialog = *GetParent();
    kv::Node* next = back ? kv::NextTabStop(*dialog.m_hWnd, m_hWnd, false)
                          : dialog.m_hWnd->FindChild(kv::dir_dialog::kOpen);
    if (next) kv::FocusByTab(*next);
}

LRESULT CDirDialogEdit::OnChar(WPARAM character, LPARAM) {
    const bool key = character == '\t' || character == '\r' || character == VK_ESCAPE;
    if (key) return 0;
    Default();
    if (!GoAlong() && character >= ' ') Complete();
    return 0;
}

/// True where what is typed is a folder to go to, or may become a network's.
bool CDirDialogEdit::GoAlong() {
    const std::string text = WindowText();
    if (text == "\\\\") return true;
    const bool ended = text.ends_with('\\');
    if (!ended || !kv::IsFolder(m_chooser.Meant(text))) return false;
    m_chooser.GoTo(text);
    return true;
}

void CDirDialogEdit::Complete() {
    const std::string text = WindowText();
    int start = 0;
    int end = 0;
    GetSel(start, end);
    const bool atEnd = start == end && end == static_cast<int>(text.size());
    const std::string typed = kv::NameOf(text);
    if (!atEnd || typed.empty() || EndsInsideCharacter(typed)) return;
    const auto entries = kv::ReadFolder(kv::FolderOf(m_chooser.Meant(text)));
    if (!entries) return;
    const auto fits = [&](const kv::FolderEntry& entry) {
        return entry.isFolder && kv::StartsWithNoCase(entry.name, typed);
    };
    const auto found = std::ranges::find_if(*entries, fits);
    if (found == entries->end() || std::ranges::count_if(*entries, fits) != 1) return;
    const std::string whole = text + kv::dir_dialog::RestOfName(typed, found->name);
    SetWindowText(whole.c_str());
    SetSel(end, static_cast<int>(whole.size()));
}

const kv::MessageMap& CDirDialogEdit::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnMessage<&CDirDialogEdit::OnGetDlgCode>(WM_GETDLGCODE),
        kv::OnMessage<&CDirDialogEdit::OnKeyDown>(WM_KEYDOWN),
        kv::OnMessage<&CDirDialogEdit::OnChar>(WM_CHAR),
    };
    static const kv::MessageMap kMap{&CEdit::Messages(), kEntries};
    return kMap;
}
