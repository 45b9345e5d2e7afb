#include "services_pg/sample_answers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>
#include <set>
#include <string_view>

#include "services_sample/collected_rows.h"

namespace test {
namespace {

using kv::test::SqlBox;
using kv::test::SqlPlace;
using kv::test::SqlValues;

// The dataset in memory

struct Area {
    std::string name;
    std::string code;
    std::string mmsCode;
};

struct Corner {
    std::string place;
    std::string latText;
    std::string lonText;
    double lat;
    double lon;
};

struct Block {
    const Area* area;
    std::string number;
    std::string ext;
    std::vector<Corner> corners;
};

double NumberOf(std::string_view text) {
    double number = std::nan("");
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

const std::vector<Area>& Areas() {
    static const std::vector<Area> areas = [] {
        std::vector<Area> made;
        for (const auto& row : Dataset().Of("gulf_mexico_connam2"))
            made.push_back({row[0], row[1], row[2]});
        return made;
    }();
    return areas;
}

const std::vector<Block>& Blocks() {
    static const std::vector<Block> blocks = [] {
        std::map<std::string, const Area*> areaOf;
        for (const Area& area : Areas())
            areaOf[area.code] = &area;
        std::map<std::string, Block> byReference;
        for (const auto& row : Dataset().Of("gulf_mexico_lbi"))
            byReference[row[3]] = {areaOf.at(row[0]), row[1], row[2], {}};
        for (const auto& row : Dataset().Of("gulf_mexico_lbv"))
            byReference.at(row[0]).corners.push_back(
                {row[1], row[2], row[3], NumberOf(row[2]), NumberOf(row[3])});
        std::vector<Block> made;
        for (auto& [reference, block] : byReference)
            made.push_back(std::move(block));
        return made;
    }();
    return blocks;
}

/// One column; the table's name with or without an owner.
std::vector<std::string> Column(const std::string& table, const std::string& column) {
    return Dataset().Column(table.substr(table.find('.') + 1), column);
}

// Rows and their order

using Cells = std::vector<std::string>;
using Table = std::vector<Cells>;

enum class By { kBytes, kNumber, kLease };
struct Key {
    std::size_t column;
    By by = By::kBytes;
};

std::size_t DigitsAt(std::string_view text) {
    return std::min(text.find_first_not_of("0123456789"), text.size());
}

/// Runs of digits count as the numbers they are, all else goes by its bytes.
int CompareLeases(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        const std::size_t digitsA = DigitsAt(a);
        const std::size_t digitsB = DigitsAt(b);
        if (digitsA > 0 && digitsB > 0) {
            const double difference =
                NumberOf(a.substr(0, digitsA)) - NumberOf(b.substr(0, digitsB));
            if (difference != 0) return difference < 0 ? -1 : 1;
            a.remove_prefix(digitsA);
            b.remove_prefix(digitsB);
        } else {
            if (a.front() != b.front())
                return static_cast<unsigned char>(a.front()) < static_cast<unsigned char>(b.front())
                           ? -1
                           : 1;
            a.remove_prefix(1);
            b.remove_prefix(1);
        }
    }
    return a.empty() ? (b.empty() ? 0 : -1) : 1;
}

int Compare(const std::string& a, const std::string& b, By by) {
    if (a.empty() || b.empty()) return a.empty() ? (b.empty() ? 0 : 1) : -1;
    if (by == By::kLease) return CompareLeases(a, b);
    if (by == By::kBytes) return a.compare(b);
    const double difference = NumberOf(a) - NumberOf(b);
    return difference < 0 ? -1 : difference > 0;
}

Answer Ordered(Table rows, const std::vector<Key>& keys) {
    std::ranges::sort(rows, [&](const Cells& a, const Cells& b) {
        for (const Key& key : keys) {
            const int order = Compare(a[key.column], b[key.column], key.by);
            if (order != 0) return order < 0;
        }
        return false;
    });
    Answer answer;
    for (const Cells& row : rows) {
        std::string text;
        for (const std::string& cell : row)
            text += (&cell == row.data() ? "" : "|") + cell;
        answer.push_back(std::move(text));
    }
    return answer;
}

Table Distinct(const Table& rows) {
    const std::set<Cells> distinct(rows.begin(), rows.end());
    return {distinct.begin(), distinct.end()};
}

/// The first column of ordered rows.
Answer FirstCells(Answer rows) {
    for (std::string& row : rows)
        row.resize(row.find('|'));
    return rows;
}

template <typename Texts>
Answer Sorted(const Texts& texts, By by = By::kBytes) {
    Table rows;
    for (const std::string& text : std::set<std::string>(texts.begin(), texts.end()))
        rows.push_back({text});
    return Ordered(rows, {{0, by}, {0}});
}

bool Has(const std::vector<std::string>& list, const std::string& text) {
    return std::ranges::find(list, text) != list.end();
}

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

// Areas and blocks

std::string Label(const std::string& areaCode, const std::string& block) {
    const std::string water = areaCode.substr(0, 3);
    if (water == "426") return block + "-S";
    if (water == "427") return block + "-L";
    const bool bay = water >= "420" && water <= "429";
    return bay ? block + "-BAY" : block;
}

bool IsInside(const Block& block, const SqlBox& box) {
    return std::ranges::any_of(block.corners, [&](const Corner& corner) {
        return corner.lat >= box.minLat && corner.lat <= box.maxLat && corner.lon >= box.minLon &&
               corner.lon <= box.maxLon;
    });
}

std::vector<std::string> OfAreasInBox(const SqlBox& box, std::string Area::*field) {
    std::set<std::string> texts;
    for (const Block& block : Blocks())
        if (IsInside(block, box)) texts.insert(block.area->*field);
    return {texts.begin(), texts.end()};
}

Answer WithLabels(std::vector<std::string> texts, const char* one, const char* other) {
    texts.push_back(one);
    texts.push_back(other);
    return Sorted(texts);
}

std::vector<std::string> OfAreas(std::string Area::*field,
                                 const std::function<bool(const Area&)>& wanted) {
    std::vector<std::string> texts;
    for (const Area& area : Areas())
        if (!(area.*field).empty() && wanted(area)) texts.push_back(area.*field);
    return texts;
}

// The answers

class Answers {
public:
    explicit Answers(const SqlValues& values) : v_(values) {}

