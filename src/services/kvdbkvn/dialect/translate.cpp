#include "services/kvdbkvn/dialect/translate.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/text.h"
#include "services/kvdbkvn/dialect/lexer.h"
#include "services/kvdbkvn/dialect/parser.h"
#include "services/kvdbkvn/dialect/printer.h"
#include "services/kvdbkvn/dialect/resolve.h"

namespace kv::dialect {
namespace {

constexpr const char* kTwoStatements = "Refused: the text holds more than one statement";
constexpr const char* kNoStatement = "Refused: the text holds no statement";
constexpr const char* kUntouched = "A statement goes to the database as it stands: ";
const std::string kRefused = "Refused: the statement cannot be translated, since ";
constexpr const char* kSurplusBracket =
    "A statement was read without the bracket that it closes at its end and never opened";
constexpr const char* kTooLong = "it would become too long";
constexpr const char* kOtherDefinition = "a definition of a kind that is not translated";

/// How much longer than the text that was read the printed one may be.
constexpr std::size_t kMostGrowth = 16;
constexpr std::size_t kRoomToGrow = 65536;

/// What can be put between "create" and what makes a text a program of its own, with semicolons.
constexpr std::array<std::string_view, 5> kPrograms = {"procedure", "function", "package",
                                                       "trigger", "type"};

struct KindOf {
    Kind operator()(const Query*) const { return Kind::kRead; }
    Kind operator()(const InsertStatement&) const { return Kind::kChange; }
    Kind operator()(const DeleteStatement&) const { return Kind::kChange; }
    Kind operator()(const UpdateStatement&) const { return Kind::kChange; }
    Kind operator()(const CreateTableStatement&) const { return Kind::kDefine; }
    Kind operator()(const DropTableStatement&) const { return Kind::kDefine; }
    Kind operator()(const OtherDefinition&) const { return Kind::kDefine; }
    Kind operator()(const GrantStatement&) const { return Kind::kGrant; }
    Kind operator()(const CommitStatement&) const { return Kind::kCommit; }
};

/// Goes over one text from its tokens to its translation.
class Translator {
public:
    Translator(std::string_view sql, const Context& context)
        : sql_(sql), context_(context), tokens_(Tokenize(sql)) {}

    Translation Run() {
        if (IsProgram()) return AsItStands("a program is not translated");
        if (!DropClosingSemicolons()) return Refuse(kTwoStatements);
        if (!tokens_.complete) return NotRead(Where("it does not end what begins", Unended()));
        if (tokens_.list.size() == 1) return Refuse(kNoStatement);
        const bool surplus = DropSurplusBrackets();
        try {
            const Statement statement = Parse(tokens_.list, arena_);
            result_.kind = std::visit(KindOf{}, statement);
            return Printed(statement, surplus);
        } catch (const Refused& refused) {
            return RefusedBy(refused);
        } catch (const Unreadable& unreadable) {
            return NotRead(Where("it is not understood", unreadable.near));
        }
    }

private:
    /// What is read but cannot be said to the engine is refused at once: nobody else knows better.
    Translation Printed(const Statement& statement, bool surplus) {
        try {
            if (context_.target != Target::kOracle) Resolve(statement, context_, arena_);
            Print(statement);
        } catch (const Unreadable& unreadable) {
            return Refuse(kRefused + Where("it has no counterpart", unreadable.near));
        } catch (const TooLong&) {
            return Refuse(kRefused + kTooLong);
        }
        if (surplus) result_.notes.push_back(kSurplusBracket);
        return std::move(result_);
    }

    bool IsWordAt(std::size_t index, std::string_view word) const {
        return index < tokens_.list.size() && EqualsNoCase(tokens_.list[index].text, word);
    }

    std::string_view Unended() const {
        return sql_.substr(static_cast<std::size_t>(tokens_.list.back().text.data() - sql_.data()));
    }

    bool IsProgram() const {
        if (context_.target != Target::kOracle) return false;
        if (IsWordAt(0, "begin") || IsWordAt(0, "declare")) return true;
        const bool replaces = IsWordAt(1, "or") && IsWordAt(2, "replace");
        return IsWordAt(0, "create") && std::ranges::any_of(kPrograms, [&](std::string_view word) {
                   return IsWordAt(replaces ? 3 : 1, word);
               });
    }

