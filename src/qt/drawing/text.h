#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <vector>

/// Texts of the windowing layer, which are bytes, and Qt's, which are UTF-16.
namespace kv::qt {

/// UTF-8; a byte that is none stands for the Latin character of its number.
QString ToQString(std::string_view bytes);
std::string ToBytes(const QString& text);

/// A text as Qt shows it, which knows to which byte each of its characters belongs.
class PlacedText {
public:
    /// With `lines`, CR LF is one line feed.
    PlacedText(std::string_view bytes, bool lines);

    const QString& Text() const { return text_; }
    /// Index of the character that begins at a byte or holds it.
    int IndexOf(int byte) const;
    int ByteOf(int index) const;

private:
    QString text_;
    int size_;
    /// Of each character its byte; empty where they are the same.
    std::vector<int> bytes_;
};

/// The text without the ampersand that marks a mnemonic.
QString PlainText(const std::string& text);
/// The text with each ampersand doubled, so that Qt makes no shortcut of it.
QString Escaped(const QString& plain);

}  // namespace kv::qt
