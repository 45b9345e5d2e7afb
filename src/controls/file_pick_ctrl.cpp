#include "controls/file_pick_ctrl.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <tuple>
#include <utility>

#include "base/file.h"
#include "base/paths.h"
#include "base/text.h"
#include "base/utf8.h"
#include "controls/file_pick_ids.h"
#include "window/dialogs/ddx.h"
#include "window/dialogs/message_box.h"

using namespace kv::file_pick;

namespace {

/// Item data of the first line. They have the bit of folders, too.
constexpr LPARAM kWayUp = -1;
constexpr LPARAM kRoot = -2;

/// Indices of the images in their lists.
enum Image { kFolderImage, kFileImage };

constexpr int kSmallImage = 16;
constexpr int kLargeImage = 32;

constexpr std::size_t kRootLength = 3;
/// Beside the widest name.
constexpr int kBesideName = 35;

bool IsFolderLine(LPARAM attributes) {
    return (attributes & CFile::directory) != 0;
}

std::string WithBackslash(std::string path) {
    if (!path.empty() && path.back() != '\\') path += '\\';
    return path;
}

}  // namespace

namespace kv::file_pick {

std::string PatternOf(const std::string& mask) {
    const std::size_t end = mask.rfind(')');
    const std::size_t begin = mask.rfind('(', end);
    if (end == std::string::npos || begin == std::string::npos) return {};
    return mask.substr(begin + 1, end - begin - 1);
}

std::string StrToCapitalizedWords(const std::string& text) {
    std::string words = ToLower(text);
    for (std::size_t at = 0; at < words.size(); ++at) {
        if (at == 0 || words[at - 1] == ' ') words[at] = ToUpper(words[at]);
    }
    return words;
}

}  // namespace kv::file_pick

CFilePickCtrl::CFilePickCtrl(CWnd* parent) : CDialog(kTemplate, parent), m_szPath("C:\\") {}

void CFilePickCtrl::SetStartPath(const char* path) {
    if (path && *path) m_szPath = WithBackslash(path);
}

int CFilePickCtrl::AddFilemask(const char* mask) {
    const std::string text = mask ? mask : "";
    const std::size_t end = text.rfind(')');
    const bool valid = end != std::string::npos && text.rfind('(', end) != std::string::npos;
    if (m_bDirOnly || !valid || text.size() > kLongestMask) return 0;
    m_masks.push_back(text);
    return 1;
}

int CFilePickCtrl::DoModal(const char* title) {
    m_szTitle = title ? title : "";
    return DoModal();
}

int CFilePickCtrl::DoModal() {
    m_szSelected.clear();
    m_vSelected.clear();
    return CDialog::DoModal();
}

void CFilePickCtrl::GetSelectedItem(char* out) const {
    std::memcpy(out, m_szSelected.c_str(), m_szSelected.size() + 1);
}

int CFilePickCtrl::GetMultipleSelectedItem(std::vector<std::string>& out) const {
    out = m_vSelected;
    return static_cast<int>(out.size());
}

BOOL CFilePickCtrl::OnInitDialog() {
    CDialog::OnInitDialog();
    AttachControls();
    // OK on a folder may have left none.
    if (m_szPath.empty()) m_szPath = "C:\\";
    SetWindowText(m_szTitle.c_str());
    GetDlgItem(kPathLabel)->ShowWindow(m_bShowPath ? SW_SHOW : SW_HIDE);
    m_edtPath.ShowWindow(m_bShowPath ? SW_SHOW : SW_HIDE);
    m_cmbFileName.EnableWindow(m_bSaveFile == 1);
    FillTypes();
    AttachImages();
    FillDrives();
    m_lvFiles.InsertColumn(0, "");
    m_szStartPath = m_szPath;
    PopulateFilePickCtrl();
    return TRUE;
}

void CFilePickCtrl::AttachControls() {
    m_cmbFileName.SubclassDlgItem(kFileName, this);
    m_cmbDrives.SubclassDlgItem(kDrives, this);
    m_edtPath.SubclassDlgItem(kPath, this);
    m_cmbTypes.SubclassDlgItem(kTypes, this);
    m_lvFiles.SubclassDlgItem(kFiles, this);
}

void CFilePickCtrl::FillTypes() {
    if (m_bDirOnly) {
        GetDlgItem(kTypesLabel)->ShowWindow(SW_HIDE);
        m_cmbTypes.ShowWindow(SW_HIDE);
        return;
    }
    if (!m_bCustomFileExt) m_cmbTypes.AddString("All files (*.txt)");
    for (const std::string& mask : m_masks)
        m_cmbTypes.AddString(mask.c_str());
    m_cmbTypes.SetCurSel(m_nType);
}

void CFilePickCtrl::FillDrives() {
    m_nDrive = -1;
    for (const char letter : kv::DriveLetters()) {
        std::string text = kv::FormatText("(%c:)", letter);
        COMBOBOXEXITEM item;
        item.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_LPARAM;
        item.pszText = text.data();
        item.iImage = 0;
        item.lParam = letter;
        const int line = m_cmbDrives.InsertItem(&item);
        if (line < 0) {
            AfxMessageBox("Error adding driveCtrl item");
            continue;
        }
        if (kv::ToUpper(m_szPath[0]) == letter) m_nDrive = line;
    }
    m_cmbDrives.SetCurSel(m_nDrive);
}

