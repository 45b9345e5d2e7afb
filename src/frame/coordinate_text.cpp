#include "frame/coordinate_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "base/numbers.h"
#include "base/text.h"

namespace kv {

namespace {

constexpr std::size_t kParts = 3;
constexpr std::array<double, kParts> kPerDegree{1.0, 60.0, 3600.0};
constexpr double kMostLatitude = 90.0;
constexpr double kMostAngle = 360.0;

enum class Kind { kNumber, kMark, kJoint, kEquals, kHemisphere, kLabel, kSeparator };

/// Which part of an angle a mark stands behind; kNone for a number without a mark.
enum Rank : int { kNone = -1, kDegree, kMinute, kSecond };

struct Token {
    Kind kind;
    double value = 0.0;
    bool whole = true;
    char sign = 0;
    Rank rank = kNone;
    /// Of a mark that it is a word; of an S that it is a small one right behind a number.
    bool word = false;
    bool latitude = false;
    /// South or west.
    bool negative = false;
};

struct Spelling {
    std::string_view text;
    Token token;
};

constexpr Token Mark(Rank rank, bool word = false) {
    return {.kind = Kind::kMark, .rank = rank, .word = word};
}
constexpr Token Hemisphere(bool latitude, bool negative) {
    return {.kind = Kind::kHemisphere, .latitude = latitude, .negative = negative};
}
constexpr Token Label(bool latitude) {
    return {.kind = Kind::kLabel, .latitude = latitude};
}

/// In UTF-8, and in the single bytes of Western systems.
constexpr Spelling kSymbols[] = {
    {"\xC2\xB0", Mark(kDegree)},
    {"\xC2\xBA", Mark(kDegree)},
    {"\xCB\x9A", Mark(kDegree)},
    {"\xB0", Mark(kDegree)},
    {"\xBA", Mark(kDegree)},
    {"\xE2\x80\xB2", Mark(kMinute)},
    {"\xE2\x80\x99", Mark(kMinute)},
    {"\xC2\xB4", Mark(kMinute)},
    {"'", Mark(kMinute)},
    {"`", Mark(kMinute)},
    {"\xB4", Mark(kMinute)},
    {"\x92", Mark(kMinute)},
    {"\xE2\x80\xB3", Mark(kSecond)},
    {"\xE2\x80\x9D", Mark(kSecond)},
    {"\"", Mark(kSecond)},
    {"\x94", Mark(kSecond)},
    {":", {Kind::kJoint}},
    {"=", {Kind::kEquals}},
    {",", {Kind::kSeparator}},
    {";", {Kind::kSeparator}},
};

/// The longer ahead of those that they begin with.
constexpr Spelling kWords[] = {
    {"degrees", Mark(kDegree, true)},
    {"degree", Mark(kDegree, true)},
    {"deg", Mark(kDegree, true)},
    {"d", Mark(kDegree, true)},
    {"minutes", Mark(kMinute, true)},
    {"minute", Mark(kMinute, true)},
    {"min", Mark(kMinute, true)},
    {"m", Mark(kMinute, true)},
    {"seconds", Mark(kSecond, true)},
    {"second", Mark(kSecond, true)},
    {"sec", Mark(kSecond, true)},
    {"latitude", Label(true)},
    {"lat", Label(true)},
    {"longitude", Label(false)},
    {"long", Label(false)},
    {"lng", Label(false)},
    {"lon", Label(false)},
    {"north", Hemisphere(true, false)},
    {"south", Hemisphere(true, true)},
    {"east", Hemisphere(false, false)},
    {"west", Hemisphere(false, true)},
    {"n", Hemisphere(true, false)},
    {"s", Hemisphere(true, true)},
    {"e", Hemisphere(false, false)},
    {"w", Hemisphere(false, true)},
};

constexpr std::string_view kBlanks[] = {" ",    "\t",       "\r",           "\n",
                                        "\xA0", "\xC2\xA0", "\xE2\x80\x89", "\xE2\x80\xAF"};
constexpr std::string_view kMinuses[] = {"-", "\xE2\x88\x92", "\xE2\x80\x93"};

bool IsLetter(char ch) {
    return ToUpper(ch) >= 'A' && ToUpper(ch) <= 'Z';
}

/// Cuts a text into tokens.
class Tokens {
public:
    explicit Tokens(std::string_view text) : text_(text) {}

