#include "frame/catalogue.h"

#include <array>

#include "base/text.h"

namespace kv::catalogue {

namespace {

struct Water {
    const char* prefix;
    const char* suffix;
};

/// Behind the first one, which stands in line with the opening of the expression.
constexpr std::array<Water, 9> kWaters = {{{"427", "-L"},
                                           {"420", "-BAY"},
                                           {"421", "-BAY"},
                                           {"422", "-BAY"},
                                           {"423", "-BAY"},
                                           {"424", "-BAY"},
                                           {"425", "-BAY"},
                                           {"428", "-BAY"},
                                           {"429", "-BAY"}}};

struct Title {
    std::string_view text;
    E_Layer layer;
};

constexpr std::array<Title, 11> kTitles = {{{"Wells", KV_LAYER_WELLS},
                                            {"Leases", KV_LAYER_LEASES},
                                            {"APDs", KV_LAYER_APDS},
                                            {"Platforms", KV_LAYER_PLATFORMS},
                                            {"Plans", KV_LAYER_PLANS},
                                            {"Prospects", KV_LAYER_PROSPECTS},
                                            {"Well Completions", KV_LAYER_WELL_COMPLETIONS},
                                            {"Fields", KV_LAYER_FIELDS},
                                            {"Pipelines", KV_LAYER_PIPELINES},
                                            {"Bids", KV_LAYER_BIDS},
                                            {"2D Shotpoints", KV_LAYER_2D_SHOTPOINTS}}};

}  // namespace

std::string WaterBranches(const std::string& block) {
    std::string branches;
    for (const Water& water : kWaters) {
        branches += std::string("'") + water.prefix + "', " + block + " || '" + water.suffix + "',";
    }
    return branches;
}

std::string BlockLabelExpression(std::string_view select) {
    return std::string(select) + "substr(areacode, 1, 3), '426', lbnum||lbext || '-S'," +
           WaterBranches("lbnum||lbext");
}

std::string StripWaterSuffix(const std::string& label) {
    return label.substr(0, label.find('-', 1));
}

bool ParseAbeItem(const std::string& item, AbeItem& out) {
    out = {};
    const std::size_t mark = item.find('#');
    if (mark == std::string::npos) return false;
    out.area = item.substr(0, mark);
    const std::string rest = item.substr(mark + 1);
    if (rest == kAllBlocks) {
        out.block = rest;
        return true;
    }
    for (const char ch : rest)
        (IsDigit(ch) ? out.block : out.ext) += ch;
    if (out.ext.empty()) out.ext = " ";
    return true;
}

E_Layer LayerFromTitle(std::string_view title) {
    for (const Title& known : kTitles) {
        if (known.text == title) return known.layer;
    }
    return KV_LAYER_NONE;
}

}  // namespace kv::catalogue
