#include "services/kvdbkvn/dialect/dates.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>

#include "base/text.h"

namespace kv::dialect {
namespace {

struct FieldRow {
    std::string_view text;
    DateField field;
};

/// What begins like another stands behind it.
constexpr std::array<FieldRow, 14> kFields = {{
    {"YYYY", DateField::kYear},
    {"RRRR", DateField::kYear},
    {"YY", DateField::kYearOfCentury},
    {"RR", DateField::kYearNearby},
    {"MON", DateField::kMonthName},
    {"MM", DateField::kMonth},
    {"MI", DateField::kMinute},
    {"DD", DateField::kDay},
    {"HH24", DateField::kHour},
    {"HH12", DateField::kHourOfHalfDay},
    {"HH", DateField::kHourOfHalfDay},
    {"SS", DateField::kSecond},
    {"AM", DateField::kHalfDay},
    {"PM", DateField::kHalfDay},
}};

bool IsLetter(char ch) {
    return ToLower(ch) >= 'a' && ToLower(ch) <= 'z';
}

bool IsSign(char ch) {
    return static_cast<unsigned char>(ch) < 0x80 && !IsLetter(ch) && !IsDigit(ch) && ch != '"' &&
           ch != '\'';
}

constexpr int kMonths = 12;

int DaysOf(int year, int month) {
    static constexpr std::array<int, kMonths> kDays = {31, 28, 31, 30, 31, 30,
                                                       31, 31, 30, 31, 30, 31};
    const bool leaps = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return kDays[static_cast<std::size_t>(month - 1)] + (month == 2 && leaps ? 1 : 0);
}

/// Reads a text by a format, from the left.
class Reader {
public:
    explicit Reader(std::string_view text) : text_(text) {}

    bool Read(const DateFormat& format) {
        for (const DatePart& part : format) {
            // A time of day may be left out from its end.
            if (text_.empty() && part.field >= DateField::kHour) continue;
            if (text_.empty() && part.field == DateField::kSigns) continue;
            if (!Read(part)) return false;
        }
        return text_.empty();
    }

    std::optional<std::string> Date() const {
        const int year = Year();
        const int month = Value(DateField::kMonth, 0);
        const int day = Value(DateField::kDay, 1);
        if (year < 1 || month < 1 || month > kMonths || day < 1 || day > DaysOf(year, month))
            return std::nullopt;
        const int hour = Hour();
        const int minute = Value(DateField::kMinute, 0);
        const int second = Value(DateField::kSecond, 0);
        if (hour < 0 || hour > 23 || minute > 59 || second > 59) return std::nullopt;
        std::array<char, 80> date{};
        std::snprintf(date.data(), date.size(), "%04d-%02d-%02d %02d:%02d:%02d", year, month, day,
                      hour, minute, second);
        return date.data();
    }

private:
    bool Read(const DatePart& part) {
        switch (part.field) {
            case DateField::kSigns:
                return ReadSigns(part.text.size());
            case DateField::kMonthName:
                return ReadMonthName();
            case DateField::kHalfDay:
                return ReadHalfDay();
            default:
                return ReadNumber(part.field, part.field == DateField::kYear ? 4 : 2);
        }
    }

    /// Any signs will do.
    bool ReadSigns(std::size_t count) {
        std::size_t found = 0;
        while (found < count && found < text_.size() && IsSign(text_[found]))
            ++found;
        text_.remove_prefix(found);
        return found == count;
    }

    bool ReadNumber(DateField field, std::size_t most) {
        int value = 0;
        std::size_t digits = 0;
        for (; digits < most && digits < text_.size() && IsDigit(text_[digits]); ++digits)
            value = value * 10 + (text_[digits] - '0');
        text_.remove_prefix(digits);
        values_[field] = value;
        return digits > 0;
    }

    bool ReadMonthName() {
        static constexpr std::size_t kLength = 3;
        const std::string name = ToUpper(text_.substr(0, kLength));
        const std::string_view names = kMonthNames;
        for (std::size_t month = 0; month < kMonths; ++month) {
            if (names.substr(month * kLength, kLength) != name) continue;
            values_[DateField::kMonth] = static_cast<int>(month) + 1;
            text_.remove_prefix(kLength);
            return true;
        }
        return false;
    }

    bool ReadHalfDay() {
        const std::string word = ToUpper(text_.substr(0, 2));
        if (word != "AM" && word != "PM") return false;
        values_[DateField::kHalfDay] = word == "PM" ? 1 : 0;
        text_.remove_prefix(2);
        return true;
    }

    int Value(DateField field, int instead) const {
        const auto found = values_.find(field);
        return found == values_.end() ? instead : found->second;
    }

    int Year() const {
        constexpr int kCentury = 2000;
        constexpr int kFirstBefore = 50;
        if (const int year = Value(DateField::kYearOfCentury, -1); year >= 0)
            return kCentury + year;
        if (const int year = Value(DateField::kYearNearby, -1); year >= 0)
            return year < kFirstBefore ? kCentury + year : kCentury - 100 + year;
        return Value(DateField::kYear, 0);
    }

    /// Negative where there is none such.
    int Hour() const {
        constexpr int kHalfDay = 12;
        const int hour = Value(DateField::kHourOfHalfDay, 0);
        if (!values_.contains(DateField::kHourOfHalfDay)) return Value(DateField::kHour, 0);
        if (hour < 1 || hour > kHalfDay) return -1;
        return hour % kHalfDay + kHalfDay * Value(DateField::kHalfDay, 0);
    }

    std::string_view text_;
    std::map<DateField, int> values_;
};

}  // namespace

std::optional<DateFormat> ReadDateFormat(std::string_view format) {
    DateFormat parts;
    while (!format.empty()) {
        const auto row = std::ranges::find_if(
            kFields, [&](const FieldRow& field) { return StartsWithNoCase(format, field.text); });
        DatePart part{DateField::kSigns, {}};
        if (row != kFields.end()) {
            part = {row->field, format.substr(0, row->text.size())};
        } else {
            const auto end = std::ranges::find_if_not(format, IsSign);
            part.text = format.substr(0, static_cast<std::size_t>(end - format.begin()));
        }
        if (part.text.empty()) return std::nullopt;
        parts.push_back(part);
        format.remove_prefix(part.text.size());
    }
    if (parts.empty()) return std::nullopt;
    return parts;
}

std::optional<std::string> DateOf(std::string_view text, const DateFormat& format) {
    Reader reader(text);
    return reader.Read(format) ? reader.Date() : std::nullopt;
}

}  // namespace kv::dialect
