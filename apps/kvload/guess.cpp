#include "kvload/guess.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <stdexcept>

#include "base/text.h"
#include "frame/coordinate_text.h"
#include "kvload/cell_value.h"
#include "kvload/column_names.h"
#include "kvload/label.h"
#include "kvload/refused.h"
#include "kvload/targets.h"

namespace kvload {
namespace {

using nlohmann::ordered_json;

constexpr int kRowsLookedAt = 200;

/// What stands behind the name of a coordinate that tells its datum.
struct DatumMark {
    const char* mark;
    const char* crs;
};
constexpr DatumMark kDatumMarks[] = {{"NAD27", "EPSG:4267"}, {"27", "EPSG:4267"},
                                     {"NAD83", "EPSG:4269"}, {"83", "EPSG:4269"},
                                     {"WGS84", "EPSG:4326"}, {"84", "EPSG:4326"}};

std::string Plain(std::string_view name) {
    std::string plain;
    for (const char ch : kv::ToUpper(name))
        if (kv::IsDigit(ch) || (ch >= 'A' && ch <= 'Z')) plain += ch;
    return plain;
}

constexpr size_t kLongestCode = 5;
/// What counts in a guess, beside the number of columns.
constexpr int kGood = 5, kVital = 20;

class Guesser {
public:
    explicit Guesser(Layer& layer) : layer_(layer) {
        for (const std::string& field : layer.Fields())
            plain_.push_back(Plain(field));
        for (const FieldFacts& facts : layer.Facts())
            alias_.push_back(Plain(facts.alias));
        values_.resize(plain_.size());
        ReadValues();
    }

    Guess Make(const std::string& asked) {
        const Target& target = Likeliest();
        json_["table"] = target.name;
        if (!asked.empty()) json_["layer"] = asked;
        const Pair place = PlaceOf(target), bottom = BottomOf(target);
        const bool isTold = place.Tells() && (!bottom.IsThere() || bottom.Tells());
        if (target.places != Places::kNone && layer_.ReferenceSystem().empty() && !isTold) {
            json_["crs"] = "";
            Note("the source does not tell its reference system: name it as \"crs\", as EPSG:4267");
        }
        json_["fields"] = Fields(target);
        if (place.IsThere()) json_["place"] = RuleOf(place);
        if (target.vertices && IsBare() && FieldNamed("wkt") >= 0)
            json_["place"] = {{"wkt", NameOf(FieldNamed("wkt"))}};
        if (bottom.IsThere()) json_["bottom"] = RuleOf(bottom);
        return {json_.dump(4) + "\n", notes_};
    }

private:
    void ReadValues() {
        Feature feature;
        std::string failure;
        for (int row = 0; row < kRowsLookedAt; ++row) {
            const Layer::Reading reading = layer_.Read(feature, failure);
            if (reading == Layer::Reading::kFailed)
                throw std::runtime_error("It is damaged at row " + std::to_string(row + 1) + ": " +
                                         failure);
            if (reading == Layer::Reading::kEnd) return;
            for (size_t i = 0; i < values_.size(); ++i) {
                const std::string value = kv::TrimSpace(feature.cells[i].value_or(""));
                if (!value.empty()) values_[i].push_back(value);
            }
        }
    }

    /// The fields of two coordinates, and the system that their names tell.
    struct Pair {
        int x = -1, y = -1;
        const char* crs = "";
        bool IsThere() const { return x >= 0 && y >= 0; }
        bool Tells() const { return IsThere() && *crs; }
    };

    /// A shapefile keeps ten characters of a name.
    bool IsNamed(size_t field, std::string_view name) const {
        constexpr size_t kOfAShapefile = 10;
        return plain_[field] == name || alias_[field] == name ||
               (layer_.Fields()[field].size() == kOfAShapefile && !plain_[field].empty() &&
                name.starts_with(plain_[field]));
    }

    /// The fields that may be a column by their names, the likeliest first.
    std::vector<int> FieldsNamed(std::string_view column) const {
        std::vector<int> fields;
        for (const char* name : NamesOfColumn(column))
            for (size_t i = 0; i < plain_.size(); ++i)
                if (IsNamed(i, name) &&
                    std::ranges::find(fields, static_cast<int>(i)) == fields.end())
                    fields.push_back(static_cast<int>(i));
        return fields;
    }
    int FieldNamed(std::string_view column) const {
        const std::vector<int> fields = FieldsNamed(column);
        return fields.empty() ? -1 : fields.front();
    }