    std::map<std::string, std::function<Answer()>> All() {
        AddAreaLists();
        AddBlockLists();
        AddQualifiers();
        AddLeases();
        AddAreaSearches();
        AddPlans();
        AddNeighbors();
        AddZones();
        AddTables();
        return std::move(answers_);
    }

private:
    /// One of the three ways to name an area.
    struct Naming {
        const char* name;
        std::string Area::*field;
        std::string text;
    };
    std::vector<Naming> Namings() const {
        return {{"AnAreaName", &Area::name, v_.areaName},
                {"AnAreaCode", &Area::code, v_.areaCode},
                {"AnMmsCode", &Area::mmsCode, v_.mmsCode}};
    }
    static bool Names(const Naming& naming, const Area& area) {
        return !naming.text.empty() && area.*naming.field == naming.text;
    }

    void Add(const std::string& name, std::function<Answer()> answer) {
        answers_[name] = std::move(answer);
    }

    void AddAreaLists() {
        const auto any = [](const Area&) { return true; };
        const SqlValues& v = v_;
        Add("AreaCodes",
            [=] { return WithLabels(OfAreas(&Area::code, any), " -AREA NAME-", " -MMS CODE-"); });
        Add("AreaNames",
            [=] { return WithLabels(OfAreas(&Area::name, any), " -AREA CODE-", " -MMS CODE-"); });
        Add("MmsCodes", [=] {
            return WithLabels(OfAreas(&Area::mmsCode, any), " -AREA NAME-", " -AREA CODE-");
        });
        Add("AreaCodesInsideABoxWithABracketTooMany", [&v] {
            return WithLabels(OfAreasInBox(v.box, &Area::code), " -AREA NAME-", " -MMS CODE-");
        });
        Add("DistinctAreaCodesInsideABox",
            [&v] { return Sorted(OfAreasInBox(v.box, &Area::code)); });
        Add("AreaNamesOfAList", [&v] {
            return WithLabels(
                OfAreas(&Area::name, [&](const Area& a) { return Has(v.namesInBox, a.name); }),
                " -AREA CODE-", " -MMS CODE-");
        });
        Add("MmsCodesOfAList", [&v] {
            return WithLabels(
                OfAreas(&Area::mmsCode,
                        [&](const Area& a) { return Has(v.mmsCodesInBox, a.mmsCode); }),
                " -AREA NAME-", " -AREA CODE-");
        });
    }

