#include "qt/drawing/text.h"

#include <algorithm>

#include "window/drawing/text_metrics.h"

namespace kv::qt {

namespace {

bool IsAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char ch) { return static_cast<unsigned char>(ch) < 0x80; });
}

struct Decoded {
    char32_t character;
    int length;
};

bool IsContinuation(std::string_view bytes, std::size_t at) {
    return at < bytes.size() && (static_cast<unsigned char>(bytes[at]) & 0xC0) == 0x80;
}

/// The character that begins at a place; a byte that begins no sequence is one by itself.
Decoded DecodeAt(std::string_view bytes, std::size_t at) {
    const auto lead = static_cast<unsigned char>(bytes[at]);
    const int length = lead >= 0xF0 && lead <= 0xF4   ? 4
                       : lead >= 0xE0 && lead <= 0xEF ? 3
                       : lead >= 0xC2 && lead <= 0xDF ? 2
                                                      : 1;
    if (length == 1) return {lead, 1};
    auto character = static_cast<char32_t>(lead & (0x7F >> length));
    for (int i = 1; i < length; ++i) {
        const std::size_t next = at + static_cast<std::size_t>(i);
        if (!IsContinuation(bytes, next)) return {lead, 1};
        character = (character << 6) | (static_cast<unsigned char>(bytes[next]) & 0x3Fu);
    }
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    const bool overlong =
        (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    if (surrogate || overlong || character > 0x10FFFF) return {lead, 1};
    return {character, length};
}

template <typename Visit>
void ForEachCharacter(std::string_view bytes, Visit visit) {
    for (std::size_t at = 0; at < bytes.size();) {
        const Decoded decoded = DecodeAt(bytes, at);
        visit(decoded, static_cast<int>(at));
        at += static_cast<std::size_t>(decoded.length);
    }
}

void Append(QString& text, char32_t character) {
    if (QChar::requiresSurrogates(character)) {
        text += QChar(QChar::highSurrogate(character));
        text += QChar(QChar::lowSurrogate(character));
    } else {
        text += QChar(static_cast<char16_t>(character));
    }
}

}  // namespace

QString ToQString(std::string_view bytes) {
    const auto size = static_cast<qsizetype>(bytes.size());
    if (IsAscii(bytes)) return QString::fromLatin1(bytes.data(), size);
    QString text;
    text.reserve(size);
    ForEachCharacter(bytes, [&](Decoded decoded, int) { Append(text, decoded.character); });
    return text;
}

std::string ToBytes(const QString& text) {
    return text.toStdString();
}

PlacedText::PlacedText(std::string_view bytes, bool lines) : size_(static_cast<int>(bytes.size())) {
    const bool same = IsAscii(bytes) && (!lines || bytes.find("\r\n") == std::string_view::npos);
    if (same) {
        text_ = ToQString(bytes);
        return;
    }
    ForEachCharacter(bytes, [&](Decoded decoded, int byte) {
        const auto next = static_cast<std::size_t>(byte) + 1;
        if (lines && decoded.character == '\n' && byte > 0 &&
            bytes[static_cast<std::size_t>(byte) - 1] == '\r') {
            return;
        }
        const bool pair =
            lines && decoded.character == '\r' && next < bytes.size() && bytes[next] == '\n';
        Append(text_, pair ? U'\n' : decoded.character);
        bytes_.resize(static_cast<std::size_t>(text_.size()), byte);
    });
}

int PlacedText::IndexOf(int byte) const {
    if (bytes_.empty()) return std::clamp(byte, 0, static_cast<int>(text_.size()));
    if (byte >= size_) return static_cast<int>(text_.size());
    const auto behind = std::upper_bound(bytes_.begin(), bytes_.end(), byte);
    if (behind == bytes_.begin()) return 0;
    // The first of the characters of that byte.
    const auto first = std::lower_bound(bytes_.begin(), bytes_.end(), *std::prev(behind));
    return static_cast<int>(first - bytes_.begin());
}

int PlacedText::ByteOf(int index) const {
    if (index >= text_.size()) return size_;
    if (bytes_.empty() || index < 0) return std::max(index, 0);
    return bytes_[static_cast<std::size_t>(index)];
}

QString PlainText(const std::string& text) {
    return ToQString(WithoutMnemonic(text));
}

QString Escaped(const QString& plain) {
    QString escaped = plain;
    return escaped.replace(u'&', QStringLiteral("&&"));
}

}  // namespace kv::qt