    /// None when there is something in it that has no place in a coordinate.
    std::optional<std::vector<Token>> Read() {
        while (!text_.empty()) {
            if (const std::size_t blank = Beginning(kBlanks)) {
                text_.remove_prefix(blank);
                glued_ = false;
            } else if (!ReadOne()) {
                return std::nullopt;
            } else {
                glued_ = true;
            }
        }
        return std::move(tokens_);
    }

private:
    template <std::size_t Count>
    std::size_t Beginning(const std::string_view (&texts)[Count]) const {
        const auto* at = std::ranges::find_if(
            texts, [this](std::string_view each) { return text_.starts_with(each); });
        return at == std::end(texts) ? 0 : at->size();
    }
    bool NumberAt(std::size_t at) const {
        const std::string_view rest = text_.substr(std::min(at, text_.size()));
        return !rest.empty() &&
               (IsDigit(rest[0]) || (rest[0] == '.' && rest.size() > 1 && IsDigit(rest[1])));
    }
    bool BehindNumber() const {
        return glued_ && !tokens_.empty() && tokens_.back().kind == Kind::kNumber;
    }

    bool ReadOne() {
        if (NumberAt(0)) return !BehindNumber() && ReadNumber(0);
        if (IsLetter(text_[0])) return ReadWord();
        return ReadSign() || ReadSymbol();
    }

    bool ReadNumber(char sign) {
        std::size_t end = text_.find_first_not_of("0123456789");
        end = std::min(end, text_.size());
        const bool point = end < text_.size() && text_[end] == '.';
        if (point) end = std::min(text_.find_first_not_of("0123456789", end + 1), text_.size());
        tokens_.push_back({.kind = Kind::kNumber,
                           .value = Atof(text_.substr(0, end)),
                           .whole = !point,
                           .sign = sign});
        text_.remove_prefix(end);
        return true;
    }

    /// A hyphen between two numbers joins them if the first may have a part behind it.
    bool ReadSign() {
        const std::size_t minus = Beginning(kMinuses);
        const std::size_t size = minus ? minus : text_.starts_with('+');
        if (size == 0 || !NumberAt(size)) return false;
        text_.remove_prefix(size);
        if (minus && BehindNumber() && tokens_.back().whole) {
            tokens_.push_back({.kind = Kind::kJoint});
            return true;
        }
        return ReadNumber(minus ? '-' : '+');
    }

    bool ReadSymbol() {
        const auto* at = std::ranges::find_if(
            kSymbols, [this](const Spelling& each) { return text_.starts_with(each.text); });
        if (at == std::end(kSymbols)) return false;
        text_.remove_prefix(at->text.size());
        const bool secondStroke = glued_ && !tokens_.empty() && at->token.rank == kMinute &&
                                  tokens_.back().rank == kMinute && !tokens_.back().word;
        if (secondStroke) {
            tokens_.back().rank = kSecond;
        } else {
            tokens_.push_back(at->token);
        }
        return true;
    }

    bool ReadWord() {
        const auto* at = std::ranges::find_if(
            kWords, [this](const Spelling& each) { return StartsWithNoCase(text_, each.text); });
        if (at == std::end(kWords)) return false;
        Token token = at->token;
        if (token.kind == Kind::kHemisphere) token.word = text_[0] == 's' && BehindNumber();
        tokens_.push_back(token);
        text_.remove_prefix(at->text.size());
        // As it is abbreviated.
        if (text_.starts_with('.') && !NumberAt(0)) text_.remove_prefix(1);
        return true;
    }

