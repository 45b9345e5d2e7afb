#include "kvload/guess.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "base/text.h"
#include "kvload/cell_value.h"
#include "kvload/targets.h"

namespace kvload {
namespace {

using nlohmann::ordered_json;

constexpr int kRowsLookedAt = 200;

/// Names under which a column goes elsewhere, in capitals and without signs; the likeliest first.
struct Names {
    const char* column;
    std::vector<const char*> names;
};

const std::vector<Names>& NamesOfColumns() {
    static const std::vector<Names> names = {
        {"areaname", {"AREANAME", "AREANM", "PROTNAME", "NAME", "AREA"}},
        {"stcode", {"STCODE", "AREACODE", "AREACD", "PROTNUMBER", "CODE"}},
        {"area_abbr", {"AREAABBR", "ABBR", "MMSCODE", "ACLAB", "AREAABBREV"}},
        {"projection", {"PROJECTION", "PROJCODE"}},
        {"areacode",
         {"AREACODE", "AREACD", "STCODE", "ACLAB", "AREAABBR", "SURFAREA", "SURFAREACODE",
          "ORIGAREA", "AREA", "AREANAME"}},
        {"lbnum", {"LBNUM"}},
        {"lbext", {"LBEXT"}},
        {"label",
         {"LABEL", "BLOCKLAB", "BLOCKLABEL", "BLOCKNUMBER", "BLOCKNUM", "BLOCKNO", "BLOCK", "BLKNO",
          "BLKNUM", "BLK", "SURFBLOCK", "SURFBLOCKNUMBER", "BLOCKNBR"}},
        {"company_no", {"COMPANYNO", "COMPANYNUMBER", "COMPANYNUM", "MMSCOMPANYNUM"}},
        {"company", {"COMPANY", "COMPANYNAME", "BUSASCNAME", "OWNER", "LESSEE"}},
        {"percent", {"PERCENT", "ASSIGNMENTPCT", "SHARE"}},
        {"lease_no", {"LEASENO", "LEASENUMBER", "LEASENUM", "LEASE", "SURFLEASENUMBER"}},
        {"lplana", {"LPLANA", "PLANAREA", "MMSPLANAREACD"}},
        {"status",
         {"STATUS", "LEASESTATUSCD", "LEASESTATUS", "STATUSCODE", "STATUSCD", "BOREHOLESTATCD",
          "SEGSTATUS"}},
        {"lessee", {"LESSEE", "LESSEENAME"}},
        {"operator", {"OPERATOR", "OPERATORNAME", "COMPANYNAME", "BUSASCNAME", "OPNAME"}},
        {"lease_date", {"LEASEDATE", "LEASEEFFDATE", "EFFECTIVEDATE", "EFFDATE"}},
        {"expire_date", {"EXPIREDATE", "LEASEEXPIRDATE", "EXPIRATIONDATE", "EXPDATE"}},
        {"acres", {"ACRES", "CURRAREA", "ACREAGE"}},
        {"royalty_pct", {"ROYALTYPCT", "ROYALTYRATE", "ROYALTY"}},
        {"bonus", {"BONUS", "BIDAMOUNT"}},
        {"api_no", {"APINO", "APINUMBER", "APIWELLNUMBER", "API", "APINUM", "APIWELLNO", "UWI"}},
        {"well_name", {"WELLNAME", "WELLNO", "WELLNUMBER"}},
        {"total_depth", {"TOTALDEPTH", "BHTOTALMD", "TD"}},
        {"water_depth", {"WATERDEPTH", "WTRDEPTH"}},
        {"spud_date", {"SPUDDATE", "WELLSPUDDATE", "SPUD"}},
        {"complex_id", {"COMPLEXID", "COMPLEXIDNUM"}},
        {"structure", {"STRUCTURE", "STRUCTURENAME", "STRUCNAME"}},
        {"install_date", {"INSTALLDATE", "INSTDATE"}},
        {"removal_date", {"REMOVALDATE", "REMOVDATE"}},
        {"segment_no", {"SEGMENTNO", "SEGMENTNUM", "SEGMENTNUMBER", "SEGNO"}},
        {"product", {"PRODUCT", "PRODCODE", "PRODUCTCODE", "PRODCD"}},
        {"size_in", {"SIZEIN", "PPLSIZECODE", "SIZE", "DIAMETER"}},
        {"approval_date", {"APPROVALDATE", "APRVCODE", "APRVDATE"}},
        {"x", {"LONGITUDE", "LON", "LONG", "SURFLONGITUDE", "SURFLON", "LNG", "X", "XCOORD"}},
        {"y", {"LATITUDE", "LAT", "SURFLATITUDE", "SURFLAT", "Y", "YCOORD"}},
        {"bottom x", {"BOTTLONGITUDE", "BOTTLON", "BOTLON", "BHLON", "BOTTOMLONGITUDE"}},
        {"bottom y", {"BOTTLATITUDE", "BOTTLAT", "BOTLAT", "BHLAT", "BOTTOMLATITUDE"}},
        {"wkt", {"WKT", "GEOM", "GEOMETRY", "THEGEOM", "SHAPE"}},
    };
    return names;
}

std::string Plain(std::string_view name) {
    std::string plain;
    for (const char ch : kv::ToUpper(name))
        if (kv::IsDigit(ch) || (ch >= 'A' && ch <= 'Z')) plain += ch;
    return plain;
}

class Guesser {
public:
    explicit Guesser(Layer& layer) : layer_(layer) {
        for (const std::string& field : layer.Fields())
            plain_.push_back(Plain(field));
        values_.resize(plain_.size());
        ReadValues();
    }

