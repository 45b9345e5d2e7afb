// What the beginning of a block selection file tells.

#include "base/text.h"
#include "blocks/block_file.h"
#include "frame/catalogue.h"

namespace kv::blocks {

namespace {

struct Words {
    Vocabulary vocabulary;
    const char* fieldString;
    const char* word;
    const char* otherWord;
};

constexpr Words kWords[] = {
    {Vocabulary::kNames, catalogue::kColumnAreaName, "AREA NAME", "AREA NAME"},
    {Vocabulary::kCodes, catalogue::kColumnAreaCode, "AREA CODE", "AREACODE"},
    {Vocabulary::kMmsCodes, catalogue::kColumnMmsCode, "MMS CODE", "MMS CODE"},
};

const Words& WordsOf(Vocabulary vocabulary) {
    return kWords[static_cast<std::size_t>(vocabulary)];
}

}  // namespace

Vocabulary VocabularyOf(const std::string& fieldString) {
    for (const Words& words : kWords) {
        if (fieldString == words.fieldString) return words.vocabulary;
    }
    return Vocabulary::kMmsCodes;
}

std::string FieldStringOf(Vocabulary vocabulary) {
    return WordsOf(vocabulary).fieldString;
}

FileHead::FileHead(std::string_view text) : text_(ToUpper(text.substr(0, kLength))) {}

bool FileHead::Names(Vocabulary vocabulary) const {
    const Words& words = WordsOf(vocabulary);
    return Has(words.word) || Has(words.otherWord);
}

std::optional<Vocabulary> FileHead::FirstOf(const std::array<Vocabulary, 3>& order) const {
    for (const Vocabulary vocabulary : order) {
        if (Names(vocabulary)) return vocabulary;
    }
    return std::nullopt;
}

int FileHead::Columns() const {
    if (!Has("BLOCK")) return 1;
    return Has("EXT") ? 3 : 2;
}

}  // namespace kv::blocks
