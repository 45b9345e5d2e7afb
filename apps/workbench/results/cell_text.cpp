#include "workbench/results/cell_text.h"

#include "base/utf8.h"

namespace workbench {

std::string CellInUtf8(std::string_view bytes) {
    std::string text;
    for (std::size_t at = 0; at < bytes.size();) {
        const kv::Utf8Character character = kv::Utf8At(bytes, at);
        kv::AppendUtf8(text, character.code);
        at += character.length;
    }
    return text;
}

}  // namespace workbench