    std::string_view text_;
    std::vector<Token> tokens_;
    /// Nothing stands between the last token and the rest.
    bool glued_ = false;
};

struct Number {
    double value;
    bool whole;
    Rank rank = kNone;
    /// Its mark is a word.
    bool word = false;
    bool joined = false;
};

/// An angle as it is written.
struct Written {
    std::vector<Number> numbers;
    char sign = 0;
    std::optional<Token> label = std::nullopt;
    std::optional<Token> hemisphere = std::nullopt;
    /// Nothing more belongs to it.
    bool closed = false;

    bool Empty() const { return numbers.empty() && !label && !hemisphere; }
    bool Joined() const { return !numbers.empty() && numbers.back().joined; }
    bool Marked() const {
        return std::ranges::any_of(numbers, [](const Number& each) { return each.rank != kNone; });
    }
    bool Tells() const { return label || hemisphere; }
    bool Latitude() const { return label ? label->latitude : hemisphere->latitude; }
};

/// Puts tokens together to angles.
class Angles {
public:
    std::optional<std::vector<Written>> Read(const std::vector<Token>& tokens) {
        for (const Token& token : tokens) {
            if (!Take(token)) return std::nullopt;
        }
        const bool whole =
            std::ranges::none_of(angles_, [](const Written& each) { return each.numbers.empty(); });
        if (!whole || joint_ || separated_) return std::nullopt;
        return std::move(angles_);
    }

private:
    Written& Last() { return angles_.back(); }
    std::vector<Number>& Numbers() { return Last().numbers; }
    /// A number stands there that something may follow.
    bool Open() { return !Numbers().empty() && !Last().closed && !joint_ && !separated_; }
    bool OnlyLabel() { return Last().label && !Last().hemisphere && Numbers().empty(); }
    /// False when the last angle is none yet.
    bool Begin() {
        separated_ = false;
        if (Last().Empty()) return true;
        if (Numbers().empty()) return false;
        angles_.emplace_back();
        return true;
    }

    bool Take(const Token& token) {
        if (joint_ && token.kind != Kind::kNumber) return false;
        switch (token.kind) {
            case Kind::kNumber:
                return TakeNumber(token);
            case Kind::kMark:
                return TakeMark(token);
            case Kind::kJoint:
                if (OnlyLabel()) return true;
                joint_ = Open();
                return joint_;
            case Kind::kEquals:
                return OnlyLabel();
            case Kind::kHemisphere:
                return TakeHemisphere(token);
            case Kind::kLabel:
                if (!Begin()) return false;
                Last().label = token;
                return true;
            case Kind::kSeparator:
                if (separated_ || Numbers().empty()) return false;
                separated_ = true;
                return true;
        }
        return false;
    }

    bool TakeNumber(const Token& token) {
        const bool joined = std::exchange(joint_, false);
        if (joined && token.sign) return false;
        const bool fresh = separated_ || Last().closed || (token.sign && !Numbers().empty()) ||
                           (Last().Joined() && !joined);
        if (fresh && !Begin()) return false;
        if (Numbers().empty()) Last().sign = token.sign;
        Numbers().push_back({.value = token.value, .whole = token.whole, .joined = joined});
        return Numbers().size() <= 2 * kParts;
    }

    /// A mark of degrees behind a further number begins an angle with that.
    bool TakeMark(const Token& token) {
        if (!Open() || Numbers().back().rank != kNone) return false;
        Number number = Numbers().back();
        number.rank = token.rank;
        number.word = token.word;
        Numbers().pop_back();
        if (token.rank == kDegree && !Numbers().empty() && (number.joined || !Begin()))
            return false;
        Numbers().push_back(number);
        return true;
    }