    /// The first of them whose values a column can take; -1 where there is none.
    int FieldFor(const Target& target, const std::string& column) const {
        for (const int field : FieldsNamed(column))
            if (WhyUnfit(target, column, field).empty()) return field;
        return -1;
    }

    const std::map<std::string, std::string>& TextsOf(int field) const {
        return layer_.Facts()[static_cast<size_t>(field)].texts;
    }

    /// Whether a field's values are those of a list with texts that a column can take.
    bool TakesTexts(const Target& target, const std::string& column, int field) const {
        const auto fits = [&](const auto& entry) {
            try {
                Try(target, column, entry.second, "");
                return true;
            } catch (const Refused&) {
                return false;
            }
        };
        return !TextsOf(field).empty() && std::ranges::all_of(TextsOf(field), fits);
    }

    /// Why a column cannot take most of a field's values; "" where it can.
    std::string WhyUnfit(const Target& target, const std::string& column, int field) const {
        if (TakesTexts(target, column, field)) return {};
        const auto& values = values_[static_cast<size_t>(field)];
        const std::string format = DateFormatOf(values);
        size_t unfit = 0;
        std::string why;
        for (const std::string& value : values) {
            try {
                Try(target, column, value, format);
            } catch (const Refused& reason) {
                ++unfit;
                why = reason.what();
            }
        }
        return 2 * unfit > values.size() ? why : "";
    }

    /// Throws Refused where the value is none for the column.
    static void Try(const Target& target, const std::string& column, const std::string& value,
                    const std::string& dateFormat) {
        const kv::sample::Table& table = TableOf(target);
        const int at = ColumnIndex(table, column);
        const bool hasLetters = std::ranges::any_of(
            kv::ToUpper(value), [](char ch) { return (ch >= 'A' && ch <= 'Z') || (ch & 0x80); });
        if (column == kLabel || column == kToLabel) {
            LabelRule().Split(value, "");
        } else if (column.ends_with("lbnum")) {
            BlockNumber(value);
        } else if (column.ends_with("lbext")) {
            BlockExtension(value);
        } else if (column == kProjection) {
            CellValue({kProjection, kv::sample::CellKind::kWhole}, value, "");
        } else if (NamesArea(column) || column == "areaname") {
            const bool isCode =
                column != "areaname" && WithoutZeroFraction(value).size() <= kLongestCode;
            if (!hasLetters && !isCode) throw Refused("\"" + value + "\" is no name");
        } else if (at >= 0) {
            const kv::sample::Column& taken = table.columns[static_cast<size_t>(at)];
            const bool isAmount = taken.kind == kv::sample::CellKind::kWhole;
            CellValue(taken, isAmount ? WholeAmount(value) : value, dateFormat);
        }
    }

    bool IsBare() const { return layer_.Kind() == ShapeKind::kNone; }

    /// How well the geometry is that of the target: below 0 where it cannot be.
    int FitOfShapes(const Target& target) const {
        static constexpr std::array kFits = {std::pair{ShapeKind::kPolygon, Places::kOutline},
                                             std::pair{ShapeKind::kLine, Places::kLine},
                                             std::pair{ShapeKind::kPoint, Places::kPoint},
                                             std::pair{ShapeKind::kNone, Places::kNone}};
        const std::pair kinds{layer_.Kind(), target.places};
        const bool byFields =
            IsBare() && (target.vertices ? FieldNamed("wkt") >= 0 : PlaceOf(target).IsThere());
        if (byFields || std::ranges::find(kFits, kinds) != kFits.end()) return kGood;
        const bool mayBeAny = target.places == Places::kNone ||
                              layer_.Kind() == ShapeKind::kOther || (IsBare() && !target.vertices);
        return mayBeAny ? 0 : -kVital;
    }

    /// How many of its columns there are. What a row must have counts most, and that the geometry
    /// is of its kind.
    int Likelihood(const Target& target) const {
        int score = FitOfShapes(target);
        for (const std::string& column : FillableNames(target))
            if (FieldFor(target, column) >= 0) ++score;
        for (const std::string column : target.required) {
            const bool isLabel = column == "lbnum" && FieldFor(target, kLabel) >= 0;
            if (!isLabel && FieldFor(target, column) < 0)
                score -= kVital;
            else if (target.required.size() == 1)
                score += kGood;  // a number that nothing else has
        }
        return score;
    }

