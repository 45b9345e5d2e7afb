#include "controls/dir_dialog.h"

#include <algorithm>

#include "base/paths.h"
#include "base/text.h"
#include "controls/dir_dialog_ids.h"
#include "window/dialogs/message_box.h"
#include "window/message_handlers.h"

using namespace kv::dir_dialog;

namespace {

/// A window that only changes its place in the tab order.
constexpr UINT kStays = SWP_NOMOVE | SWP_NOSIZE;

std::string FilterWith(const char* given) {
    return std::string("Show Folders Only|.|") +
           (given && *given ? given : "All Files (*.*)|*.*||");
}

bool IsNetworkPath(const std::string& path) {
    return path.starts_with("\\\\");
}

/// A letter and a colon, alone or with a backslash.
bool IsDriveText(const std::string& text) {
    const bool rooted = text.size() == 3 && text[2] == '\\';
    const char letter = text.empty() ? ' ' : kv::ToUpper(text[0]);
    return (text.size() == 2 || rooted) && text[1] == ':' && letter >= 'A' && letter <= 'Z';
}

std::string RootOf(const std::string& drive) {
    return drive.substr(0, 2) + "\\";
}

/// Why no folder can be made on such a drive; null where the kind says nothing.
const char* WhyNotOn(kv::DriveKind kind) {
    switch (kind) {
        case kv::kDriveRemovable:
            return "You cannot create this folder.\nThe medium may be write-protected.";
        case kv::kDriveRemote:
            return "You do not have permission to create\nthis folder on the network.";
        case kv::kDriveCdRom:
            return "You cannot create this folder\nas the CD ROM medium is read-only.";
        default:
            return nullptr;
    }
}

}  // namespace

const kv::MessageMap& CDirDialogWnd::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnClicked<&CDirDialogWnd::OnOpen>(kOpen),
    };
    static const kv::MessageMap kMap{&CWnd::Messages(), kEntries};
    return kMap;
}

void CDirDialogWnd::OnOpen() {
    m_dialog.OnOpen();
}

CDirDialog::CDirDialog(const char* initialDir, const char* filter, CWnd* parent, bool openExportDir)
    : CFileDialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_PATHMUSTEXIST,
                  FilterWith(filter).c_str(), parent),
      m_strInitialDir(initialDir ? initialDir : ""),
      m_bOpenExportDir(openExportDir),
      m_window(*this),
      m_edit(*this) {
    DrawByItself();
    m_ofn.lpstrTitle = "Choose Folder";
    m_ofn.lpstrInitialDir = m_strInitialDir.c_str();
}

void CDirDialog::ValidatePath(CString path) {
    m_edit.SetWindowText(path);
    OnOpen();
}

void CDirDialog::OnInitDone() {
    SetDlgItemText(kv::file_dialog::kNameLabel, "Folder:");
    m_window.SubclassWindow(m_hWnd);

    const auto placeOf = [this](int id) {
        CRect place;
        GetDlgItem(id)->GetWindowRect(&place);
        ScreenToClient(&place);
        return place;
    };
    m_edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL,
                  placeOf(kv::file_dialog::kName), this, kFolderEdit);
    m_edit.SetWindowPos(GetDlgItem(kv::file_dialog::kName), 0, 0, 0, 0, kStays);
    m_edit.SetWindowText(m_strInitialDir.c_str());
    m_open.Create("Open", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_PUSHBUTTON, placeOf(IDOK), this,
                  kOpen);
    m_open.SetWindowPos(GetDlgItem(IDOK), 0, 0, 0, 0, kStays);
    SetDefID(kOpen);
    GetDlgItem(IDOK)->ShowWindow(SW_HIDE);
    GetDlgItem(kv::file_dialog::kName)->ShowWindow(SW_HIDE);
}

void CDirDialog::OnFolderChange() {
    std::string folder = GetFolderPath().str();
    if (!folder.ends_with('\\')) folder += '\\';
    m_strPath = folder;
    m_edit.SetWindowText(folder.c_str());
    m_edit.SetSel(static_cast<int>(folder.size()), static_cast<int>(folder.size()));
    if (CWnd::GetFocus() != &m_edit) m_edit.SetFocus();
}

