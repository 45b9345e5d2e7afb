#include "base/file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <exception>
#include <string_view>
#include <utility>

#include "base/file_fault.h"

namespace {

std::string_view View(LPCTSTR text) {
    return text ? std::string_view(text) : std::string_view();
}

bool IsRoot(const std::string& absolute) {
    return absolute.size() == 3 && absolute[1] == ':';
}

unsigned char AttributesOf(const std::string& name, const std::string& native,
                           const struct stat& status) {
    unsigned char attributes = CFile::normal;
    if (S_ISDIR(status.st_mode)) attributes |= CFile::directory;
    if (access(native.c_str(), W_OK) != 0) attributes |= CFile::readOnly;
    if (name.starts_with('.')) attributes |= CFile::hidden;
    return attributes;
}

}  // namespace

CFile::~CFile() {
    if (std::uncaught_exceptions() > m_nExceptions) m_pWriter.reset();
    Close();
}

bool CFile::Open(LPCTSTR name, unsigned int flags) {
    Close();
    const std::string_view path = View(name);
    const bool writes = (flags & (modeWrite | modeReadWrite)) != 0;
    const bool creates = (flags & modeCreate) != 0;
    if (writes != creates) return false;
    if (creates ? !OpenNew(path) : !OpenExisting(path)) return false;
    m_path = kv::AbsolutePath(path);
    return true;
}

bool CFile::OpenNew(std::string_view path) {
    auto writer = std::make_unique<kv::FileWriter>();
    if (!writer->Open(path)) return false;
    m_pWriter = std::move(writer);
    m_nExceptions = std::uncaught_exceptions();
    return true;
}

bool CFile::OpenExisting(std::string_view path) {
    m_pRead = kv::OpenToRead(path);
    struct stat status {};
    if (m_pRead && fstat(fileno(m_pRead), &status) == 0)
        m_length = static_cast<std::uint64_t>(status.st_size);
    return m_pRead != nullptr;
}

unsigned int CFile::Read(void* buffer, unsigned int count) {
    if (!m_pRead || kv::FileCallFails()) return 0;
    return static_cast<unsigned int>(std::fread(buffer, 1, count, m_pRead));
}

bool CFile::Write(const void* buffer, unsigned int count) {
    const std::string_view bytes(static_cast<const char*>(buffer), count);
    if (!m_pWriter || !m_pWriter->Write(bytes)) return false;
    m_length += count;
    return true;
}

bool CFile::Close() {
    m_length = 0;
    if (m_pRead) std::fclose(std::exchange(m_pRead, nullptr));
    const std::unique_ptr<kv::FileWriter> writer = std::move(m_pWriter);
    return !writer || writer->Commit();
}

bool CFile::GetStatus(LPCTSTR name, CFileStatus& status) {
    const std::string native = kv::ToNative(View(name));
    struct stat found {};
    if (stat(native.c_str(), &found) != 0) return false;
    status.m_size = static_cast<std::uint64_t>(found.st_size);
    status.m_attribute = AttributesOf(kv::NameOf(native), native, found);
    status.m_szFullName = kv::AbsolutePath(View(name));
    return true;
}

bool CFile::Remove(LPCTSTR name) {
    return kv::RemoveFile(View(name));
}

bool CFileFind::FindFile(LPCTSTR pattern) {
    Close();
    const std::string_view wanted = View(pattern).empty() ? "*.*" : View(pattern);
    const std::string name = kv::NameOf(wanted);
    const std::string rule = name == "*.*" ? "*" : name;
    const std::string folder = kv::FolderOf(wanted);
    m_folder = kv::AbsolutePath(folder.empty() ? "." : folder);
    if (!kv::IsFolder(m_folder)) return false;
    const bool dots = rule.find_first_of("*?") != std::string::npos && !IsRoot(m_folder);
    for (const char* self : {".", ".."}) {
        if (dots && kv::FitsPattern(self, rule)) m_entries.push_back({self, true});
    }
    for (kv::FolderEntry& entry : kv::ListFolder(m_folder)) {
        if (kv::FitsPattern(entry.name, rule)) m_entries.push_back(std::move(entry));
    }
    return !m_entries.empty();
}

bool CFileFind::FindNextFile() {
    if (m_next < m_entries.size()) ++m_next;
    return m_next < m_entries.size();
}

void CFileFind::Close() {
    m_folder.clear();
    m_entries.clear();
    m_next = 0;
}

const kv::FolderEntry* CFileFind::Current() const {
    return m_next > 0 ? &m_entries[m_next - 1] : nullptr;
}

CString CFileFind::GetFileName() const {
    return Current() ? Current()->name : std::string();
}

CString CFileFind::GetFilePath() const {
    return Current() ? kv::JoinPath(m_folder, Current()->name) : std::string();
}

CString CFileFind::GetFileTitle() const {
    return kv::TitleOf(GetFileName().str());
}

bool CFileFind::IsDirectory() const {
    return Current() && Current()->isFolder;
}

bool CFileFind::IsDots() const {
    return Current() && (Current()->name == "." || Current()->name == "..");
}