    /// Labels and numbers.
    static Table BlocksOf(const Naming& naming, const SqlBox* box) {
        Table rows;
        for (const Block& block : Blocks())
            if (Names(naming, *block.area) && (!box || IsInside(block, *box)))
                rows.push_back({Label(block.area->code, block.number + block.ext), block.number});
        return rows;
    }

    void AddBlockLists() {
        const std::vector<Key> byNumberText = {{1}, {0}};
        const auto withAll = [=](Table rows) {
            Answer answer = Ordered(Distinct(rows), byNumberText);
            answer.insert(answer.begin(), "ALL|-1");
            return answer;
        };
        for (const Naming& naming : Namings()) {
            const std::string name = std::string("BlocksOf") + naming.name;
            const SqlBox* box = &v_.box;
            Add(name, [=] { return Ordered(BlocksOf(naming, nullptr), byNumberText); });
            Add(name + "BehindAll", [=] { return withAll(BlocksOf(naming, nullptr)); });
            Add(name + "InsideABox",
                [=] { return Ordered(Distinct(BlocksOf(naming, box)), byNumberText); });
            Add(name + "InsideABoxBehindAll", [=] { return withAll(BlocksOf(naming, box)); });
            Add(name + "ByNumber", [=] {
                return FirstCells(Ordered(BlocksOf(naming, nullptr), {{1, By::kNumber}, {0}}));
            });
        }
    }

    using Test = std::function<bool(const std::string&)>;

    std::vector<std::string> Qualifiers(std::size_t tables, const Test& matches) const {
        std::vector<std::string> found;
        for (std::size_t i = 0; i < tables; ++i)
            for (const std::string& text : Column(v_.leaseTables[i], v_.leaseColumn))
                if (!text.empty() && matches(text)) found.push_back(text);
        return found;
    }
    void AddBothOrders(const std::string& name,
                       const std::function<std::vector<std::string>()>& find) {
        Add(name, [=] { return Sorted(find()); });
        Add(name + "InTheOrderOfLeases", [=] { return Sorted(find(), By::kLease); });
    }

    void AddQualifiers() {
        const SqlValues& v = v_;
        const Test contains = [&v](const std::string& t) { return Contains(t, v.leasePart); };
        const Test starts = [&v](const std::string& t) { return t.starts_with(v.leaseStart); };
        const Test ends = [&v](const std::string& t) { return t.ends_with(v.leaseEnd); };
        AddBothOrders("QualifiersThatContainAText", [=, this] { return Qualifiers(1, contains); });
        AddBothOrders("QualifiersThatStartWithAText", [=, this] { return Qualifiers(1, starts); });
        AddBothOrders("QualifiersThatEndWithAText", [=, this] { return Qualifiers(1, ends); });
        AddBothOrders("QualifiersOfTwoTables", [=, this] { return Qualifiers(2, contains); });
        AddBothOrders("QualifiersOfThreeTables", [=, this] { return Qualifiers(3, contains); });
        Add("QualifiersOfTwoColumns", [&v] {
            std::vector<std::string> found;
            for (const char* column : {"lessee", "operator"})
                for (const std::string& text : Column(v.leaseTables[0], column))
                    if (!text.empty() && Contains(text, v.companyPart)) found.push_back(text);
            return Sorted(found);
        });
        Add("QualifiersOfAWholeColumn",
            [&v] { return Sorted(Column(v.leaseTables[0], "lplana")); });
        Add("QualifiersOfAnExpression", [&v] {
            const auto plans = Column(v.leaseTables[0], "lplana");
            const auto leases = Column(v.leaseTables[0], v.leaseColumn);
            std::vector<std::string> found;
            for (std::size_t i = 0; i < plans.size(); ++i)
                if ((plans[i] + leases[i]).starts_with(v.expressionStart))
                    found.push_back(plans[i] + leases[i]);
            return Sorted(found);
        });
    }

