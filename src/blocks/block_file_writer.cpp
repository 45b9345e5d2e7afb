#include <algorithm>
#include <ostream>

#include "base/numbers.h"
#include "base/text.h"
#include "blocks/block_file.h"
#include "blocks/block_file_marker.h"
#include "frame/catalogue.h"

namespace kv::blocks {

namespace {

struct HeaderLine {
    const char* fieldString;
    const char* line;
};

constexpr HeaderLine kColumnHeaders[] = {
    {catalogue::kColumnAreaName, "AREA NAME\tBlock\tExt.\n"},
    {catalogue::kColumnAreaCode, "AREA CODE\tBlock\tExt.\n"},
    {catalogue::kColumnMmsCode, "MMS CODE\tBlock\tExt.\n"},
};

constexpr HeaderLine kFixedHeaders[] = {
    {catalogue::kColumnAreaName, "Area Name\tBlock\tExt.\t\n"},
    {catalogue::kColumnAreaCode, "Area Code\tBlock\tExt.\n"},
};

template <std::size_t count>
const char* HeaderOf(const HeaderLine (&headers)[count], const std::string& fieldString) {
    for (const HeaderLine& header : headers) {
        if (fieldString == header.fieldString) return header.line;
    }
    return "";
}

std::string Padded(std::string text, std::size_t width) {
    text.resize(std::max(text.size(), width), ' ');
    return text;
}

/// Each entry in three columns that are at least so wide, with a tab behind each.
void WriteEntries(std::ostream& out, const Selection& selection, const ColumnWidths& widths) {
    const auto& [areas, blocks] = selection;
    for (std::size_t i = 0; i < EntryCount(selection); ++i) {
        const BlockParts parts = PartsOf(blocks[i]);
        out << Padded(areas[i], widths.area) << '\t' << Padded(parts.number, widths.block) << '\t'
            << Padded(parts.ext, widths.ext) << "\t\n";
    }
}

std::string WithoutBlanks(const std::string& area) {
    return ReplaceAll(area, " ", kBlankMark);
}

}  // namespace

ColumnWidths WidthsOf(Vocabulary vocabulary) {
    constexpr std::size_t kWidestName = 33;
    constexpr std::size_t kWidestCode = 5;
    return {vocabulary == Vocabulary::kNames ? kWidestName : kWidestCode, 10, 3};
}

BlockParts PartsOf(const std::string& block) {
    if (block.empty() || block == " ") return {" ", " "};
    const std::string number = std::to_string(Atoi(block));
    if (block == number) return {number, " "};
    return {number, block.substr(std::min(number.size(), block.size()))};
}

void WriteColumns(std::ostream& out, const std::string& fieldString, const Selection& selection) {
    out << HeaderOf(kColumnHeaders, fieldString);
    WriteEntries(out, selection, {});
}

void WriteFixed(std::ostream& out, const std::string& fieldString, const Selection& selection) {
    out << HeaderOf(kFixedHeaders, fieldString);
    WriteEntries(out, selection, WidthsOf(VocabularyOf(fieldString)));
}

void WriteRelation(std::ostream& out, const NeighborRelation& relation) {
    out << '\n' << kMarker << '\n';
    for (const auto& [place, neighbors] : relation) {
        out << '[' << WithoutBlanks(place.first) << "]\t" << place.second << '\n';
        for (const auto& [area, block] : neighbors)
            out << WithoutBlanks(area) << '\t' << block << '\n';
    }
}

}  // namespace kv::blocks
