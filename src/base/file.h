#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/cstring.h"
#include "base/export.h"
#include "base/paths.h"

struct CFileStatus {
    std::uint64_t m_size = 0;
    unsigned char m_attribute = 0;  ///< of `CFile::Attribute`
    CString m_szFullName;           ///< absolute
};

/// A file of bytes: read from, or made anew.
///
/// A file that is made stands beside its target until `Close` and takes its place there; if writing
/// failed the target is what it was.
class KVGUICTL_API CFile {
public:
    enum OpenFlags : unsigned int {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeCreate = 0x1000,
        typeText = 0x4000,
        typeBinary = 0x8000,
    };
    enum Attribute : unsigned char {
        normal = 0x00,
        readOnly = 0x01,
        hidden = 0x02,
        directory = 0x10,
    };

    CFile() = default;
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;
    /// Closes. While an exception passes by, what was being written is dropped.
    ~CFile();

    /// `modeRead` alone opens a file that is there; `modeCreate` with a writing mode makes one, and
    /// empties one that is there. Sharing and type flags change nothing. False when that fails, and
    /// for a writing mode without `modeCreate`.
    bool Open(LPCTSTR name, unsigned int flags);
    /// How many bytes it put into the buffer; fewer than asked for only at the end.
    unsigned int Read(void* buffer, unsigned int count);
    bool Write(const void* buffer, unsigned int count);
    std::uint64_t GetLength() const { return m_length; }
    CString GetFilePath() const { return m_path; }
    /// False when something that was written did not reach the file. Harmless when closed.
    bool Close();

    static bool GetStatus(LPCTSTR name, CFileStatus& status);
    static bool Remove(LPCTSTR name);

private:
    bool OpenNew(std::string_view path);
    bool OpenExisting(std::string_view path);

    std::FILE* m_pRead = nullptr;
    std::unique_ptr<kv::FileWriter> m_pWriter;
    /// How many passed by when it was opened.
    int m_nExceptions = 0;
    std::uint64_t m_length = 0;
    CString m_path;
};

/// Finds the files of a folder by a pattern with "*" and "?", without regard to case.
///
/// `FindFile` tells whether there is any; each `FindNextFile` goes to the next one, the first
/// included, and tells whether there are more behind it.
class KVGUICTL_API CFileFind {
public:
    bool FindFile(LPCTSTR pattern = nullptr);
    bool FindNextFile();
    void Close();

    /// Of the file that `FindNextFile` went to; "" and false ahead of it.
    CString GetFileName() const;
    CString GetFilePath() const;
    CString GetFileTitle() const;
    bool IsDirectory() const;
    /// Whether it is "." or "..", which lead the listing of any folder but a drive's root.
    bool IsDots() const;

private:
    const kv::FolderEntry* Current() const;

    std::string m_folder;
    std::vector<kv::FolderEntry> m_entries;
    std::size_t m_next = 0;
};
