#include "qt/drawing/text.h"

#include <algorithm>

#include "base/utf8.h"
#include "window/drawing/text_metrics.h"

namespace kv::qt {

namespace {

bool IsAscii(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char ch) { return static_cast<unsigned char>(ch) < 0x80; });
}

template <typename Visit>
void ForEachCharacter(std::string_view bytes, Visit visit) {
    for (std::size_t at = 0; at < bytes.size();) {
        const Utf8Character character = Utf8At(bytes, at);
        visit(character.code, static_cast<int>(at));
        at += character.length;
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
    ForEachCharacter(bytes, [&](char32_t character, int) { Append(text, character); });
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
    ForEachCharacter(bytes, [&](char32_t character, int byte) {
        const auto next = static_cast<std::size_t>(byte) + 1;
        if (lines && character == '\n' && byte > 0 &&
            bytes[static_cast<std::size_t>(byte) - 1] == '\r') {
            return;
        }
        const bool pair = lines && character == '\r' && next < bytes.size() && bytes[next] == '\n';
        Append(text_, pair ? U'\n' : character);
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