    /// Leases with the part that is searched, of the planning areas.
    std::vector<std::string> LeasesOf(const std::string& plans) const {
        const auto plan = Column(v_.leaseTables[0], "lplana");
        const auto leases = Column(v_.leaseTables[0], v_.leaseColumn);
        std::vector<std::string> found;
        for (std::size_t i = 0; i < plan.size(); ++i)
            if (!leases[i].empty() && Contains(plans, plan[i]) &&
                Contains(leases[i], v_.datasetPart))
                found.push_back(leases[i]);
        return found;
    }
    template <typename IsOurs>
    Answer Operators(const std::string& column, const std::string& start, IsOurs isOurs) const {
        const auto keys = Column(v_.leaseTables[0], column);
        const auto operators = Column(v_.leaseTables[0], "operator");
        std::vector<std::string> found;
        for (std::size_t i = 0; i < keys.size(); ++i)
            if (!operators[i].empty() && operators[i].starts_with(start) && isOurs(keys[i]))
                found.push_back(operators[i]);
        return Sorted(found);
    }

    void AddLeases() {
        for (const auto& [name, plans] : {std::pair{"Federal", "CEW"},
                                          {"Louisiana", "L"},
                                          {"Texas", "T"},
                                          {"FederalLouisiana", "CEWL"},
                                          {"FederalTexas", "CEWT"},
                                          {"LouisianaTexas", "LT"},
                                          {"AllDatasets", "CEWLT"}})
            AddBothOrders(std::string("LeasesOf") + name, [=, this] { return LeasesOf(plans); });
        Add("OperatorsOfAList", [this] {
            return Operators("lplana", v_.operatorStart,
                             [](const std::string& key) { return key == "C" || key == "W"; });
        });
        Add("OperatorsOfASubquery", [this] {
            const auto keys = Column(v_.leaseTables[1], v_.leaseColumn);
            const std::set<std::string> known(keys.begin(), keys.end());
            return Operators(v_.leaseColumn, "", [&](const std::string& key) {
                return !key.empty() && known.contains(key);
            });
        });
    }

    void AddAreaSearches() {
        const SqlValues& v = v_;
        Add("AreaNamesLikeAPattern", [&v] {
            return Sorted(
                OfAreas(&Area::name, [&](const Area& a) { return Contains(a.name, v.namePart); }));
        });
        Add("AreaCodesLikeAPattern", [&v] {
            return Sorted(OfAreas(&Area::code,
                                  [&](const Area& a) { return a.code.starts_with(v.codeStart); }));
        });
        Add("MmsCodesLikeAPattern", [&v] {
            return Sorted(OfAreas(&Area::mmsCode,
                                  [&](const Area& a) { return a.mmsCode.ends_with(v.mmsEnd); }));
        });
        for (const auto& [name, field, start] : {std::tuple{"AreaCodes", &Area::code, v.codeStart},
                                                 {"AreaNames", &Area::name, v.nameStart},
                                                 {"MmsCodes", &Area::mmsCode, v.mmsStart}}) {
            const auto search = [=, field = field,
                                 start = start](const std::vector<std::string>& codes) {
                const std::set<std::string> planned(codes.begin(), codes.end());
                return Sorted(OfAreas(field, [&](const Area& area) {
                    return planned.contains(area.code) && (area.*field).starts_with(start);
                }));
            };
            Add(std::string(name) + "OfATable",
                [=, &v] { return search(Column(v.planTable, v.plan.area)); });
            Add(std::string(name) + "OfATableWithTwoSets", [=, &v] {
                auto codes = Column(v.planTable, v.plan.area);
                const auto more = Column(v.planTable, v.otherPlan.area);
                codes.insert(codes.end(), more.begin(), more.end());
                return search(codes);
            });
        }
    }