    const Target& Likeliest() const {
        return *std::ranges::max_element(Targets(), {},
                                         [&](const Target& target) { return Likelihood(target); });
    }

    ordered_json Fields(const Target& target) {
        const bool byParts = FieldFor(target, "lbnum") >= 0;
        ordered_json fields = ordered_json::object();
        std::set<int> taken;
        std::vector<std::string> unfilled;
        for (const std::string& column : FillableNames(target)) {
            if (byParts ? column == kLabel : column.starts_with("lb")) continue;
            const int field = FieldFor(target, column);
            if (field < 0) {
                unfilled.push_back(column);
                continue;
            }
            taken.insert(field);
            fields[column] = RuleFor(target, column, field);
        }
        for (const std::string& column : unfilled)
            NoteUnfit(target, column, taken);
        for (const std::string column : target.required) {
            const std::string name = column == "lbnum" && !byParts ? kLabel : column;
            if (fields.contains(name)) continue;
            fields[name] = "";
            Note("no field was found for \"" + name + "\", which " + target.name +
                 " cannot do without");
        }
        return fields;
    }

    /// Tells of a field that by its name were the column, unless it is another one.
    void NoteUnfit(const Target& target, const std::string& column, const std::set<int>& taken) {
        const int field = FieldNamed(column);
        if (field >= 0 && !taken.contains(field))
            Note(NameOf(field) + " is not taken for \"" + column +
                 "\": " + WhyUnfit(target, column, field));
    }

    ordered_json RuleFor(const Target& target, const std::string& column, int field) {
        const std::string& name = NameOf(field);
        const int at = ColumnIndex(TableOf(target), column);
        ordered_json rule = {{"field", name}};
        std::vector<std::string> values = values_[static_cast<size_t>(field)];
        if (!TextsOf(field).empty()) {
            rule["codes"] = CodesFor(target, column, field);
            values.assign(rule["codes"].begin(), rule["codes"].end());
        }
        if (NamesArea(column)) {
            if (const char* by = AreaColumnOf(values)) rule["by"] = by;
        } else if (at >= 0 && TableOf(target).columns[static_cast<size_t>(at)].kind ==
                                  kv::sample::CellKind::kDate) {
            const std::string format = DateFormatOf(values);
            if (AreDays(values, "MM/DD/YYYY") && AreDays(values, "DD/MM/YYYY"))
                Note("the dates of \"" + column + "\" may be read in two ways; " + format +
                     " is a guess");
            if (!format.empty()) rule["format"] = format;
        }
        return rule.size() > 1 ? rule : ordered_json(name);
    }

    /// The texts of a list, each with what stands for it: the text itself, or else its value, which
    /// the person who knows the dataset's codes replaces by those.
    ordered_json CodesFor(const Target& target, const std::string& column, int field) const {
        const bool takesTexts = TakesTexts(target, column, field);
        std::set<std::string> different;
        for (const auto& [value, text] : TextsOf(field))
            different.insert(kv::ToUpper(text));
        const bool byText = takesTexts || different.size() == TextsOf(field).size();
        ordered_json codes = ordered_json::object();
        for (const auto& [value, text] : TextsOf(field))
            codes[byText ? text : value] = takesTexts ? text : value;
        return codes;
    }

    /// Two letters are an MMS code, what is too long for a code a name.
    static const char* AreaColumnOf(const std::vector<std::string>& values) {
        constexpr size_t kLongestMmsCode = 2;
        size_t longest = 0;
        for (const std::string& value : values)
            longest = std::max(longest, value.size());
        if (longest == 0) return nullptr;
        if (longest <= kLongestMmsCode) return "area_abbr";
        return longest > kLongestCode ? "areaname" : nullptr;
    }

    /// Whether all are days of that form; one of zeros alone is none at all.
    static bool AreDays(const std::vector<std::string>& values, const char* form) {
        return !values.empty() && std::ranges::all_of(values, [&](const std::string& value) {
            return value.find_first_not_of('0') == std::string::npos || IsDay(value, form);
        });
    }

