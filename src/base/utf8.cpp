#include "base/utf8.h"

namespace kv {

namespace {

std::size_t LengthFor(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 1;
}

bool IsCharacter(char32_t code, std::size_t length) {
    const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    const bool half = code >= 0xD800 && code <= 0xDFFF;
    return !overlong && !half && code <= 0x10FFFF;
}

}  // namespace

Utf8Character Utf8At(std::string_view bytes, std::size_t at) {
    const auto lead = static_cast<unsigned char>(bytes[at]);
    const Utf8Character alone{lead, 1};
    const std::size_t length = LengthFor(lead);
    if (length == 1 || bytes.size() - at < length) return alone;
    auto code = static_cast<char32_t>(lead & (0x7F >> length));
    for (const char ch : bytes.substr(at + 1, length - 1)) {
        const auto byte = static_cast<unsigned char>(ch);
        if ((byte & 0xC0) != 0x80) return alone;
        code = code << 6 | (byte & 0x3Fu);
    }
    return IsCharacter(code, length) ? Utf8Character{code, length} : alone;
}

void AppendUtf8(std::string& text, char32_t code) {
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    const auto follow = [&](int shift) { append(0x80 | (code >> shift & 0x3F)); };
    if (code < 0x80) {
        append(code);
    } else if (code < 0x800) {
        append(0xC0 | code >> 6), follow(0);
    } else if (code < 0x10000) {
        append(0xE0 | code >> 12), follow(6), follow(0);
    } else {
        append(0xF0 | code >> 18), follow(12), follow(6), follow(0);
    }
}

}  // namespace kv
