#include "base/cstring.h"

#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <ostream>
#include <string_view>

#include "base/text.h"

namespace {

constexpr const char* kWhiteSpace = " \t\n\v\f\r";

std::string_view View(LPCTSTR text) {
    return text ? std::string_view(text) : std::string_view();
}

int Position(std::size_t place) {
    return place == std::string::npos ? -1 : static_cast<int>(place);
}

void CutLeft(std::string& text, std::string_view set) {
    text.erase(0, std::min(text.find_first_not_of(set), text.size()));
}

void CutRight(std::string& text, std::string_view set) {
    text.erase(text.find_last_not_of(set) + 1);
}

}  // namespace

CString::CString(LPCTSTR text) : m_text(View(text)) {}

CString::CString(char ch, int count) : m_text(static_cast<std::size_t>(std::max(count, 0)), ch) {}

CString& CString::operator=(LPCTSTR text) {
    m_text = View(text);
    return *this;
}

CString& CString::operator=(const std::string& text) {
    m_text = text;
    return *this;
}

CString& CString::operator=(char ch) {
    m_text.assign(1, ch);
    return *this;
}

char CString::GetAt(int index) const {
    return index >= 0 && index < GetLength() ? m_text[static_cast<std::size_t>(index)] : '\0';
}

void CString::SetAt(int index, char ch) {
    if (index >= 0 && index < GetLength()) m_text[static_cast<std::size_t>(index)] = ch;
}

CString& CString::operator+=(const CString& text) {
    m_text += text.m_text;
    return *this;
}

CString& CString::operator+=(LPCTSTR text) {
    m_text += View(text);
    return *this;
}

CString& CString::operator+=(char ch) {
    m_text += ch;
    return *this;
}

int CString::Compare(LPCTSTR text) const {
    return m_text.compare(View(text));
}

int CString::CompareNoCase(LPCTSTR text) const {
    return kv::CompareNoCase(m_text, View(text));
}

int CString::Find(char ch, int start) const {
    if (start < 0 || start > GetLength()) return -1;
    return Position(m_text.find(ch, static_cast<std::size_t>(start)));
}

int CString::Find(LPCTSTR text, int start) const {
    if (!text || start < 0 || start > GetLength()) return -1;
    return Position(m_text.find(text, static_cast<std::size_t>(start)));
}

int CString::ReverseFind(char ch) const {
    return Position(m_text.rfind(ch));
}

int CString::FindOneOf(LPCTSTR set) const {
    return Position(m_text.find_first_of(View(set)));
}

CString CString::Mid(int first) const {
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const {
    const int from = std::clamp(first, 0, GetLength());
    return m_text.substr(static_cast<std::size_t>(from),
                         static_cast<std::size_t>(std::max(count, 0)));
}

CString CString::Left(int count) const {
    return Mid(0, count);
}

CString CString::Right(int count) const {
    const int taken = std::clamp(count, 0, GetLength());
    return Mid(GetLength() - taken, taken);
}

CString& CString::TrimLeft() {
    return TrimLeft(kWhiteSpace);
}

CString& CString::TrimLeft(char ch) {
    CutLeft(m_text, std::string_view(&ch, 1));
    return *this;
}

CString& CString::TrimLeft(LPCTSTR set) {
    CutLeft(m_text, View(set));
    return *this;
}

CString& CString::TrimRight() {
    return TrimRight(kWhiteSpace);
}

CString& CString::TrimRight(char ch) {
    CutRight(m_text, std::string_view(&ch, 1));
    return *this;
}

CString& CString::TrimRight(LPCTSTR set) {
    CutRight(m_text, View(set));
    return *this;
}

CString& CString::Trim() {
    return TrimRight().TrimLeft();
}

CString& CString::Trim(char ch) {
    return TrimRight(ch).TrimLeft(ch);
}

CString& CString::Trim(LPCTSTR set) {
    return TrimRight(set).TrimLeft(set);
}

CString& CString::MakeUpper() {
    m_text = kv::ToUpper(m_text);
    return *this;
}

CString& CString::MakeLower() {
    m_text = kv::ToLower(m_text);
    return *this;
}

int CString::Replace(char from, char to) {
    const auto count = std::count(m_text.begin(), m_text.end(), from);
    std::replace(m_text.begin(), m_text.end(), from, to);
    return from == to ? 0 : static_cast<int>(count);
}

int CString::Replace(LPCTSTR from, LPCTSTR to) {
    const std::string_view pattern = View(from);
    if (pattern.empty()) return 0;
    int count = 0;
    for (std::size_t at = m_text.find(pattern); at != std::string::npos; ++count) {
        at = m_text.find(pattern, at + pattern.size());
    }
    m_text = kv::ReplaceAll(m_text, pattern, View(to));
    return count;
}

int CString::Remove(char ch) {
    return static_cast<int>(std::erase(m_text, ch));
}

int CString::Insert(int index, char ch) {
    m_text.insert(static_cast<std::size_t>(std::clamp(index, 0, GetLength())), 1, ch);
    return GetLength();
}

int CString::Insert(int index, LPCTSTR text) {
    m_text.insert(static_cast<std::size_t>(std::clamp(index, 0, GetLength())), View(text));
    return GetLength();
}

int CString::Delete(int index, int count) {
    m_text.erase(static_cast<std::size_t>(std::clamp(index, 0, GetLength())),
                 static_cast<std::size_t>(std::max(count, 0)));
    return GetLength();
}

void CString::Format(LPCTSTR format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    m_text = kv::FormatTextV(format, arguments);
    va_end(arguments);
}

char* CString::GetBuffer(int minLength) {
    m_text.resize(static_cast<std::size_t>(std::max(minLength, GetLength())));
    return m_text.data();
}

void CString::ReleaseBuffer(int length) {
    const std::size_t end = length < 0 ? std::strlen(m_text.c_str())
                                       : static_cast<std::size_t>(std::min(length, GetLength()));
    m_text.resize(end);
}

CString operator+(const CString& a, const CString& b) {
    return CString(a) += b;
}
CString operator+(const CString& a, LPCTSTR b) {
    return CString(a) += b;
}
CString operator+(LPCTSTR a, const CString& b) {
    return CString(a) += b;
}
CString operator+(const CString& a, char b) {
    return CString(a) += b;
}
CString operator+(char a, const CString& b) {
    return CString(a) += b;
}

std::ostream& operator<<(std::ostream& out, const CString& text) {
    return out << text.str();
}
