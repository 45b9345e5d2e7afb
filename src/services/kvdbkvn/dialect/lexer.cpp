#include "services/kvdbkvn/dialect/lexer.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace kv::dialect {
namespace {

struct WordRow {
    std::string_view text;
    Word word;
};

constexpr std::array<WordRow, 43> kWords = {{
    {"all", Word::kAll},
    {"and", Word::kAnd},
    {"as", Word::kAs},
    {"asc", Word::kAsc},
    {"between", Word::kBetween},
    {"by", Word::kBy},
    {"case", Word::kCase},
    {"cross", Word::kCross},
    {"desc", Word::kDesc},
    {"distinct", Word::kDistinct},
    {"else", Word::kElse},
    {"end", Word::kEnd},
    {"exists", Word::kExists},
    {"for", Word::kFor},
    {"from", Word::kFrom},
    {"full", Word::kFull},
    {"group", Word::kGroup},
    {"having", Word::kHaving},
    {"in", Word::kIn},
    {"inner", Word::kInner},
    {"intersect", Word::kIntersect},
    {"into", Word::kInto},
    {"is", Word::kIs},
    {"join", Word::kJoin},
    {"left", Word::kLeft},
    {"like", Word::kLike},
    {"minus", Word::kMinus},
    {"natural", Word::kNatural},
    {"not", Word::kNot},
    {"null", Word::kNull},
    {"on", Word::kOn},
    {"or", Word::kOr},
    {"order", Word::kOrder},
    {"right", Word::kRight},
    {"select", Word::kSelect},
    {"set", Word::kSet},
    {"then", Word::kThen},
    {"union", Word::kUnion},
    {"unique", Word::kUnique},
    {"values", Word::kValues},
    {"when", Word::kWhen},
    {"where", Word::kWhere},
    {"with", Word::kWith},
}};
static_assert(std::ranges::is_sorted(kWords, {}, &WordRow::text));

constexpr std::size_t kLongestWord = 9;

Word FindWord(std::string_view name) {
    if (name.size() < 2 || name.size() > kLongestWord) return Word::kNone;
    std::array<char, kLongestWord> lower{};
    std::ranges::transform(name, lower.begin(), [](char ch) { return ToLower(ch); });
    const std::string_view key(lower.data(), name.size());
    const auto row = std::ranges::lower_bound(kWords, key, {}, &WordRow::text);
    return row != kWords.end() && row->text == key ? row->word : Word::kNone;
}

bool BeginsName(char ch) {
    const char lower = ToLower(ch);
    return (lower >= 'a' && lower <= 'z') || ch == '_' || static_cast<unsigned char>(ch) >= 0x80;
}

bool IsNameByte(char ch) {
    return BeginsName(ch) || IsDigit(ch) || ch == '$' || ch == '#';
}

struct PairRow {
    std::string_view text;
    char sign;
};

constexpr std::array<PairRow, 6> kPairs = {{{"||", kConcatSign},
                                            {"<>", kNotEqualSign},
                                            {"!=", kNotEqualSign},
                                            {"^=", kNotEqualSign},
                                            {"<=", kLessOrEqualSign},
                                            {">=", kMoreOrEqualSign}}};
constexpr std::string_view kSigns = "(),.;+-*/=<>";

class Lexer {
public:
    explicit Lexer(std::string_view sql) : sql_(sql) { tokens_.list.reserve(sql.size() / 3 + 2); }

    Tokens Run() {
        while (tokens_.complete && SkipBlanks())
            Step();
        Add(TokenKind::kEnd, 0);
        return std::move(tokens_);
    }

private:
    bool At(std::string_view what) const { return sql_.substr(at_).starts_with(what); }
    char Peek(std::size_t ahead) const {
        return at_ + ahead < sql_.size() ? sql_[at_ + ahead] : '\0';
    }

    /// False at the end, and where a comment has none.
    bool SkipBlanks() {
        while (at_ < sql_.size()) {
            if (IsSpace(sql_[at_]))
                ++at_;
            else if (At("--"))
                at_ = std::min(sql_.find('\n', at_), sql_.size());
            else if (!At("/*"))
                return true;
            else if (!SkipBlockComment())
                return false;
        }
        return false;
    }

