#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kv::dialect {

/// Words that cannot be a name. What else has a meaning somewhere (enable, primary, escape, ...)
/// is told by its place.
enum class Word : std::uint8_t {
    kNone,
    kAll,
    kAnd,
    kAs,
    kAsc,
    kBetween,
    kBy,
    kCase,
    kCross,
    kDesc,
    kDistinct,
    kElse,
    kEnd,
    kExists,
    kFor,
    kFrom,
    kFull,
    kGroup,
    kHaving,
    kIn,
    kInner,
    kIntersect,
    kInto,
    kIs,
    kJoin,
    kLeft,
    kLike,
    kMinus,
    kNatural,
    kNot,
    kNull,
    kOn,
    kOr,
    kOrder,
    kRight,
    kSelect,
    kSet,
    kThen,
    kUnion,
    kUnique,
    kValues,
    kWhen,
    kWhere,
    kWith,
};

enum class TokenKind : std::uint8_t {
    kEnd,
    kName,        ///< a name or a word
    kQuotedName,  ///< with its quotes
    kText,        ///< with its quotes
    kNumber,
    kSign,
};

/// Signs of one character are that character.
inline constexpr char kConcatSign = 'c';       // ||
inline constexpr char kNotEqualSign = 'n';     // <> != ^=
inline constexpr char kLessOrEqualSign = 'l';  // <=
inline constexpr char kMoreOrEqualSign = 'm';  // >=
inline constexpr char kUnknownSign = '\0';     // no sign of the language

struct Token {
    static constexpr std::size_t kNoPartner = static_cast<std::size_t>(-1);

    TokenKind kind = TokenKind::kEnd;
    Word word = Word::kNone;
    char sign = kUnknownSign;
    std::string_view text;
    /// Of a bracket: the index of the one that belongs to it.
    std::size_t partner = kNoPartner;

    bool Is(Word w) const { return word == w; }
    bool Is(char s) const { return kind == TokenKind::kSign && sign == s; }
};

struct Tokens {
    /// Ends with a token of the kind kEnd. Views into the text that was read.
    std::vector<Token> list;
    /// False when a text, a quoted name or a comment has no end, or a text is quoted in a way of
    /// which the end is not known: the list then stops ahead of it.
    bool complete = true;
};

/// Comments and white space are left out.
Tokens Tokenize(std::string_view sql);

}  // namespace kv::dialect