    /// Labels and numbers; `withExt` false leaves the extension out.
    static void AppendPlanned(const SqlValues& v, const SqlPlace& place, const Naming& naming,
                              bool withExt, Table& rows) {
        const auto areas = Column(v.planTable, place.area);
        const auto blocks = Column(v.planTable, place.block);
        const auto exts = Column(v.planTable, place.ext);
        for (const Area& area : Areas()) {
            if (!Names(naming, area)) continue;
            for (std::size_t i = 0; i < areas.size(); ++i)
                if (areas[i] == area.code)
                    rows.push_back(
                        {Label(areas[i], withExt ? blocks[i] + exts[i] : blocks[i]), blocks[i]});
        }
    }

    void AddPlans() {
        const SqlValues& v = v_;
        const std::vector<Key> byNumberText = {{1}, {0}};
        const auto planned = [&v](const Naming& naming, bool withExt) {
            Table rows;
            AppendPlanned(v, v.plan, naming, withExt, rows);
            return rows;
        };
        for (const Naming& naming : Namings()) {
            const std::string name = std::string("PlannedBlocksOf") + naming.name;
            Add(name, [=] { return Ordered(planned(naming, true), byNumberText); });
            Add(name + "InTwoSets", [=, &v] {
                Table rows = planned(naming, true);
                AppendPlanned(v, v.otherPlan, naming, true, rows);
                return Ordered(Distinct(rows), byNumberText);
            });
        }
        const Naming byCode = Namings()[1];
        Add("PlannedBlocksWithoutExtension",
            [=] { return Ordered(planned(byCode, false), byNumberText); });
    }

    /// Every corner of what has these names; several blocks may have.
    std::vector<Corner> CornersOf(const Naming& naming) const {
        std::vector<Corner> corners;
        for (const Block& block : Blocks())
            if (Names(naming, *block.area) && block.number + block.ext == v_.block)
                corners.insert(corners.end(), block.corners.begin(), block.corners.end());
        return corners;
    }

    Answer Candidates(const Naming& naming) const {
        const std::vector<Corner> corners = CornersOf(naming);
        if (corners.empty()) return {};
        const auto widened = [&](double Corner::*axis) {
            const auto [min, max] = std::ranges::minmax(corners, {}, axis);
            const double margin = (max.*axis - min.*axis) / 5;
            return std::pair{min.*axis - margin, max.*axis + margin};
        };
        const auto [south, north] = widened(&Corner::lat);
        const auto [west, east] = widened(&Corner::lon);
        Table rows;
        for (const Block& block : Blocks()) {
            const bool touches = std::ranges::any_of(block.corners, [&](const Corner& corner) {
                return corner.lat < north && corner.lat > south && corner.lon < east &&
                       corner.lon > west;
            });
            if (touches) rows.push_back({block.area->*naming.field, block.number + block.ext});
        }
        return Ordered(Distinct(rows), {{0}, {1}});
    }

    Answer Outline(const Naming& naming) const {
        Table rows;
        for (const Corner& corner : CornersOf(naming))
            rows.push_back({corner.latText, corner.lonText, corner.place});
        Answer answer = Ordered(rows, {{2, By::kNumber}, {0, By::kNumber}, {1, By::kNumber}});
        for (std::string& row : answer)
            row.resize(row.rfind('|'));
        return answer;
    }

    void AddNeighbors() {
        for (const Naming& naming : Namings()) {
            const std::string name = naming.name;
            Add("CandidatesBy" + name, [=, this] { return Candidates(naming); });
            Add("CandidatesOfAWholeAreaBy" + name, [] { return Answer(); });
            Add("OutlineBy" + name, [=, this] { return Outline(naming); });
        }
    }

