#include "kvload/row_maker.h"

#include <algorithm>

#include "base/text.h"
#include "kvload/cell_value.h"
#include "kvload/outline.h"
#include "kvload/refused.h"

namespace kvload {
namespace {

bool IsLabelPart(std::string_view column) {
    return column == kLabel || column == kToLabel || column.ends_with("lbnum") ||
           column.ends_with("lbext");
}

std::string Counted(size_t count, const char* what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

const char* KindName(ShapeKind kind) {
    switch (kind) {
        case ShapeKind::kPoint:
            return "a point";
        case ShapeKind::kLine:
            return "a line";
        case ShapeKind::kPolygon:
            return "an outline";
        default:
            return "nothing";
    }
}

void RequireKind(const Shape& shape, ShapeKind wanted) {
    if (shape.kind == ShapeKind::kOther)
        throw Refused("its geometry is of no use: " + shape.trouble);
    if (shape.kind == ShapeKind::kNone) throw Refused("it has no geometry");
    if (shape.kind != wanted)
        throw Refused(std::string("its geometry is ") + KindName(shape.kind) + ", not " +
                      KindName(wanted));
}

/// The part whose outer ring is the largest, and what share of all of them it is.
const std::vector<Spots>& Largest(const Shape& shape, double& share) {
    const auto areaOf = [](const std::vector<Spots>& part) {
        return part.empty() ? 0.0 : std::abs(TwiceArea(part.front()));
    };
    double sum = 0.0;
    for (const auto& part : shape.parts)
        sum += areaOf(part);
    const auto& largest = *std::ranges::max_element(shape.parts, {}, areaOf);
    share = sum > 0.0 ? areaOf(largest) / sum : 1.0;
    return largest;
}

}  // namespace

RowMaker::RowMaker(const Mapping& mapping, const Layer& layer, const AreaIndex& areas)
    : mapping_(mapping), layer_(layer), areas_(areas), table_(TableOf(*mapping.target)) {
    Bind();
    BindPlaces();
}

int RowMaker::FieldNamed(const std::string& name) {
    if (name.empty()) return -1;
    const auto& fields = layer_.Fields();
    const auto isName = [&](const std::string& field) { return kv::EqualsNoCase(field, name); };
    const auto first = [](const auto& range, const auto& found) {
        return found == range.end() ? -1 : static_cast<int>(found - range.begin());
    };
    for (const int field :
         {first(fields, std::ranges::find(fields, name)),
          first(fields, std::ranges::find_if(fields, isName)),
          first(layer_.Facts(), std::ranges::find_if(layer_.Facts(), isName, &FieldFacts::alias))})
        if (field >= 0) return field;
    missing_.push_back("\"" + name + "\"");
    return -1;
}

void RowMaker::Bind() {
    for (const FieldRule& rule : mapping_.fields)
        bound_.push_back({&rule, FieldNamed(rule.field), ColumnIndex(table_, rule.column)});
    // The water's suffix on a label is told by the area's code.
    std::ranges::stable_partition(
        bound_, [](const Bound& bound) { return !IsLabelPart(bound.rule->column); });
    x_ = FieldNamed(mapping_.place.x);
    y_ = FieldNamed(mapping_.place.y);
    bottomX_ = FieldNamed(mapping_.bottom.x);
    bottomY_ = FieldNamed(mapping_.bottom.y);
    if (missing_.empty()) return;
    std::string words = "The source has no field ";
    for (size_t i = 0; i < missing_.size(); ++i)
        words += (i ? ", " : "") + missing_[i];
    words +=
        layer_.Fields().empty() ? "; it has none (a shapefile's are in its .dbf file)" : "; it has";
    for (const std::string& field : layer_.Fields())
        words += " \"" + field + "\"";
    throw BadMapping(words);
}

void RowMaker::BindPlaces() {
    const bool hasPlaces =
        mapping_.target->places != Places::kNone && (x_ >= 0 || layer_.Kind() != ShapeKind::kNone);
    if (mapping_.target->vertices && !hasPlaces)
        throw BadMapping(
            "The source has no geometry; where a field holds it as text, name that as "
            "\"place\": {\"wkt\": FIELD}");
    if (!hasPlaces && bottomX_ < 0) return;
    const auto systemOf = [&](const std::string& first) {
        for (const std::string& text : {first, mapping_.crs, layer_.ReferenceSystem()})
            if (!text.empty()) return ToDataset(text);
        throw BadSource(
            "It does not tell its reference system, as a .prj file does: name it "
            "as \"crs\" in the mapping, as EPSG:4267 for degrees on NAD27");
    };
    if (hasPlaces) {
        system_.emplace(systemOf(mapping_.place.crs));
        way_ = system_->Description();
        const std::string own = system_->NameIfOther(layer_.ReferenceSystem());
        if (!own.empty() && x_ < 0) way_ += ", by the mapping; the source itself names " + own;
    }
    if (bottomX_ >= 0) bottomSystem_.emplace(systemOf(mapping_.bottom.crs));
}

std::string RowMaker::NameOf(const Feature& feature, long long number) const {
    std::string name = "row " + std::to_string(number);
    for (const Bound& bound : bound_) {
        const bool tells = IsLabelPart(bound.rule->column) || IsRequired(bound.rule->column);
        if (!tells || bound.field < 0) continue;
        const Cell& cell = feature.cells[static_cast<size_t>(bound.field)];
        if (cell && !cell->empty()) name += ", " + cell->substr(0, 40);
    }
    return name;
}

bool RowMaker::IsRequired(std::string_view column) const {
    return std::ranges::find(mapping_.target->required, column) != mapping_.target->required.end();
}

/// Some programs write a word for a value that is not there.
std::string RowMaker::TextIn(const Feature& feature, int field) {
    std::string text = kv::TrimSpace(feature.cells[static_cast<size_t>(field)].value_or(""));
    const bool isNull = kv::EqualsNoCase(text, "<null>") || kv::EqualsNoCase(text, "null");
    return isNull ? "" : text;
}

/// What the source says of a column, or the mapping in its place. Of a value of a list its text is
/// looked for ahead of itself, so that a text that is another value's code is taken for a text.
std::string RowMaker::TextOf(const Bound& bound, const Feature& feature) const {
    if (bound.field < 0) return bound.rule->value;
    std::string text = TextIn(feature, bound.field);
    const auto& codes = bound.rule->codes;
    if (codes.empty()) return text;
    const auto& texts = layer_.Facts()[static_cast<size_t>(bound.field)].texts;
    const auto listed = texts.find(text);
    for (const std::string& known : {listed == texts.end() ? text : listed->second, text})
        if (const auto coded = codes.find(kv::ToUpper(known)); coded != codes.end())
            return coded->second;
    if (text.empty()) return {};
    if (const auto other = codes.find("*"); other != codes.end()) return other->second;
    throw Refused(bound.rule->column + ": \"" + text.substr(0, 40) + "\" is none of the codes");
}

/// Of areas that share a name, as additions do with what they add to, the one that has the row's
/// block; "" where that tells none of them.
std::string RowMaker::AreaOfBlock(const std::vector<std::string>& codes, std::string_view column,
                                  const Feature& feature) const {
    const std::string ahead = column.starts_with("to_") ? "to_" : "";
    std::string found;
    for (const std::string& code : codes) {
        Made made;
        made.row.resize(table_.columns.size());
        const auto cell = [&](const char* name) -> std::string& {
            return made.row[static_cast<size_t>(ColumnIndex(table_, ahead + name))];
        };
        cell("areacode") = code;
        for (const Bound& bound : bound_)
            if (IsLabelPart(bound.rule->column) &&
                bound.rule->column.starts_with("to_") == !ahead.empty())
                SplitLabel(bound, feature, made);
        if (!areas_.HasBlock(code, cell("lbnum"), cell("lbext"))) continue;
        if (!found.empty()) return {};
        found = code;
    }
    return found;
}

/// An area that only tells where something else lies may be unknown.
std::string RowMaker::AreaCode(const Bound& bound, const Feature& feature, Made& made) const {
    const std::string text = TextOf(bound, feature);
    if (text.empty()) return {};
    const std::string by = bound.rule->by.empty() ? "stcode" : bound.rule->by;
    const std::vector<std::string> codes = areas_.CodesBy(by, text);
    if (codes.size() > 1) {
        const std::string code = AreaOfBlock(codes, bound.rule->column, feature);
        if (!code.empty()) return code;
    }
    try {
        return areas_.CodeBy(by, text);
    } catch (const Refused& reason) {
        if (IsRequired(bound.rule->column)) throw;
        made.notes.push_back(std::string(reason.what()) + ": " + bound.rule->column +
                             " stays empty");
        return {};
    }
}

/// Amounts are rounded where the dataset has whole ones; what tells rows apart never is.
std::string RowMaker::Rounded(const kv::sample::Column& column, const std::string& text,
                              Made& made) const {
    if (column.kind != kv::sample::CellKind::kWhole || IsRequired(column.name)) return text;
    const std::string whole = WholeAmount(text);
    if (whole != text)
        made.notes.push_back(std::string(column.name) + ": " + text + " is taken as " + whole);
    return whole;
}

void RowMaker::FillColumn(const Bound& bound, const Feature& feature, Made& made) const {
    if (bound.rule->column == kProjection) {
        made.projection =
            CellValue({kProjection, kv::sample::CellKind::kWhole}, TextOf(bound, feature), "");
        return;
    }
    const size_t at = static_cast<size_t>(bound.column);
    const kv::sample::Column& column = table_.columns[at];
    if (NamesArea(column.name)) {
        made.row[at] = AreaCode(bound, feature, made);
        return;
    }
    const std::string text = Rounded(column, TextOf(bound, feature), made);
    made.row[at] = CellValue(column, text, bound.rule->format);
}

void RowMaker::SplitLabel(const Bound& bound, const Feature& feature, Made& made) const {
    const std::string_view name = bound.rule->column;
    const std::string text = TextOf(bound, feature);
    if (name.ends_with("lbnum") || name.ends_with("lbext")) {
        std::string& cell = made.row[static_cast<size_t>(bound.column)];
        if (!text.empty())
            cell = name.ends_with("lbnum") ? BlockNumber(text) : BlockExtension(text);
        return;
    }
    const std::string ahead = name == kToLabel ? "to_" : "";
    const auto cell = [&](const char* part) -> std::string& {
        return made.row[static_cast<size_t>(ColumnIndex(table_, ahead + part))];
    };
    // A label that nothing needs may be empty.
    if (text.empty()) return;
    const BlockLabel label = bound.rule->label.Split(text, cell("areacode"));
    cell("lbnum") = label.number;
    cell("lbext") = label.ext;
}

void RowMaker::Fill(const Bound& bound, const Feature& feature, Made& made) const {
    try {
        IsLabelPart(bound.rule->column) ? SplitLabel(bound, feature, made)
                                        : FillColumn(bound, feature, made);
    } catch (const Refused& reason) {
        throw Refused(bound.rule->column + ": " + reason.what());
    }
}

void RowMaker::Require(const Made& made) const {
    for (const char* column : mapping_.target->required)
        if (made.row[static_cast<size_t>(ColumnIndex(table_, column))].empty())
            throw Refused(std::string("its ") + column + " is empty");
}

Made RowMaker::Make(const Feature& feature) const {
    Made made;
    made.row.resize(table_.columns.size());
    for (const Bound& bound : bound_)
        Fill(bound, feature, made);
    Require(made);
    switch (mapping_.target->places) {
        case Places::kNone:
            break;
        case Places::kPoint:
            TakePoint(feature, made);
            break;
        case Places::kOutline:
            TakeOutline(feature.shape, made);
            break;
        case Places::kLine:
            TakeLine(feature.shape, made);
            break;
    }
    return made;
}

std::optional<Spot> RowMaker::PlaceIn(const Feature& feature, int x, int y) {
    const std::string east = TextIn(feature, x), north = TextIn(feature, y);
    if (east.empty() || north.empty()) return std::nullopt;
    return Spot{CoordinateIn(east, Axis::kX), CoordinateIn(north, Axis::kY)};
}

/// Both coordinates 0 are what many tables hold for a place that nobody knows.
void RowMaker::PutPlace(const std::optional<Spot>& place, const ToDataset& system, const char* lat,
                        const char* lon, Made& made) const {
    if (!place || *place == Spot{}) {
        made.notes.push_back(std::string("it has no place: ") + lat + " and " + lon +
                             " stay empty");
        return;
    }
    const Spot there = system.Place(*place);
    made.row[static_cast<size_t>(ColumnIndex(table_, lat))] = DegreesText(there.y);
    made.row[static_cast<size_t>(ColumnIndex(table_, lon))] = DegreesText(there.x);
}

void RowMaker::TakePoint(const Feature& feature, Made& made) const {
    if (system_) {
        std::optional<Spot> place;
        if (x_ >= 0) {
            place = PlaceIn(feature, x_, y_);
        } else if (feature.shape.kind != ShapeKind::kNone) {
            RequireKind(feature.shape, ShapeKind::kPoint);
            place = feature.shape.parts.front().front().front();
            if (feature.shape.parts.size() > 1)
                made.notes.push_back("of " + Counted(feature.shape.parts.size(), "place") +
                                     " the first is taken");
        }
        PutPlace(place, *system_, mapping_.target->lat, mapping_.target->lon, made);
    }
    if (bottomX_ >= 0)
        PutPlace(PlaceIn(feature, bottomX_, bottomY_), *bottomSystem_, "bot_lat", "bot_lon", made);
}

void RowMaker::PutVertices(const Spots& places, Made& made) const {
    for (const Spot& place : places)
        made.vertices.push_back(system_->Place(place));
    if (IsTorn(made.vertices))
        throw Refused("it goes over the meridian of 180 degrees, where it would be torn");
}

void RowMaker::TakeOutline(const Shape& shape, Made& made) const {
    RequireKind(shape, ShapeKind::kPolygon);
    double share = 1.0;
    const std::vector<Spots>& part = Largest(shape, share);
    if (part.empty()) throw Refused("its outline has no corners");
    PutVertices(part.front(), made);
    made.vertices = Tidied(std::move(made.vertices));
    if (made.vertices.empty()) throw Refused("its outline has no area");
    if (shape.parts.size() > 1)
        made.notes.push_back("of " + Counted(shape.parts.size(), "part") +
                             " the largest is taken, with " +
                             kv::FormatText("%.1f", 100.0 * share) + " percent of the area");
    if (part.size() > 1) made.notes.push_back(Counted(part.size() - 1, "hole") + " filled");
    if (const auto crossing = Crossing(made.vertices))
        made.notes.push_back("its outline crosses itself near " +
                             kv::FormatText("%.6f, %.6f", crossing->y, crossing->x));
}

void RowMaker::TakeLine(const Shape& shape, Made& made) const {
    RequireKind(shape, ShapeKind::kLine);
    std::vector<Spots> parts;
    for (const auto& part : shape.parts)
        parts.push_back(part.front());
    const std::vector<Spots> lines = Joined(std::move(parts));
    if (lines.empty()) throw Refused("its line has no length");
    PutVertices(lines.front(), made);
    if (lines.size() > 1)
        made.notes.push_back("of " + Counted(lines.size(), "part") +
                             " that do not meet the longest is taken");
}

}  // namespace kvload