void CFilePickCtrl::AttachImages() {
    const int driveSize = m_bLargeDriveIcons ? kLargeImage : kSmallImage;
    m_driveImages.Create(driveSize, driveSize);
    m_driveImages.Add(m_bLargeDriveIcons ? kLargeDriveIcon : kSmallDriveIcon);
    m_cmbDrives.SetImageList(&m_driveImages);

    const int fileSize = m_bLargeFilesIcons ? kLargeImage : kSmallImage;
    m_fileImages.Create(fileSize, fileSize);
    m_fileImages.Add(m_bLargeFilesIcons ? kLargeFolderIcon : kSmallFolderIcon);
    m_fileImages.Add(m_bLargeFilesIcons ? kLargeFileIcon : kSmallFileIcon);
    m_lvFiles.SetImageList(&m_fileImages, LVSIL_SMALL);
}

/// Empty where no type line is current.
std::string CFilePickCtrl::CurrentPattern() const {
    CString line;
    if (m_cmbTypes.GetCurSel() >= 0) m_cmbTypes.GetLBText(m_cmbTypes.GetCurSel(), line);
    const std::string pattern = PatternOf(line.str());
    return pattern == "*.*" ? "*" : pattern;
}

/// What the folder holds, each kind in the order of the shown names; false where it cannot be read.
bool CFilePickCtrl::Collect(Entries& folders, Entries& files) const {
    auto entries = kv::ReadFolder(m_szPath);
    if (!entries) return false;
    const std::string pattern = m_bDirOnly ? "" : CurrentPattern();
    files.reserve(entries->size());
    for (kv::FolderEntry& entry : *entries) {
        if (entry.name.front() == '.') continue;
        if (entry.isFolder)
            folders.push_back({entry.name, StrToCapitalizedWords(entry.name), CFile::directory});
        else if (!pattern.empty() && kv::FitsPattern(entry.name, pattern))
            files.push_back({entry.name, std::move(entry.name), CFile::normal});
    }
    const auto inOrder = [](const Entry& a, const Entry& b) {
        return std::tie(a.shown, a.name) < std::tie(b.shown, b.name);
    };
    std::sort(folders.begin(), folders.end(), inOrder);
    std::sort(files.begin(), files.end(), inOrder);
    return true;
}

void CFilePickCtrl::PopulateFilePickCtrl() {
    const bool atRoot = m_szPath.size() == kRootLength;
    const std::string first = atRoot ? "[Root]" : "[Up one directory]";
    m_entries = {{first, first, atRoot ? kRoot : kWayUp}};
    m_edtPath.SetWindowText(m_szPath.c_str());
    Entries folders;
    Entries files;
    const bool read = Collect(folders, files);
    m_entries.reserve(m_entries.size() + folders.size() + files.size());
    std::move(folders.begin(), folders.end(), std::back_inserter(m_entries));
    std::move(files.begin(), files.end(), std::back_inserter(m_entries));
    ShowEntries();
    if (!read) AfxMessageBox((m_szPath + "\nThis folder cannot be read.").c_str());
}

void CFilePickCtrl::ShowEntries() {
    m_lvFiles.DeleteAllItems();
    m_lvFiles.SetItemCountEx(static_cast<int>(m_entries.size()));
    for (std::size_t line = 0; line < m_entries.size(); ++line) {
        Entry& entry = m_entries[line];
        LVITEM item;
        item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM;
        item.iItem = static_cast<int>(line);
        item.pszText = entry.shown.data();
        item.iImage = IsFolderLine(entry.attributes) ? kFolderImage : kFileImage;
        item.lParam = entry.attributes;
        if (m_lvFiles.InsertItem(&item) >= 0) continue;
        AfxMessageBox("Error adding item!");
        break;
    }
    // Large images would cut the names off.
    const int larger = m_bLargeFilesIcons ? kLargeImage - kSmallImage : 0;
    m_lvFiles.SetColumnWidth(0, WidestName() + kBesideName + larger);
}

/// In logical pixels. Each character is measured once, and then those names that come out widest by
/// the sum of their characters: measuring each name would take longer than all else.
int CFilePickCtrl::WidestName() {
    constexpr std::size_t kMeasured = 16;
    std::map<char32_t, int> widths;
    std::vector<std::pair<int, const Entry*>> sums;
    for (const Entry& entry : m_entries) {
        int sum = 0;
        for (std::size_t at = 0; at < entry.shown.size();) {
            const kv::Utf8Character character = kv::Utf8At(entry.shown, at);
            const auto [width, isNew] = widths.try_emplace(character.code, 0);
            if (isNew)
                width->second =
                    m_lvFiles.GetStringWidth(entry.shown.substr(at, character.length).c_str());
            sum += width->second;
            at += character.length;
        }
        sums.emplace_back(sum, &entry);
    }
    const auto measured = sums.begin() + static_cast<int>(std::min(kMeasured, sums.size()));
    std::partial_sort(sums.begin(), measured, sums.end(),
                      [](const auto& a, const auto& b) { return a.first > b.first; });
    int widest = 0;
    for (auto each = sums.begin(); each != measured; ++each)
        widest = std::max(widest, m_lvFiles.GetStringWidth(each->second->shown.c_str()));
    return widest;
}

