#pragma once

#include <string>

#include "base/export.h"
#include "window/drawing/font.h"
#include "window/drawing/surface.h"

/// Text in the layer's own font: what is measured and drawn where no platform gives its fonts.
namespace kv {

/// Extent of one line of text. Its height is the font's; bold text is wider by a pixel a character.
KVGUICTL_API CSize MeasureText(const std::string& text, const Font& font);
/// The same with the place of the base line.
KVGUICTL_API TextSize MeasureLine(const std::string& text, const Font& font);

/// The text as it is shown: without the ampersand that marks a mnemonic, and with one for each two.
KVGUICTL_API std::string WithoutMnemonic(const std::string& text);
/// The character behind the first ampersand that marks one, as it stands; 0 where there is none.
KVGUICTL_API char MnemonicOf(const std::string& text);

}  // namespace kv