    bool SkipBlockComment() {
        const std::size_t end = sql_.find("*/", at_ + 2);
        tokens_.complete = end != std::string_view::npos;
        if (tokens_.complete) at_ = end + 2;
        return tokens_.complete;
    }

    void Step() {
        const char ch = sql_[at_];
        if (BeginsName(ch))
            TakeName();
        else if (IsDigit(ch) || (ch == '.' && IsDigit(Peek(1)) && !BehindName()))
            TakeNumber();
        else if (ch == '\'')
            TakeQuoted(TokenKind::kText);
        else if (ch == '"')
            TakeQuoted(TokenKind::kQuotedName);
        else
            TakeSign();
    }

    bool BehindName() const {
        if (tokens_.list.empty()) return false;
        const TokenKind kind = tokens_.list.back().kind;
        return kind == TokenKind::kName || kind == TokenKind::kQuotedName;
    }

    Token& Add(TokenKind kind, std::size_t length) {
        Token& token = tokens_.list.emplace_back();
        token.kind = kind;
        token.text = sql_.substr(std::min(at_, sql_.size()), length);
        at_ += length;
        return token;
    }

    void TakeName() {
        std::size_t length = 1;
        while (at_ + length < sql_.size() && IsNameByte(sql_[at_ + length]))
            ++length;
        const std::string_view name = sql_.substr(at_, length);
        if (Peek(length) == '\'' && TakePrefix(name)) return;
        Add(TokenKind::kName, length).word = FindWord(name);
    }

    /// Of a text in national characters or with quotes of its own choice, q'[it's]'.
    bool TakePrefix(std::string_view name) {
        if (EqualsNoCase(name, "n")) {
            at_ += name.size();
            TakeQuoted(TokenKind::kText);
            return true;
        }
        if (!EqualsNoCase(name, "q") && !EqualsNoCase(name, "nq")) return false;
        tokens_.complete = false;
        return true;
    }

    void TakeNumber() {
        std::size_t length = CountDigits(0);
        if (Peek(length) == '.') length += 1 + CountDigits(length + 1);
        if (ToLower(Peek(length)) == 'e') {
            const char sign = Peek(length + 1);
            const std::size_t mark = sign == '+' || sign == '-' ? 2 : 1;
            const std::size_t digits = CountDigits(length + mark);
            if (digits > 0) length += mark + digits;
        }
        Add(TokenKind::kNumber, length);
    }

    std::size_t CountDigits(std::size_t from) const {
        std::size_t count = 0;
        while (IsDigit(Peek(from + count)))
            ++count;
        return count;
    }

    /// A doubled quote stands for one inside.
    void TakeQuoted(TokenKind kind) {
        const char quote = sql_[at_];
        std::size_t end = at_ + 1;
        while (true) {
            end = sql_.find(quote, end);
            if (end == std::string_view::npos) {
                tokens_.complete = false;
                return;
            }
            if (end + 1 >= sql_.size() || sql_[end + 1] != quote) break;
            end += 2;
        }
        Add(kind, end + 1 - at_);
    }

    void TakeSign() {
        const auto pair =
            std::ranges::find_if(kPairs, [&](const PairRow& p) { return At(p.text); });
        if (pair != kPairs.end()) {
            Add(TokenKind::kSign, pair->text.size()).sign = pair->sign;
            return;
        }
        const char ch = sql_[at_];
        Token& token = Add(TokenKind::kSign, 1);
        token.sign = kSigns.find(ch) == std::string_view::npos ? kUnknownSign : ch;
        JoinBracket(tokens_.list.size() - 1);
    }

    void JoinBracket(std::size_t index) {
        Token& token = tokens_.list[index];
        if (token.sign == '(') open_.push_back(index);
        if (token.sign != ')' || open_.empty()) return;
        token.partner = open_.back();
        tokens_.list[open_.back()].partner = index;
        open_.pop_back();
    }

    std::string_view sql_;
    std::size_t at_ = 0;
    std::vector<std::size_t> open_;
    Tokens tokens_;
};

}  // namespace

Tokens Tokenize(std::string_view sql) {
    return Lexer(sql).Run();
}

}  // namespace kv::dialect