void CFilePickCtrl::OnTypeChange() {
    m_nType = m_cmbTypes.GetCurSel();
    PopulateFilePickCtrl();
}

void CFilePickCtrl::OnDriveChange() {
    m_nDrive = m_cmbDrives.GetCurSel();
    if (m_nDrive < 0) return;
    m_szPath = kv::FormatText("%c:\\", static_cast<char>(m_cmbDrives.GetItemData(m_nDrive)));
    PopulateFilePickCtrl();
}

/// The folder that holds the current one; a root is its own.
std::string CFilePickCtrl::PathUp() const {
    if (m_szPath.size() <= kRootLength) return m_szPath;
    return kv::FolderOf(m_szPath.substr(0, m_szPath.size() - 1));
}

void CFilePickCtrl::OpenLine(int line) {
    const auto at = static_cast<std::size_t>(line);
    if (line < 0 || at >= m_entries.size() || !IsFolderLine(m_entries[at].attributes)) return;
    const Entry& entry = m_entries[at];
    if (entry.attributes == kWayUp)
        m_szPath = PathUp();
    else if (entry.attributes != kRoot)
        m_szPath += entry.name + "\\";
    PopulateFilePickCtrl();
    m_lvFiles.SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED);
}

void CFilePickCtrl::OnDblclkFilePickCtrlFiles(NMHDR*, LRESULT* answer) {
    *answer = 0;
    OpenLine(FirstSelectedLine());
}

void CFilePickCtrl::OnKeydownFiles(NMHDR* notification, LRESULT* answer) {
    *answer = 0;
    const int key = reinterpret_cast<const NMLVKEYDOWN*>(notification)->wVKey;
    if (key == VK_SPACE) OpenLine(m_lvFiles.GetNextItem(-1, LVNI_FOCUSED));
    if (key == VK_BACK) OpenLine(0);
}

int CFilePickCtrl::FirstSelectedLine() const {
    return m_lvFiles.GetNextItem(-1, LVNI_SELECTED);
}

void CFilePickCtrl::PickFolder(const Entry& entry) {
    if (!m_bDirOnly) {
        if (!m_bSaveFile) m_szPath = m_szSelected;
        m_szSelected = DlgItemText(kPath);
        return;
    }
    if (entry.attributes == kWayUp)
        m_szSelected = PathUp();
    else if (entry.attributes == kRoot)
        m_szSelected = m_szPath;
    else
        m_szSelected = kv::FormatText("%s%s\\", m_szPath.c_str(), entry.name.c_str());
    m_szPath = m_szSelected;
}

void CFilePickCtrl::PickFiles(const Entry& first) {
    m_szSelected = m_szPath + first.name;
    m_vSelected.clear();
    for (int line = FirstSelectedLine(); line >= 0;
         line = m_lvFiles.GetNextItem(line, LVNI_SELECTED))
        m_vSelected.push_back(m_szPath + m_entries[static_cast<std::size_t>(line)].name);
}

void CFilePickCtrl::OnOK() {
    const std::string path = m_szPath;
    const int line = FirstSelectedLine();
    const Entry* entry = line < 0 ? nullptr : &m_entries[static_cast<std::size_t>(line)];
    if (!entry)
        m_szSelected = DlgItemText(kPath);
    else if (IsFolderLine(entry->attributes))
        PickFolder(*entry);
    else
        PickFiles(*entry);
    if (m_bSaveFile)
        m_szSelected = kv::FormatText("%s\\%s", m_szPath.c_str(), DlgItemText(kFileName).c_str());
    if (m_szSelected.size() >= kPathSize) {
        m_szPath = path;
        AfxMessageBox("The path is too long.");
        return;
    }
    CDialog::OnOK();
}

void CFilePickCtrl::OnCancel() {
    m_szPath = m_szStartPath;
    CDialog::OnCancel();
}

const kv::MessageMap& CFilePickCtrl::Messages() {
    static const kv::MessageEntry kEntries[] = {
        kv::OnControl<&CFilePickCtrl::OnTypeChange>(CBN_SELCHANGE, kTypes),
        kv::OnControl<&CFilePickCtrl::OnDriveChange>(CBN_SELCHANGE, kDrives),
        kv::OnNotify<&CFilePickCtrl::OnDblclkFilePickCtrlFiles>(NM_DBLCLK, kFiles),
        kv::OnNotify<&CFilePickCtrl::OnKeydownFiles>(LVN_KEYDOWN, kFiles),
    };
    static const kv::MessageMap kMap{&CDialog::Messages(), kEntries};
    return kMap;
}