    Guess Make() {
        const Target& target = Likeliest();
        json_["table"] = target.name;
        if (const bool places = target.places != Places::kNone;
            places && layer_.ReferenceSystem().empty()) {
            json_["crs"] = "";
            Note("the source does not tell its reference system: name it as \"crs\", as EPSG:4267");
        }
        json_["fields"] = Fields(target);
        AddPlaces(target);
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

    /// -1 where there is none.
    int FieldFor(std::string_view column) const {
        const auto names = std::ranges::find(NamesOfColumns(), column, &Names::column);
        if (names == NamesOfColumns().end()) return -1;
        for (const char* name : names->names)
            if (const auto found = std::ranges::find(plain_, name); found != plain_.end())
                return static_cast<int>(found - plain_.begin());
        return -1;
    }

    /// What a row must have counts most, and that the geometry is of its kind.
    int Likelihood(const Target& target) const {
        int score = 0;
        for (const std::string& column : FillableNames(target))
            if (FieldFor(column) >= 0) ++score;
        for (const char* column : target.required) {
            const bool label = std::string_view(column) == "lbnum" && FieldFor(kLabel) >= 0;
            if (label || FieldFor(column) >= 0)
                score += 10;
            else
                score -= 20;
        }
        static constexpr std::array kFits = {std::pair{ShapeKind::kPolygon, Places::kOutline},
                                             std::pair{ShapeKind::kLine, Places::kLine},
                                             std::pair{ShapeKind::kPoint, Places::kPoint},
                                             std::pair{ShapeKind::kNone, Places::kNone}};
        if (std::ranges::find(kFits, std::pair{layer_.Kind(), target.places}) != kFits.end())
            score += 5;
        return score;
    }

    const Target& Likeliest() const {
        return *std::ranges::max_element(Targets(), {},
                                         [&](const Target& target) { return Likelihood(target); });
    }

    ordered_json Fields(const Target& target) {
        ordered_json fields = ordered_json::object();
        for (const std::string& column : FillableNames(target)) {
            if (column.starts_with("lb") && FieldFor("lbnum") < 0) continue;
            if (column == kLabel && FieldFor("lbnum") >= 0) continue;
            if (const int field = FieldFor(column); field >= 0)
                fields[column] = RuleFor(target, column, field);
        }
        for (const char* column : target.required) {
            const std::string name =
                std::string_view(column) == "lbnum" && FieldFor("lbnum") < 0 ? kLabel : column;
            if (fields.contains(name)) continue;
            fields[name] = "";
            Note("no field was found for \"" + name + "\", which " + target.name +
                 " cannot do without");
        }
        return fields;
    }

    ordered_json RuleFor(const Target& target, const std::string& column, int field) {
        const std::string& name = layer_.Fields()[static_cast<size_t>(field)];
        const auto& values = values_[static_cast<size_t>(field)];
        const int at = ColumnIndex(TableOf(target), column);
        if (column == "areacode") {
            if (const char* by = AreaColumnOf(values)) return {{"field", name}, {"by", by}};
        } else if (at >= 0 && TableOf(target).columns[static_cast<size_t>(at)].kind ==
                                  kv::sample::CellKind::kDate) {
            if (const std::string format = DateFormatOf(column, values); !format.empty())
                return {{"field", name}, {"format", format}};
        }
        return name;
    }

    /// Two letters are an MMS code, what is too long for a code a name.
    static const char* AreaColumnOf(const std::vector<std::string>& values) {
        constexpr size_t kLongestMmsCode = 2, kLongestCode = 5;
        size_t longest = 0;
        for (const std::string& value : values)
            longest = std::max(longest, value.size());
        if (longest == 0) return nullptr;
        if (longest <= kLongestMmsCode) return "area_abbr";
        return longest > kLongestCode ? "areaname" : nullptr;
    }

    /// "" where dates can be read in one way only.
    std::string DateFormatOf(const std::string& column, const std::vector<std::string>& values) {
        static constexpr std::array kForms = {"MM/DD/YYYY", "DD/MM/YYYY", "MM/DD/YY",
                                              "DD-MON-YY",  "DD.MM.YYYY", "MM-DD-YYYY"};
        const auto all = [&](const char* form) {
            return !values.empty() && std::ranges::all_of(values, [&](const std::string& value) {
                return IsDay(value, form);
            });
        };
        for (const char* plain : {"YYYY-MM-DD", "YYYY/MM/DD", "YYYYMMDD", "DD-MON-YYYY"})
            if (all(plain)) return {};
        for (const char* form : kForms) {
            if (!all(form)) continue;
            if (all("MM/DD/YYYY") && all("DD/MM/YYYY"))
                Note("the dates of \"" + column + "\" may be read in two ways; " + form +
                     " is a guess");
            return form;
        }
        return {};
    }

    void AddPlaces(const Target& target) {
        const auto name = [&](const char* column) {
            const int field = FieldFor(column);
            return field < 0 ? "" : layer_.Fields()[static_cast<size_t>(field)];
        };
        const bool isBare = layer_.Kind() == ShapeKind::kNone;
        if (target.places == Places::kPoint && isBare && FieldFor("x") >= 0 && FieldFor("y") >= 0)
            json_["place"] = {{"x", name("x")}, {"y", name("y")}};
        if (target.vertices && isBare && FieldFor("wkt") >= 0)
            json_["place"] = {{"wkt", name("wkt")}};
        if (ColumnIndex(TableOf(target), "bot_lat") >= 0 && FieldFor("bottom x") >= 0 &&
            FieldFor("bottom y") >= 0)
            json_["bottom"] = {{"x", name("bottom x")}, {"y", name("bottom y")}};
    }

    void Note(std::string words) { notes_.push_back(std::move(words)); }

    Layer& layer_;
    std::vector<std::string> plain_;
    /// The first values of each field that are not empty.
    std::vector<std::vector<std::string>> values_;
    ordered_json json_;
    std::vector<std::string> notes_;
};

}  // namespace

Guess GuessMapping(Layer& layer) {
    return Guesser(layer).Make();
}

}  // namespace kvload
