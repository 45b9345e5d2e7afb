#include "kvload/area_index.h"

#include "base/text.h"
#include "kvload/cell_value.h"
#include "kvload/refused.h"

namespace kvload {
namespace {

/// Names are the same in any case, and with one blank or several between their words.
std::string Plain(const std::string& name) {
    std::string plain;
    for (const char ch : kv::ToUpper(name))
        if (!kv::IsSpace(ch) || (!plain.empty() && plain.back() != ' '))
            plain += kv::IsSpace(ch) ? ' ' : ch;
    return kv::TrimSpace(plain);
}

std::string BlockKey(const std::string& code, const std::string& number, const std::string& ext) {
    return code + "\x1f" + number + "\x1f" + ext;
}

}  // namespace

void AreaIndex::Add(const std::string& name, const std::string& code, const std::string& mmsCode) {
    if (!codes_.insert(code).second) return;
    byName_.emplace(Plain(name), code);
    if (!mmsCode.empty()) byMmsCode_.emplace(Plain(mmsCode), code);
}

void AreaIndex::AddBlock(const std::string& code, const std::string& number,
                         const std::string& ext) {
    blocks_.insert(BlockKey(code, number, ext));
}

bool AreaIndex::HasBlock(const std::string& code, const std::string& number,
                         const std::string& ext) const {
    return blocks_.contains(BlockKey(code, number, ext));
}

std::vector<std::string> AreaIndex::CodesBy(std::string_view column,
                                            const std::string& text) const {
    std::vector<std::string> codes;
    if (column == "stcode") {
        const std::string code(WithoutZeroFraction(kv::ToUpper(text)));
        if (codes_.contains(code)) codes.push_back(code);
        return codes;
    }
    const auto& names = column == "areaname" ? byName_ : byMmsCode_;
    const auto [first, last] = names.equal_range(Plain(text));
    for (auto name = first; name != last; ++name)
        codes.push_back(name->second);
    return codes;
}

std::string AreaIndex::CodeBy(std::string_view column, const std::string& text) const {
    const std::vector<std::string> codes = CodesBy(column, text);
    if (codes.empty())
        throw Refused((column == "stcode" ? "no area has the code \"" : "no area is called \"") +
                      text + "\"");
    if (codes.size() > 1)
        throw Refused("several areas are called \"" + text + "\": " + codes[0] + ", " + codes[1]);
    return codes.front();
}

}  // namespace kvload
