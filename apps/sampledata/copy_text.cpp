#include "sampledata/copy_text.h"

namespace kv::sample {
namespace {

/// A cell as COPY reads it in its text format.
void AppendCell(std::string& line, const std::string& cell) {
    if (cell.empty()) {
        line += "\\N";
        return;
    }
    for (const char ch : cell) {
        switch (ch) {
            case '\\':
                line += "\\\\";
                break;
            case '\t':
                line += "\\t";
                break;
            case '\n':
                line += "\\n";
                break;
            case '\r':
                line += "\\r";
                break;
            default:
                line += ch;
        }
    }
}

}  // namespace

void AppendCopyLine(std::string& lines, const Row& row) {
    for (size_t i = 0; i < row.size(); ++i) {
        if (i > 0) lines += '\t';
        AppendCell(lines, row[i]);
    }
    lines += '\n';
}

}  // namespace kv::sample
