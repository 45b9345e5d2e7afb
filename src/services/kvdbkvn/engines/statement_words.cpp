#include "services/kvdbkvn/engines/statement_words.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "base/text.h"

namespace kv::db {
namespace {

constexpr std::array<std::string_view, 28> kWordsThatDoMore = {
    "insert",  "update", "delete",   "merge",    "into",      "drop",    "alter",
    "create",  "begin",  "truncate", "grant",    "revoke",    "call",    "exec",
    "execute", "commit", "lock",     "rollback", "savepoint", "declare", "set",
    "rename",  "attach", "detach",   "pragma",   "vacuum",    "reindex", "copy",
};

constexpr std::array<std::string_view, 3> kWordsOfBlocks = {"begin", "declare", "create"};

/// Ahead of a quote they begin a text whose end is found by other rules: q'[it's]', e'it\'s'.
constexpr std::array<std::string_view, 3> kOtherQuoting = {"q", "nq", "e"};

bool IsOneOf(std::string_view word, const auto& words) {
    return std::ranges::find(words, word) != words.end();
}

struct Words {
    std::vector<std::string> words;  ///< in lower case
    bool twoStatements = false;
    /// Engines differ in where a text of it ends.
    bool doubtful = false;
};

bool IsWordByte(char ch) {
    const char lower = ToLower(ch);
    return IsDigit(ch) || (lower >= 'a' && lower <= 'z') || ch == '_' || ch == '#' || ch == '$' ||
           static_cast<unsigned char>(ch) >= 0x80;
}

/// Walks a statement once. Comments are not skipped: their words count, and a quote behind the
/// beginning of one is in doubt.
class Scanner {
public:
    explicit Scanner(std::string_view sql, Quoting quoting = Quoting::kUnknown)
        : sql_(sql), quoting_(quoting) {}

    Words Scan() {
        while (at_ < sql_.size())
            Step();
        return found_;
    }

private:
    void Step() {
        const char ch = sql_[at_];
        if (afterSemicolon_ && ch != ';' && !IsSpace(ch)) found_.twoStatements = true;
        if (ch == '\'' || ch == '"' || (ch == '`' && quoting_ == Quoting::kSqlite))
            SkipQuoted(ch);
        else if (IsWordByte(ch))
            TakeWord();
        else
            TakeSign(ch);
    }

    void SkipQuoted(char quote) {
        if (inComment_) found_.doubtful = true;
        const std::size_t end = sql_.find(quote, at_ + 1);
        if (end == std::string_view::npos) {
            found_.doubtful = true;
            at_ = sql_.size();
            return;
        }
        if (sql_[end - 1] == '\\' && quoting_ == Quoting::kUnknown) found_.doubtful = true;
        at_ = end + 1;
    }

    void TakeWord() {
        const std::size_t begin = at_;
        while (at_ < sql_.size() && IsWordByte(sql_[at_]))
            ++at_;
        const std::string word = ToLower(sql_.substr(begin, at_ - begin));
        const bool quoteFollows = at_ < sql_.size() && sql_[at_] == '\'';
        if (quoteFollows && IsOneOf(word, kOtherQuoting)) found_.doubtful = true;
        // $$...$$ and $name$...$name$ are texts, too.
        if (word.front() == '$') found_.doubtful = true;
        found_.words.push_back(word);
    }

    void TakeSign(char ch) {
        if (ch == ';') afterSemicolon_ = true;
        if (ch == '`' || ch == '[') found_.doubtful = true;
        const std::string_view pair = sql_.substr(at_, 2);
        if (pair == "--" || pair == "/*") inComment_ = true;
        ++at_;
    }

    std::string_view sql_;
    Quoting quoting_;
    std::size_t at_ = 0;
    bool inComment_ = false;
    bool afterSemicolon_ = false;
    Words found_;
};

/// The first word alone tells nothing: it may stand in a comment.
bool BeginsWithWord(std::string_view sql) {
    const auto first =
        std::ranges::find_if_not(sql, [](char ch) { return IsSpace(ch) || ch == '('; });
    return first != sql.end() && IsWordByte(*first);
}

}  // namespace

bool HoldsTwoStatements(std::string_view sql) {
    const Words found = Scanner(sql).Scan();
    const bool block = !found.words.empty() && IsOneOf(found.words.front(), kWordsOfBlocks);
    return found.twoStatements && !block;
}

Reading ReadingOf(std::string_view sql, Quoting quoting) {
    const Words found = Scanner(sql, quoting).Scan();
    const bool query =
        BeginsWithWord(sql) && (found.words.front() == "select" || found.words.front() == "with");
    if (!query) return Reading::kDoesMore;
    if (found.doubtful) return Reading::kDoubtful;
    const bool doesMore =
        found.twoStatements || std::ranges::any_of(found.words, [](const std::string& word) {
            return IsOneOf(word, kWordsThatDoMore);
        });
    return doesMore ? Reading::kDoesMore : Reading::kReads;
}

}  // namespace kv::db
