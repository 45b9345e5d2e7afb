#include "kvload/area_index.h"

#include "kvload/refused.h"

namespace kvload {

void AreaIndex::Add(const std::string& name, const std::string& code, const std::string& mmsCode) {
    if (!codes_.insert(code).second) return;
    byName_.emplace(name, code);
    if (!mmsCode.empty()) byMmsCode_.emplace(mmsCode, code);
}

std::string AreaIndex::CodeBy(std::string_view column, const std::string& text) const {
    if (column == "stcode") {
        if (HasCode(text)) return text;
        throw Refused("no area has the code \"" + text + "\"");
    }
    const auto& names = column == "areaname" ? byName_ : byMmsCode_;
    const auto [first, last] = names.equal_range(text);
    if (first == last) throw Refused("no area is called \"" + text + "\"");
    if (std::next(first) != last)
        throw Refused("several areas are called \"" + text + "\": " + first->second + ", " +
                      std::next(first)->second);
    return first->second;
}

}  // namespace kvload
