#include <algorithm>

#include "base/text.h"
#include "blocks/block_file.h"
#include "blocks/block_file_marker.h"

namespace kv::blocks {

namespace {

/// The lines of a file behind its header.
class EntryLines {
public:
    explicit EntryLines(std::string_view text) : rest_(text) { Take(); }

    /// The next line, with its line feed; none where the entries end.
    std::optional<std::string_view> Next() {
        constexpr std::size_t kShortest = 3;
        const std::string_view line = Take();
        if (line.size() < kShortest) return std::nullopt;
        return line;
    }

private:
    /// Empty where no line feed is left.
    std::string_view Take() {
        const std::size_t end = rest_.find('\n');
        if (end == std::string_view::npos) {
            rest_ = {};
            return {};
        }
        const std::string_view line = rest_.substr(0, end + 1);
        rest_.remove_prefix(end + 1);
        return line;
    }

    std::string_view rest_;
};

/// Entries for each line that `read` turns into one; it answers none to end.
template <typename Read>
std::vector<ImportedBlock> ReadEntries(std::string_view text, Read read) {
    std::vector<ImportedBlock> entries;
    EntryLines lines(text);
    while (const auto line = lines.Next()) {
        std::optional<ImportedBlock> entry = read(*line);
        if (!entry) break;
        entries.push_back(std::move(*entry));
    }
    return entries;
}

std::string_view TrimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// What stands ahead of the next tab, which goes with it; the rest where there is none.
std::string_view CutAtTab(std::string_view& line) {
    const std::size_t tab = line.find('\t');
    const std::string_view field = line.substr(0, tab);
    line.remove_prefix(tab == std::string_view::npos ? line.size() : tab + 1);
    return TrimBlanks(field);
}

/// As many characters as the width says, with the one behind them.
std::string_view CutAtWidth(std::string_view& line, std::size_t width) {
    const std::string_view field = line.substr(0, width);
    line.remove_prefix(std::min(line.size(), width + 1));
    return TrimBlanks(field);
}

ImportedBlock EntryOf(std::string_view area, std::string_view block, std::string_view ext) {
    ImportedBlock entry{ToUpper(area), std::string(block)};
    entry.block += ext;
    return entry;
}

/// Cuts words off a text, as a stream reads them.
class Words {
public:
    explicit Words(std::string_view text) : rest_(text) {}

    /// Empty at the end.
    std::string_view Next() {
        const auto begin = std::find_if_not(rest_.begin(), rest_.end(), IsSpace);
        const auto end = std::find_if(begin, rest_.end(), IsSpace);
        const std::string_view word(begin, end);
        rest_ = std::string_view(end, rest_.end());
        return word;
    }

private:
    std::string_view rest_;
};

bool IsKey(std::string_view word) {
    return word.starts_with('[') && word.find(']') == word.size() - 1;
}

std::string WithoutBrackets(std::string_view word) {
    return ReplaceAll(ReplaceAll(word, "[", ""), "]", "");
}

std::string WithBlanks(std::string_view word) {
    return ReplaceAll(word, kBlankMark, " ");
}

}  // namespace

std::vector<ImportedBlock> ReadColumns(std::string_view text, int columns) {
    return ReadEntries(text, [columns](std::string_view line) -> std::optional<ImportedBlock> {
        const std::string_view area = CutAtTab(line);
        const std::string_view block = columns >= 2 ? CutAtTab(line) : "";
        const std::string_view ext = columns >= 3 ? CutAtTab(line) : "";
        return EntryOf(area, block, ext);
    });
}

std::vector<ImportedBlock> ReadLines(std::string_view text, const ImportFormat& format) {
    return ReadEntries(text, [&format](std::string_view line) -> std::optional<ImportedBlock> {
        line.remove_suffix(1);
        return ReadImportLine(line, format);
    });
}

std::vector<ImportedBlock> ReadFixed(std::string_view text, const ColumnWidths& widths) {
    return ReadEntries(text, [&widths](std::string_view line) -> std::optional<ImportedBlock> {
        line.remove_suffix(1);
        if (line.starts_with(kMarker)) return std::nullopt;
        const std::string_view area = CutAtWidth(line, widths.area);
        if (area.empty()) return std::nullopt;
        const std::string_view block = CutAtWidth(line, widths.block);
        const std::string_view ext = CutAtWidth(line, widths.ext);
        return EntryOf(area, block, ext);
    });
}

bool HasMarker(std::string_view text) {
    return text.find(kMarker) != std::string_view::npos;
}

void ReadRelation(std::string_view text, NeighborRelation& relation) {
    Words words(text);
    // At the end of the text the word is empty, and a part of any other.
    while (kMarker.find(words.Next()) == std::string_view::npos) {
    }
    words.Next();
    NeighborRelation::key_type key;
    std::vector<NeighborRelation::key_type>* neighbors = nullptr;
    for (;;) {
        const std::string_view area = words.Next();
        const std::string_view block = words.Next();
        if (block.empty()) return;
        if (IsKey(area)) {
            key = {WithBlanks(WithoutBrackets(area)), std::string(block)};
            neighbors = nullptr;
            continue;
        }
        if (!neighbors) neighbors = &relation[key];
        neighbors->emplace_back(WithBlanks(area), block);
    }
}

}  // namespace kv::blocks
