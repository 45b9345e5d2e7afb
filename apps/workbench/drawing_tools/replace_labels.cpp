#include "workbench/drawing_tools/replace_labels.h"

#include "base/text.h"

namespace workbench {

namespace {

const FeatureLayer& LayerOf(const AreaMap& area, LabelLayer layer) {
    switch (layer) {
        case LabelLayer::kWells:
            return area.wells;
        case LabelLayer::kPipelines:
            return area.pipelines;
        case LabelLayer::kLeases:
            break;
    }
    return area.blocks;
}

int ReplaceInTexts(std::vector<DrawnText>& texts, const std::string& search,
                   const std::string& replacement) {
    int count = 0;
    for (DrawnText& text : texts) {
        std::string replaced = Replaced(text.text, search, replacement);
        if (replaced == text.text) continue;
        text.text = std::move(replaced);
        ++count;
    }
    std::erase_if(texts, [](const DrawnText& text) { return kv::TrimSpace(text.text).empty(); });
    return count;
}

}  // namespace

LabelLayer LayerOf(const std::string& name) {
    if (name == "WELLS") return LabelLayer::kWells;
    return name == "PIPELINES" ? LabelLayer::kPipelines : LabelLayer::kLeases;
}

ReplaceCount ReplaceEverywhere(Drawings& drawings, const MapModel& model, LabelLayer layer,
                               const std::string& search, const std::string& replacement) {
    ReplaceCount count;
    count.texts = ReplaceInTexts(drawings.texts, search, replacement);
    const LabelTexts before = drawings.labels;
    for (const auto& area : model.Areas()) {
        const FeatureLayer& features = LayerOf(*area, layer);
        for (std::size_t number = 0; number < features.Size(); ++number) {
            const std::string_view label = features.Label(number);
            const std::string_view text = TextOf(before, layer, area->code, label);
            std::string replaced = Replaced(text, search, replacement);
            if (replaced == text) continue;
            const LabelKey key{layer, area->code, std::string(label)};
            if (replaced == label) {
                drawings.labels.erase(key);
            } else {
                drawings.labels[key] = std::move(replaced);
            }
            ++count.labels;
        }
    }
    return count;
}

}  // namespace workbench
