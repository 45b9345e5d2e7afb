// Block selection files and the list file.

#include <algorithm>
#include <optional>
#include <sstream>

#include "base/foreign_text.h"
#include "base/paths.h"
#include "blocks/blk_ext_dlg.h"
#include "blocks/blk_ext_ids.h"
#include "blocks/block_file.h"
#include "blocks/import_config_dlg.h"
#include "frame/catalogue.h"
#include "frame/import_folder.h"
#include "frame/kvcom/misc.h"
#include "window/dialogs/file_dialog.h"

using namespace kv::blk_ext;
using namespace kv::blocks;

namespace {

constexpr const char* kFilter = "Text files *.txt|*.txt||";
constexpr const char* kExtension = "TXT";
constexpr const char* kReportFolder = "\\REPORT";
constexpr const char* kAppFolder = "\\app";
constexpr const char* kListFileFilter = "Text File |*.txt|All Files |*.*|";
constexpr const char* kListFileTitle = "Import Norvadon PC Qualifiers";

constexpr const char* kNotOpened = "Cannot open file.  Please close the file if opened";
constexpr const char* kWrongFormat = "The file is wrong format";

/// What the user is told of a list file whose areas are not called as the dialog calls them.
struct FormatWords {
    Vocabulary vocabulary;
    const char* words;
};
constexpr FormatWords kFormatWords[] = {
    {Vocabulary::kNames, "Please use area name format as set in ABE control."},
    {Vocabulary::kCodes, "Please use area code format as set in ABE control."},
    {Vocabulary::kMmsCodes, "Please use MMS code format as set in ABE control."},
};

/// None, and the user is told, for a file that cannot be read or is no text.
std::optional<std::string> ReadAll(const std::string& path) {
    auto text = kv::ReadForeignText(path);
    if (text && kv::IsText(*text)) return text;
    AfxMessageBox(text ? kWrongFormat : kNotOpened, 0, 0);
    return std::nullopt;
}

/// The same of its beginning.
std::optional<FileHead> ReadHead(const std::string& path) {
    const std::optional<std::string> text = ReadAll(path);
    if (!text) return std::nullopt;
    return FileHead(*text);
}

}  // namespace

// Import.

void CKvGuiBlkExtDlg::OnButtonImport() {
    kv::EnsureImportFolder(kReportFolder);
    const kv::BackToHome back(kAppFolder);
    CFileDialog dialog(TRUE, kExtension, nullptr, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, kFilter,
                       this);
    if (!kv::AskForFile(dialog, "Open Text File", true)) return;
    ImportWithTabDelimiter(dialog.GetPathName().str());
    RefreshSelectedListBox();
}

/// Whether areas of that kind may join those that are selected.
bool CKvGuiBlkExtDlg::Allows(Vocabulary vocabulary) const {
    return m_pSelection->first.empty() || VocabularyOf(m_sFieldString) == vocabulary;
}

void CKvGuiBlkExtDlg::UseFieldString(const std::string& field) {
    m_sFieldString = field;
    OnChangeAreatype();
}

void CKvGuiBlkExtDlg::ImportWithTabDelimiter(const std::string& file) {
    const std::optional<FileHead> head = ReadHead(file);
    if (!head) return;
    const auto named =
        head->FirstOf({Vocabulary::kNames, Vocabulary::kMmsCodes, Vocabulary::kCodes});
    if (!named) {
        ImportUsersFile(file);
        return;
    }
    const bool allowed =
        std::any_of(kVocabularies.begin(), kVocabularies.end(),
                    [&](Vocabulary each) { return head->Names(each) && Allows(each); });
    if (!allowed) {
        AfxMessageBox(kWrongFormat, 0, 0);
        return;
    }
    const std::string field = FieldStringOf(*named);
    if (field != m_sFieldString) UseFieldString(field);
    ReadImportFile(file, head->Columns());
}

void CKvGuiBlkExtDlg::ImportUsersFile(const std::string& file) {
    CKvImportConfigDlg config(this);
    config.DoModal();
    const std::string field = config.GetAreaType();
    if (!Allows(VocabularyOf(field))) {
        AfxMessageBox(kWrongFormat, 0, 0);
        return;
    }
    UseFieldString(field);
    ReadImportFile(file, config.GetBlockFirst(), config.GetColumnDelimiter(),
                   config.GetExtDelimiter());
}

void CKvGuiBlkExtDlg::ImportWithFixedSizes(const std::string& file) {
    const std::optional<FileHead> head = ReadHead(file);
    if (!head) return;
    const Vocabulary vocabulary = VocabularyOf(m_sFieldString);
    if (vocabulary == Vocabulary::kMmsCodes || !head->Names(vocabulary)) {
        AfxMessageBox(kWrongFormat, 0, 0);
        return;
    }
    ColumnWidths widths = WidthsOf(vocabulary);
    if (head->Columns() < 2) widths.block = 0;
    if (head->Columns() < 3) widths.ext = 0;
    ReadImportFile(file, static_cast<int>(widths.area), static_cast<int>(widths.block),
                   static_cast<int>(widths.ext));
}

