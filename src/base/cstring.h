#pragma once

#include <compare>
#include <iosfwd>
#include <string>

#include "base/export.h"

using LPCTSTR = const char*;

/// The framework's text: bytes, whatever they mean, with a length of their own.
///
/// Positions and counts are bytes. A position or count outside the text is cut to it and never an
/// error. Upper and lower case are those of ASCII letters; other bytes pass through.
class KVGUICTL_API CString {
public:
    CString() = default;
    /// Null counts as empty.
    CString(LPCTSTR text);
    CString(const std::string& text) : m_text(text) {}
    CString(std::string&& text) : m_text(std::move(text)) {}
    /// `count` times the character; a negative count is 0.
    CString(char ch, int count = 1);

    CString& operator=(LPCTSTR text);
    CString& operator=(const std::string& text);
    CString& operator=(char ch);

    operator LPCTSTR() const { return m_text.c_str(); }
    const std::string& str() const { return m_text; }
    LPCTSTR GetString() const { return m_text.c_str(); }

    int GetLength() const { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    /// The byte at a place; 0 outside the text.
    char GetAt(int index) const;
    char operator[](int index) const { return GetAt(index); }
    /// Does nothing outside the text.
    void SetAt(int index, char ch);

    CString& operator+=(const CString& text);
    CString& operator+=(LPCTSTR text);
    CString& operator+=(char ch);

    /// Below 0, 0 or above 0, by byte.
    int Compare(LPCTSTR text) const;
    int CompareNoCase(LPCTSTR text) const;

    /// First place at or behind `start` where the character or text stands; -1 when there is none,
    /// and for a start outside the text. An empty text stands at `start`.
    int Find(char ch, int start = 0) const;
    int Find(LPCTSTR text, int start = 0) const;
    /// Last place of the character, or -1.
    int ReverseFind(char ch) const;
    /// First place of any of the characters, or -1.
    int FindOneOf(LPCTSTR set) const;

    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;

    /// Without an argument they take away white space: blank, tab, line feed, vertical tab, form
    /// feed, carriage return.
    CString& TrimLeft();
    CString& TrimLeft(char ch);
    CString& TrimLeft(LPCTSTR set);
    CString& TrimRight();
    CString& TrimRight(char ch);
    CString& TrimRight(LPCTSTR set);
    CString& Trim();
    CString& Trim(char ch);
    CString& Trim(LPCTSTR set);

    CString& MakeUpper();
    CString& MakeLower();

    /// Return how many were replaced or removed.
    int Replace(char from, char to);
    int Replace(LPCTSTR from, LPCTSTR to);
    int Remove(char ch);
    /// Return the new length.
    int Insert(int index, char ch);
    int Insert(int index, LPCTSTR text);
    int Delete(int index, int count = 1);

    /// As printf, whatever the locale; exponents have at least three digits. A `CString` among the
    /// arguments is passed as `GetString()`.
    void Format(LPCTSTR format, ...) __attribute__((format(printf, 2, 3)));

    /// A buffer to write to, of at least that many characters and a closing 0, beginning with the
    /// text. `ReleaseBuffer` ends its use and must follow: it takes the first `length` characters,
    /// with -1 what stands ahead of the first 0.
    char* GetBuffer(int minLength = 0);
    void ReleaseBuffer(int length = -1);

    friend bool operator==(const CString& a, const CString& b) { return a.m_text == b.m_text; }
    friend bool operator==(const CString& a, LPCTSTR b) { return a.Compare(b) == 0; }
    friend std::strong_ordering operator<=>(const CString& a, const CString& b) {
        return a.m_text.compare(b.m_text) <=> 0;
    }
    friend std::strong_ordering operator<=>(const CString& a, LPCTSTR b) {
        return a.Compare(b) <=> 0;
    }

private:
    std::string m_text;
};

KVGUICTL_API CString operator+(const CString& a, const CString& b);
KVGUICTL_API CString operator+(const CString& a, LPCTSTR b);
KVGUICTL_API CString operator+(LPCTSTR a, const CString& b);
KVGUICTL_API CString operator+(const CString& a, char b);
KVGUICTL_API CString operator+(char a, const CString& b);
KVGUICTL_API std::ostream& operator<<(std::ostream& out, const CString& text);
