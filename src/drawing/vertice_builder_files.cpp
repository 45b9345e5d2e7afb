// Files and the clipboard of the vertices builder.

#include <array>

#include "base/text.h"
#include "controls/file_pick_ctrl.h"
#include "drawing/counting.h"
#include "drawing/vertex_row.h"
#include "drawing/vertice_builder.h"
#include "drawing/vertice_builder_ids.h"
#include "window/desktop.h"
#include "window/dialogs/file_dialog.h"
#include "window/window_system.h"

using namespace kv::vertice_builder;
using kv::vertices::Pair;

bool CKvGuiVerticeBuilder::ReadLine(CFile* pFile, std::string& strLine) {
    const auto next = [pFile] {
        unsigned char byte = 0;
        return pFile->Read(&byte, 1) == 1 ? int{byte} : -1;
    };
    return kv::vertices::ReadRow(next, strLine);
}

/// False, and the rows stay, where the file ends ahead of its length.
bool CKvGuiVerticeBuilder::ReadRows(CFile& file) {
    std::vector<std::string> rows;
    std::uint64_t bytes = 0;
    const auto next = [&] {
        unsigned char byte = 0;
        if (file.Read(&byte, 1) != 1) return -1;
        ++bytes;
        return int{byte};
    };
    std::string line;
    bool last = false;
    while (!last) {
        last = kv::vertices::ReadRow(next, line);
        if (!line.empty()) rows.push_back(line);
    }
    if (bytes != file.GetLength()) return false;
    m_listXY.ResetContent();
    for (const std::string& row : rows) {
        AddIfNew(row);
        EnableButton(kAccept, TRUE);
        Changed();
    }
    return true;
}

void CKvGuiVerticeBuilder::OnButtonLoadFile() {
    CFilePickCtrl picker(this);
    picker.SetStartPath("C:\\");
    {
        const kv::drawing::Counting moves(m_nMovesFocus);
        if (picker.DoModal("Select Source Folder") != IDOK) return;
    }
    std::array<char, kv::file_pick::kPathSize> path{};
    picker.GetSelectedItem(path.data());
    CFile file;
    if (!file.Open(path.data(), CFile::modeRead) || !ReadRows(file)) {
        const kv::drawing::Counting moves(m_nMovesFocus);
        AfxMessageBox(CString(path.data()) + "\nThis file cannot be read.");
        return;
    }
    file.Close();
    EnableButton(kSave, HasRows());
    if (HasRows()) OverWriteFormat();
}

bool CKvGuiVerticeBuilder::WriteRows(const CString& path) {
    CFile file;
    if (!file.Open(path, CFile::modeCreate | CFile::modeWrite)) return false;
    std::string text;
    const int count = m_listXY.GetCount();
    for (int i = 0; i < count; ++i)
        text += RowText(i) + "\r\n";
    const bool written = file.Write(text.data(), static_cast<unsigned int>(text.size()));
    return file.Close() && written;
}

void CKvGuiVerticeBuilder::OnButtonSaveFile() {
    const kv::drawing::Counting moves(m_nMovesFocus);
    CFileDialog dialog(FALSE, nullptr, nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST,
                       "Text File |*.txt||", this);
    dialog.m_ofn.lpstrTitle = "Custom File";
    dialog.m_ofn.lpstrInitialDir = "\\";
    if (dialog.DoModal() == IDOK) {
        CString path = dialog.GetPathName();
        if (kv::ToUpper(path.str()).find(".TXT") == std::string::npos) path += ".txt";
        CFileStatus there;
        const bool replaces = CFile::GetStatus(path, there);
        const CString question = path + " exists already.\nDo you want to replace it?";
        if ((!replaces || AfxMessageBox(question, MB_YESNO) == IDYES) && !WriteRows(path)) {
            AfxMessageBox(path + "\nThis file cannot be written.");
        }
    }
}

// The clipboard.

LRESULT CKvGuiVerticeBuilder::Box::OnPaste(WPARAM, LPARAM) {
    auto* builder = dynamic_cast<CKvGuiVerticeBuilder*>(GetParent());
    const std::string text = kv::WindowSystem::Get().GetDesktop().ClipboardText();
    return builder && builder->TakePaste(text) ? 0 : Default();
}

const kv::MessageMap& CKvGuiVerticeBuilder::Box::Messages() {
    static const kv::MessageEntry kEntries[] = {kv::OnMessage<&Box::OnPaste>(WM_PASTE)};
    static const kv::MessageMap kMap{&CEdit::Messages(), kEntries};
    return kMap;
}

/// False for a text that is pasted as it is.
bool CKvGuiVerticeBuilder::TakePaste(const std::string& text) {
    std::vector<std::string> lines;
    for (const std::string& line : kv::SplitLines(kv::ReplaceAll(text, "\r", "\n"))) {
        if (!kv::TrimSpace(line).empty()) lines.push_back(line);
    }
    if (lines.size() > 1) return AskForRows(lines);
    const auto pair = lines.empty() ? std::nullopt
                      : m_bXYMode   ? kv::vertices::ReadXy(lines.front())
                                    : kv::vertices::ReadLatLon(lines.front());
    if (pair) Fill(*pair);
    return pair.has_value();
}

bool CKvGuiVerticeBuilder::AskForRows(const std::vector<std::string>& lines) {
    std::vector<std::string> rows;
    for (const std::string& line : lines) {
        const auto pair = m_bXYMode ? kv::vertices::ReadXy(line) : kv::vertices::ReadLatLon(line);
        if (!pair) continue;
        const bool decimal = m_bXYMode || m_bDegDeg;
        rows.push_back(decimal ? kv::vertices::PairRow(*pair) : kv::vertices::DmsRow(*pair));
    }
    if (rows.empty()) return false;
    std::string question = "Add " + std::to_string(rows.size()) + " points to the list?";
    if (rows.size() < lines.size()) {
        question += "\n" + std::to_string(lines.size() - rows.size()) +
                    " of the lines are no coordinates and are left out.";
    }
    {
        const kv::drawing::Counting moves(m_nMovesFocus);
        if (AfxMessageBox(question.c_str(), MB_YESNO) != IDYES) return true;
    }
    bool added = false;
    for (const std::string& row : rows)
        added = AddIfNew(row) || added;
    OnSelchangeLISTXYPos();
    if (added) Changed();
    return true;
}

void CKvGuiVerticeBuilder::Fill(const Pair& pair) {
    if (m_bXYMode) {
        m_editX.SetWindowText(kv::FormatText("%.6f", pair.first).c_str());
        m_editY.SetWindowText(kv::FormatText("%.6f", pair.second).c_str());
        return;
    }
    // As the row of this pair is shown.
    const std::string row = m_bDegDeg ? kv::vertices::PairRow(pair) : kv::vertices::DmsRow(pair);
    ShowAngles(row);
    if (!m_bDegDeg) EnableMinutesAndSeconds(true, true);
}
