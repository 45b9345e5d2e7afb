#include "services/kvdbkvn/engines/sqlite_functions.h"

#include <clocale>
#include <cwctype>
#include <optional>
#include <string>
#include <string_view>

#include <locale.h>
#include <sqlite3.h>

#include "base/text.h"
#include "base/utf8.h"
#include "services/kvdbkvn/dialect/dates.h"
#include "services/kvdbkvn/dialect/lease_sort.h"
#include "services/kvdbkvn/dialect/types.h"

namespace kv::db {
namespace {

using Values = sqlite3_value**;

/// None for null.
std::optional<std::string> TextOf(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    if (!text) return std::nullopt;
    return std::string(text, static_cast<std::size_t>(sqlite3_value_bytes(value)));
}

void Answer(sqlite3_context* context, const std::string& text) {
    sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void Fail(sqlite3_context* context, const std::string& words) {
    sqlite3_result_error(context, words.c_str(), -1);
}

void LeaseSort(sqlite3_context* context, int, Values values) {
    if (const auto lease = TextOf(values[0])) Answer(context, dialect::LeaseSortKey(*lease));
}

void Number(sqlite3_context* context, int, Values values) {
    if (sqlite3_value_type(values[0]) != SQLITE_TEXT)
        return sqlite3_result_value(context, values[0]);
    const std::string text = *TextOf(values[0]);
    const std::string number = TrimSpace(text);
    if (text.empty()) return;
    if (!dialect::ReadsAsNumber(number)) return Fail(context, "invalid number: \"" + text + "\"");
    Answer(context, number);
}

void ToDate(sqlite3_context* context, int, Values values) {
    const auto text = TextOf(values[0]);
    const auto written = TextOf(values[1]);
    if (!text || text->empty() || !written) return;
    const auto format = dialect::ReadDateFormat(*written);
    const auto date = format ? dialect::DateOf(*text, *format) : std::nullopt;
    if (!date)
        return Fail(context, "no date in the format \"" + *written + "\": \"" + *text + "\"");
    Answer(context, *date);
}

/// The letters of Unicode, whatever the program's own locale. Null where the machine has none;
/// then ASCII alone has cases.
locale_t Letters() {
    static const locale_t letters = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return letters;
}

/// A byte that is no character stays as it is.
template <typename ChangeCase>
void ChangeLetters(sqlite3_context* context, sqlite3_value* value, ChangeCase changeCase) {
    const auto text = TextOf(value);
    if (!text) return;
    std::string changed;
    for (std::size_t at = 0; at < text->size();) {
        const Utf8Character character = Utf8At(*text, at);
        const bool stray = character.length == 1 && character.code >= 0x80;
        if (stray)
            changed += (*text)[at];
        else
            AppendUtf8(changed, changeCase(character.code));
        at += character.length;
    }
    Answer(context, changed);
}

char32_t UpperOf(char32_t code) {
    if (code < 0x80 || !Letters()) return code >= 'a' && code <= 'z' ? code - 'a' + 'A' : code;
    return static_cast<char32_t>(towupper_l(static_cast<wint_t>(code), Letters()));
}

char32_t LowerOf(char32_t code) {
    if (code < 0x80 || !Letters()) return code >= 'A' && code <= 'Z' ? code - 'A' + 'a' : code;
    return static_cast<char32_t>(towlower_l(static_cast<wint_t>(code), Letters()));
}

void Upper(sqlite3_context* context, int, Values values) {
    ChangeLetters(context, values[0], UpperOf);
}

void Lower(sqlite3_context* context, int, Values values) {
    ChangeLetters(context, values[0], LowerOf);
}

struct Function {
    const char* name;
    int arguments;
    void (*call)(sqlite3_context*, int, Values);
};

constexpr Function kFunctions[] = {{"lesort", 1, &LeaseSort},
                                   {"kv_number", 1, &Number},
                                   {"kv_to_date", 2, &ToDate},
                                   {"upper", 1, &Upper},
                                   {"lower", 1, &Lower}};

}  // namespace

void AddSqliteFunctions(sqlite3* database) {
    for (const Function& function : kFunctions)
        sqlite3_create_function_v2(database, function.name, function.arguments,
                                   SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, function.call,
                                   nullptr, nullptr, nullptr);
}

}  // namespace kv::db