    bool TakeHemisphere(const Token& token) {
        if (token.word && Open() && Numbers().size() == kParts && Numbers()[kMinute].word)
            return TakeMark(Mark(kSecond, true));
        const bool behind = Open() && !Last().hemisphere;
        if (!behind && !OnlyLabel() && !Begin()) return false;
        Last().hemisphere = token;
        Last().closed = behind;
        return true;
    }

    std::vector<Written> angles_{1};
    bool joint_ = false;
    bool separated_ = false;
};

std::optional<double> ValueOf(const Written& written) {
    const auto& [numbers, sign, label, hemisphere, closed] = written;
    const bool contradiction = (sign == '-' && hemisphere) ||
                               (label && hemisphere && label->latitude != hemisphere->latitude);
    if (contradiction || numbers.size() > kParts) return std::nullopt;
    double value = 0.0;
    for (std::size_t part = 0; part < numbers.size(); ++part) {
        const Number& number = numbers[part];
        const bool last = part + 1 == numbers.size();
        const bool marked = number.rank == kNone || number.rank == static_cast<int>(part);
        if (!marked || (!number.whole && !last) || (part > 0 && number.value >= 60.0))
            return std::nullopt;
        value += number.value / kPerDegree[part];
    }
    const double most = written.Tells() && written.Latitude() ? kMostLatitude : kMostAngle;
    if (value > most) return std::nullopt;
    return sign == '-' || (hemisphere && hemisphere->negative) ? -value : value;
}

/// The two angles of numbers that stand in a row.
std::optional<std::vector<Written>> Halves(const Written& written) {
    const std::size_t count = written.numbers.size();
    const bool joined = std::ranges::any_of(written.numbers, &Number::joined);
    if (written.Tells() || joined || count % 2 != 0 || (count == 2 && written.Marked()))
        return std::nullopt;
    const auto middle = written.numbers.begin() + static_cast<std::ptrdiff_t>(count / 2);
    return std::vector<Written>{
        {.numbers = {written.numbers.begin(), middle}, .sign = written.sign},
        {.numbers = {middle, written.numbers.end()}}};
}

std::optional<Coordinate> Single(const Written& written, double value) {
    if (!written.Tells()) return Coordinate{.angle = value};
    if (written.Latitude()) return Coordinate{.latitude = value};
    return Coordinate{.longitude = value};
}

std::optional<Coordinate> Pair(const Written& first, const Written& second) {
    const auto a = ValueOf(first);
    const auto b = ValueOf(second);
    if (!a || !b || first.Tells() != second.Tells()) return std::nullopt;
    if (first.Tells() && first.Latitude() == second.Latitude()) return std::nullopt;
    const bool swapped = first.Tells()
                             ? second.Latitude()
                             : std::abs(*a) > kMostLatitude && std::abs(*b) <= kMostLatitude;
    const Coordinate pair{.latitude = swapped ? b : a, .longitude = swapped ? a : b};
    if (std::abs(*pair.latitude) > kMostLatitude) return std::nullopt;
    return pair;
}

std::string_view WithoutBrackets(std::string_view text) {
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsSpace(text.back()))
        text.remove_suffix(1);
    const bool round = text.starts_with('(') && text.ends_with(')');
    const bool square = text.starts_with('[') && text.ends_with(']');
    return round || square ? text.substr(1, text.size() - 2) : text;
}

}  // namespace

std::optional<Coordinate> ParseCoordinate(std::string_view text) {
    const auto tokens = Tokens(WithoutBrackets(text)).Read();
    auto angles = tokens ? Angles().Read(*tokens) : std::nullopt;
    if (!angles) return std::nullopt;
    if (angles->size() == 1) {
        const Written& written = angles->front();
        if (const auto value = ValueOf(written)) return Single(written, *value);
        angles = Halves(written);
    }
    return angles && angles->size() == 2 ? Pair(angles->front(), angles->back()) : std::nullopt;
}

}  // namespace kv