bool CKvGuiBlkExtDlg::ReadImportFile(const std::string& file, int columns) {
    const std::optional<std::string> text = ReadAll(file);
    if (!text) return false;
    AddEntries(ReadColumns(*text, columns));
    ReadRelation(*text, m_mapNeighborRel);
    return true;
}

bool CKvGuiBlkExtDlg::ReadImportFile(const std::string& file, bool blockFirst,
                                     std::string columnDelimiter, std::string extDelimiter) {
    const std::optional<std::string> text = ReadAll(file);
    if (!text) return false;
    AddEntries(ReadLines(*text, {columnDelimiter, blockFirst, extDelimiter}));
    if (HasMarker(*text)) ReadRelation(*text, m_mapNeighborRel);
    return true;
}

bool CKvGuiBlkExtDlg::ReadImportFile(const std::string& file, int areaWidth, int blockWidth,
                                     int extWidth) {
    const std::optional<std::string> text = ReadAll(file);
    if (!text) return false;
    const auto width = [](int each) { return static_cast<std::size_t>(std::max(each, 0)); };
    AddEntries(ReadFixed(*text, {width(areaWidth), width(blockWidth), width(extWidth)}));
    return true;
}

void CKvGuiBlkExtDlg::AddEntries(std::vector<kv::ImportedBlock> entries) {
    IndexedSelection selection(*m_pSelection);
    for (kv::ImportedBlock& entry : entries)
        selection.Add(std::move(entry.area), std::move(entry.block));
}

void CKvGuiBlkExtDlg::ImportNeighborBlockInfo(const std::string& file) {
    if (const auto text = ReadAll(file)) ReadRelation(*text, m_mapNeighborRel);
}

// Export.

void CKvGuiBlkExtDlg::OnButtonExport() {
    kv::EnsureImportFolder(kReportFolder);
    kv::MakeFolder(CKvMisc::S_GetImportFilePath().str());
    const kv::BackToHome back(kAppFolder);
    CFileDialog dialog(FALSE, kExtension, nullptr, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, kFilter,
                       this);
    if (!kv::AskForFile(dialog, "Save Text File", true)) return;
    std::ostringstream out;
    ExportWithTabDelimiter(out);
    ExportNeighborBlockInfo(out);
    if (!kv::WriteFileWhole(dialog.GetPathName().str(), out.str())) {
        AfxMessageBox("Could not write to the file", 0, 0);
    }
}

void CKvGuiBlkExtDlg::ExportWithTabDelimiter(std::ostream& out) {
    WriteColumns(out, m_sFieldString, *m_pSelection);
}

void CKvGuiBlkExtDlg::ExportWithFixedSizes(std::ostream& out) {
    WriteFixed(out, m_sFieldString, *m_pSelection);
}

void CKvGuiBlkExtDlg::ExportNeighborBlockInfo(std::ostream& out) {
    WriteRelation(out, m_mapNeighborRel);
}

// The list file.

void CKvGuiBlkExtDlg::OnCheckListFile() {
    Control<CWnd>(kListFileCheck).EnableWindow(TRUE);
    if (IsDlgButtonChecked(kListFileCheck)) {
        OnButtonListFile();
    } else {
        m_bListFile = false;
    }
}

void CKvGuiBlkExtDlg::OnButtonListFile() {
    kv::EnsureImportFolder(std::string(kv::catalogue::kReportFolder) + "\\");
    const kv::BackToHome back(kv::catalogue::kAppFolder);
    CFileDialog dialog(TRUE, nullptr, m_sListFileName.c_str(), OFN_FILEMUSTEXIST | OFN_HIDEREADONLY,
                       kListFileFilter, this);
    if (kv::AskForFile(dialog, kListFileTitle, m_sListFileName.empty()) &&
        !TakeListFile(dialog.GetPathName().str())) {
        return;
    }
    CheckDlgButton(kListFileCheck, m_bListFile);
}

/// False, and the user is told, for a file that cannot be used. One whose areas are called
/// otherwise than the dialog calls them is told of, and taken.
bool CKvGuiBlkExtDlg::TakeListFile(const std::string& file) {
    const std::optional<FileHead> head = ReadHead(file);
    if (!head) return false;
    const auto named = head->FirstOf(kVocabularies);
    if (!named) {
        AfxMessageBox(
            "Norvadon format required. Use import to convert and export user-defined format.", 0,
            0);
        return false;
    }
    for (const FormatWords& each : kFormatWords) {
        if (m_sFieldString == FieldStringOf(each.vocabulary) && *named != each.vocabulary) {
            AfxMessageBox(each.words, 0, 0);
        }
    }
    m_bListFile = true;
    m_sListFileName = file;
    return true;
}