    /// False when a statement follows one.
    bool DropClosingSemicolons() {
        std::vector<Token>& list = tokens_.list;
        const auto semicolon =
            std::ranges::find_if(list, [](const Token& token) { return token.Is(';'); });
        const bool alone = std::all_of(semicolon, list.end(), [](const Token& token) {
            return token.Is(';') || token.kind == TokenKind::kEnd;
        });
        if (semicolon == list.end()) return true;
        if (!alone || !tokens_.complete) return false;
        statementEnd_ = static_cast<std::size_t>(semicolon->text.data() - sql_.data());
        list.erase(semicolon, list.end() - 1);
        return true;
    }

    bool DropSurplusBrackets() {
        std::vector<Token>& list = tokens_.list;
        const std::size_t before = list.size();
        while (list.size() > 1) {
            const Token& last = list[list.size() - 2];
            if (!last.Is(')') || last.partner != Token::kNoPartner) break;
            readEnd_ = static_cast<std::size_t>(last.text.data() - sql_.data());
            list.erase(list.end() - 2);
        }
        return list.size() < before;
    }

    void Print(const Statement& statement) {
        const bool untranslated = std::holds_alternative<OtherDefinition>(statement);
        if (context_.target == Target::kOracle || untranslated) {
            result_.text = sql_.substr(0, std::min(statementEnd_, readEnd_));
            if (context_.target != Target::kOracle) Note(kOtherDefinition);
            return;
        }
        const std::size_t mostText = kMostGrowth * sql_.size() + kRoomToGrow;
        result_.text = Printer(context_, mostText, result_.notes).Print(statement);
    }

    void Note(const std::string& reason) { result_.notes.push_back(kUntouched + reason); }

    Translation AsItStands(const std::string& reason) {
        result_ = {};
        const bool dropSemicolon = context_.target == Target::kOracle && tokens_.complete;
        result_.text = dropSemicolon ? sql_.substr(0, statementEnd_) : sql_;
        Note(reason);
        return std::move(result_);
    }

    Translation Refuse(std::string words) {
        result_ = {};
        result_.refusal = std::move(words);
        return std::move(result_);
    }

    /// Any other engine would give it a meaning of its own.
    Translation NotRead(const std::string& reason) {
        Translation untouched = AsItStands(reason);
        if (context_.target == Target::kOracle) return untouched;
        untouched.notes.clear();
        untouched.refusal = kRefused + reason;
        return untouched;
    }

    /// Oracle has words of its own for the same.
    Translation RefusedBy(const Refused& refused) {
        if (context_.target == Target::kOracle) return AsItStands(refused.words);
        return Refuse(refused.words);
    }

    /// `near`: the part of the text that the reason is about, empty at its end.
    std::string Where(const char* reason, std::string_view near) const {
        static constexpr std::size_t kMostShown = 40;
        const auto isFirstByte = [](char ch) { return (ch & 0xC0) != 0x80; };
        const std::size_t at =
            near.empty() ? sql_.size() : static_cast<std::size_t>(near.data() - sql_.data());
        const auto character = std::ranges::count_if(sql_.substr(0, at), isFirstByte) + 1;
        std::string_view rest = sql_.substr(at, kMostShown);
        while (at + rest.size() < sql_.size() && !rest.empty() &&
               !isFirstByte(sql_[at + rest.size()]))
            rest.remove_suffix(1);
        const std::string place = " at character " + std::to_string(character);
        if (rest.empty()) return reason + place + ", its end";
        return reason + place + ": " + std::string(rest);
    }

    std::string_view sql_;
    const Context& context_;
    Tokens tokens_;
    Arena arena_;
    /// Where the closing semicolons begin, and where the surplus brackets.
    std::size_t statementEnd_ = std::string_view::npos;
    std::size_t readEnd_ = std::string_view::npos;
    Translation result_;
};

}  // namespace

Translation Translate(std::string_view sql, const Context& context) {
    return Translator(sql, context).Run();
}

}  // namespace kv::dialect