    static Table ZoneRows() {
        Table rows;
        const auto codes = Column("gulf_mexico_zone_code", "zone_code");
        const auto descriptions = Column("gulf_mexico_zone_code", "description");
        const auto categories = Column("gulf_mexico_zone_code", "category");
        const auto planes = Column("gulf_mexico_zone_code", "state_plane_code");
        for (std::size_t i = 0; i < codes.size(); ++i)
            rows.push_back({codes[i], descriptions[i], categories[i], planes[i]});
        return rows;
    }
    /// Zones of these categories: what is shown, and the code.
    static Answer ZonesOf(const std::vector<std::string>& categories, bool plain) {
        Table rows;
        for (const Cells& zone : ZoneRows())
            if (Has(categories, zone[2]))
                rows.push_back({plain ? zone[1] : "Zone: " + zone[0] + ": " + zone[1], zone[0]});
        return Ordered(rows, {{1, By::kNumber}});
    }
    static Answer StatePlaneZones() {
        Table rows;
        for (const Cells& zone : ZoneRows())
            if (!zone[3].empty())
                rows.push_back({"Zone: -" + zone[3] + ": " + zone[1], zone[3], zone[1]});
        Answer answer = Ordered(rows, {{2}, {0}, {1, By::kNumber}});
        for (std::string& row : answer)
            row.resize(row.rfind('|'));
        return answer;
    }

    void AddZones() {
        Add("Zones", [] {
            Table rows = ZoneRows();
            for (Cells& row : rows)
                row.pop_back();
            return Ordered(rows, {{0, By::kNumber}});
        });
        Add("StatePlaneZonesOfTheCatalogue", StatePlaneZones);
        Add("StatePlaneZonesOfTheList", StatePlaneZones);
        Add("Spheroids", [] { return ZonesOf({"utm_spheroids"}, true); });
        Add("ZonesOfStateLambert", [] { return ZonesOf({"state_lambert"}, false); });
        Add("ZonesOfStateTransverseMercator",
            [] { return ZonesOf({"state_trans_mercator"}, false); });
        Add("ZonesOfMiscLambert", [] { return ZonesOf({"misc_lambert"}, false); });
        Add("ZonesOfMiscTransverseMercator",
            [] { return ZonesOf({"misc_trans_mercator"}, false); });
        Add("ZonesOfMiscOther", [] {
            return ZonesOf({"misc_boone", "misc_cassini", "misc_other"}, false);
        });
    }

    void AddTables() {
        for (const auto& [name, place] :
             {std::pair{"AreasInTheUsersOrder", "seq"}, {"AreasInTheDefaultOrder", "defseq"}})
            Add(name, [place = std::string(place)] {
                const auto names = Column("nvd2000_area_order", "areaname");
                const auto places = Column("nvd2000_area_order", place);
                Table rows;
                for (std::size_t i = 0; i < names.size(); ++i)
                    rows.push_back({names[i], places[i]});
                return FirstCells(Ordered(rows, {{1, By::kNumber}, {0}}));
            });
        Add("TablesLikeAPattern", [] { return Answer{"GULF_MEXICO_WELL_HDR"}; });
        Add("ATableThatIsNotThere", [] { return Answer(); });
        Add("ATableThatIsThere", [] { return Answer{"GULF_MEXICO_PIPELINE"}; });
    }

    const SqlValues& v_;
    std::map<std::string, std::function<Answer()>> answers_;
};

}  // namespace

std::map<std::string, std::function<Answer()>> SampleAnswers(const SqlValues& values) {
    // The answers look at it for as long as they live.
    const auto answers = std::make_shared<Answers>(values);
    auto all = answers->All();
    for (auto& [name, answer] : all)
        answer = [answers, inner = std::move(answer)] { return inner(); };
    return all;
}

SqlBox BoxAround(const std::string& areaCode, const std::string& block) {
    SqlBox box{90, -90, 180, -180};
    for (const Block& each : Blocks()) {
        if (each.area->code != areaCode || each.number + each.ext != block) continue;
        for (const Corner& corner : each.corners) {
            box.minLat = std::min(box.minLat, std::floor(corner.lat * 1e6) / 1e6);
            box.maxLat = std::max(box.maxLat, std::ceil(corner.lat * 1e6) / 1e6);
            box.minLon = std::min(box.minLon, std::floor(corner.lon * 1e6) / 1e6);
            box.maxLon = std::max(box.maxLon, std::ceil(corner.lon * 1e6) / 1e6);
        }
    }
    return box;
}

std::vector<std::string> NamesInBox(const SqlBox& box) {
    return OfAreasInBox(box, &Area::name);
}

std::vector<std::string> MmsCodesInBox(const SqlBox& box) {
    return OfAreasInBox(box, &Area::mmsCode);
}

}  // namespace test