/// Lets the file dialog go there by its own box and button; what is typed stays as it is.
void CDirDialog::GoTo(const std::string& path) {
    const std::string text = m_edit.WindowText();
    int start = 0;
    int end = 0;
    m_edit.GetSel(start, end);
    SetDlgItemText(kv::file_dialog::kName, path.c_str());
    SendDlgItemMessage(IDOK, WM_LBUTTONDOWN);
    SendDlgItemMessage(IDOK, WM_LBUTTONUP);
    m_edit.SetWindowText(text.c_str());
    m_edit.SetSel(start, end);
}

void CDirDialog::GoToAndEnd(const std::string& path) {
    GoTo(path);
    EndDialog(IDOK);
}

void CDirDialog::Refuse(const std::string& words) {
    AfxMessageBox(words.c_str());
    m_edit.SetFocus();
}

kv::DriveKind CDirDialog::KindOf(const std::string& path) const {
    const std::string meant = PathMeant(path);
    if (IsNetworkPath(meant)) return kv::kDriveRemote;
    return meant.find(':') == 1 ? kv::GetDriveKind(meant[0]) : kv::kDriveFixed;
}

bool CDirDialog::IsDrive(const std::string& path) const {
    return KindOf(path) > kv::kDriveNone;
}

/// Makes a folder that is not there, with its parents; false when the person has been told why not.
bool CDirDialog::Make(const std::string& path, const char* otherwise) {
    constexpr std::ptrdiff_t kBehindServerAndShare = 4;
    if (!IsDrive(path)) {
        Refuse(path + "\nThe drive is invalid.");
        return false;
    }
    if (IsNetworkPath(path) && std::ranges::count(path, '\\') < kBehindServerAndShare) {
        Refuse(path + "\nThis is not a valid folder.");
        return false;
    }
    if (kv::MakeFolders(PathMeant(path))) return true;
    const char* why = WhyNotOn(KindOf(path));
    Refuse(why ? why : otherwise);
    return false;
}

bool CDirDialog::MayExportInto(const std::string& path) {
    if (!m_bOpenExportDir) return true;
    const auto entries = kv::ReadFolder(PathMeant(path));
    if (!entries) {
        Refuse(path + "\nThis folder cannot be read.");
        return false;
    }
    if (entries->empty()) return true;
    const std::string question = path +
                                 "\nThis folder contains files already.\nYou could override your "
                                 "existing files. \nDo you still want to export files into this "
                                 "folder?";
    return AfxMessageBox(question.c_str(), MB_YESNO) == IDYES;
}

void CDirDialog::OnOpen() {
    std::string text = m_edit.WindowText();
    if (text == "\\\\") return Refuse(text + "\nThis is not a valid folder.");
    if (text.empty() || text == "\\") return GoToAndEnd(text);
    if (IsDriveText(text)) {
        if (!IsDrive(text)) return Refuse(text + "\nThe drive is invalid.");
        return GoToAndEnd(RootOf(text));
    }
    if (text.back() == '\\') text.pop_back();
    const std::string path = PathMeant(text);
    if (!kv::Exists(path)) {
        if (!Make(text, "You do not have permission\nto create this folder.")) return;
    } else if (!kv::IsFolder(path)) {
        return Refuse(text + "\nThis is a file not a directory.");
    } else if (!MayExportInto(text)) {
        return;
    }
    GoToAndEnd(text);
}

/// Goes to what is typed, and stays open.
void CDirDialog::TakeEnter() {
    std::string text = m_edit.WindowText();
    if (text.empty() || text == "\\") return GoTo(text);
    if (IsDriveText(text)) return GoTo(RootOf(text));
    if (text.back() == '\\') text.pop_back();
    const std::string path = PathMeant(text);
    if (!kv::Exists(path)) {
        if (!Make(text, "You do not have permission or\notherwise cannot create this folder."))
            return;
    } else if (!kv::IsFolder(path)) {
        return Refuse(text + "\nThis is a file not a directory.");
    }
    GoTo(text);
    text += '\\';
    m_edit.SetWindowText(text.c_str());
    m_edit.SetSel(static_cast<int>(text.size()), static_cast<int>(text.size()));
}