    /// "" where dates can be read in one way only.
    static std::string DateFormatOf(const std::vector<std::string>& values) {
        static constexpr std::array kForms = {"MM/DD/YYYY", "DD/MM/YYYY", "MM/DD/YY",  "DD-MON-YY",
                                              "DD.MM.YYYY", "MM-DD-YYYY", "YYYY.MM.DD"};
        for (const char* plain : {"YYYY-MM-DD", "YYYY/MM/DD", "YYYYMMDD", "DD-MON-YYYY"})
            if (AreDays(values, plain)) return {};
        for (const char* form : kForms)
            if (AreDays(values, form)) return form;
        return {};
    }

    const std::string& NameOf(int field) const {
        return layer_.Fields()[static_cast<size_t>(field)];
    }

    /// The two fields by names with that mark behind them.
    Pair PairNamed(std::string_view x, std::string_view y, const DatumMark& mark) const {
        const auto marked = [&](std::string_view column) {
            for (const char* name : NamesOfColumn(column)) {
                const std::string whole = std::string(name) + mark.mark;
                for (size_t i = 0; i < plain_.size(); ++i)
                    if (plain_[i] == whole || alias_[i] == whole) return static_cast<int>(i);
            }
            return -1;
        };
        const Pair pair{marked(x), marked(y), mark.crs};
        return AreDegrees(pair.x, Axis::kX) && AreDegrees(pair.y, Axis::kY) ? pair : Pair{};
    }

    static bool IsDegrees(const std::string& value, Axis axis) {
        try {
            return std::abs(CoordinateIn(value, axis)) <= (axis == Axis::kX ? 360.0 : 90.0);
        } catch (const Refused&) {
            return false;
        }
    }

    /// What its name tells is a datum of degrees alone.
    bool AreDegrees(int field, Axis axis) const {
        return field >= 0 && std::ranges::all_of(
                                 values_[static_cast<size_t>(field)],
                                 [&](const std::string& value) { return IsDegrees(value, axis); });
    }

    /// The first field whose values tell by their letters that they are that coordinate, beside the
    /// two of a well's bottom; -1 where there is none.
    int FieldTelling(Axis axis, const Pair& bottom) const {
        const auto tells = [&](const std::string& value) {
            const auto read = kv::ParseCoordinate(value);
            const bool isX = read && read->longitude, isY = read && read->latitude;
            return axis == Axis::kX ? isX && !isY : isY && !isX;
        };
        for (size_t i = 0; i < values_.size(); ++i) {
            const int field = static_cast<int>(i);
            if (!values_[i].empty() && field != bottom.x && field != bottom.y &&
                std::ranges::all_of(values_[i], tells))
                return field;
        }
        return -1;
    }

    Pair PairFor(std::string_view x, std::string_view y) const {
        for (const DatumMark& mark : kDatumMarks)
            if (const Pair pair = PairNamed(x, y, mark); pair.IsThere()) return pair;
        const Pair named{FieldNamed(x), FieldNamed(y), ""};
        return named.IsThere() ? named : PairNamed(x, y, {"DMS", ""});
    }
    Pair PlaceOf(const Target& target) const {
        if (target.places != Places::kPoint || !IsBare()) return {};
        if (const Pair pair = PairFor("x", "y"); pair.IsThere()) return pair;
        const Pair bottom = BottomOf(target);
        return {FieldTelling(Axis::kX, bottom), FieldTelling(Axis::kY, bottom), ""};
    }
    Pair BottomOf(const Target& target) const {
        return ColumnIndex(TableOf(target), "bot_lat") >= 0 ? PairFor("bottom x", "bottom y")
                                                            : Pair{};
    }

    ordered_json RuleOf(const Pair& pair) const {
        ordered_json rule = {{"x", NameOf(pair.x)}, {"y", NameOf(pair.y)}};
        if (pair.Tells()) rule["crs"] = pair.crs;
        return rule;
    }

    void Note(std::string words) { notes_.push_back(std::move(words)); }

    Layer& layer_;
    std::vector<std::string> plain_;
    std::vector<std::string> alias_;
    /// The first values of each field that are not empty.
    std::vector<std::vector<std::string>> values_;
    ordered_json json_;
    std::vector<std::string> notes_;
};

}  // namespace

Guess GuessMapping(Layer& layer, const std::string& asked) {
    return Guesser(layer).Make(asked);
}

}  // namespace kvload
