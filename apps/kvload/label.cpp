#include "kvload/label.h"

#include <algorithm>
#include <stdexcept>

#include "base/text.h"
#include "kvload/cell_value.h"
#include "kvload/refused.h"
#include "sampledata/areas.h"

namespace kvload {
namespace {

constexpr size_t kLongestLabel = 40;
constexpr size_t kLongestNumber = 5;
constexpr size_t kLongestExt = 2;

bool IsLetter(char ch) {
    return kv::ToUpper(ch) >= 'A' && kv::ToUpper(ch) <= 'Z';
}

bool Separates(char ch) {
    return kv::IsSpace(ch) || ch == '-' || ch == '/';
}

[[noreturn]] void Refuse(std::string_view label) {
    throw Refused("the label \"" + std::string(label) +
                  "\" does not split into a number and an extension; where all are of one form, "
                  "tell it as \"split\" in the mapping");
}

/// Takes what `belongs` from the front of the text.
template <typename Belongs>
std::string TakeRun(std::string_view& text, const Belongs& belongs) {
    const auto end = std::ranges::find_if_not(text, belongs);
    std::string run(text.begin(), end);
    text.remove_prefix(run.size());
    return run;
}

BlockLabel SplitPlain(std::string_view label, std::string_view areaCode) {
    std::string_view rest = label;
    const std::string_view water = kv::sample::WaterSuffix(areaCode);
    if (!water.empty() && kv::ToUpper(rest).ends_with(water)) rest.remove_suffix(water.size());
    const std::string ahead = TakeRun(rest, IsLetter);
    TakeRun(rest, Separates);
    const std::string number = TakeRun(rest, kv::IsDigit);
    TakeRun(rest, Separates);
    const std::string behind = TakeRun(rest, IsLetter);
    TakeRun(rest, Separates);
    // Two letters ahead are an area's, as in GC 123.
    if (number.empty() || !rest.empty() || ahead.size() > 1 || (!ahead.empty() && !behind.empty()))
        Refuse(label);
    return {number, ahead + behind};
}

bool Fits(std::string_view pattern, std::string_view text, BlockLabel& label) {
    if (pattern.empty()) return text.empty();
    const char sign = pattern.front();
    pattern.remove_prefix(1);
    if (sign == '#') {
        label.number = TakeRun(text, kv::IsDigit);
        return !label.number.empty() && Fits(pattern, text, label);
    }
    if (sign == '@') {
        label.ext = TakeRun(text, IsLetter);
        return Fits(pattern, text, label);
    }
    if (sign == '*') {
        for (size_t skipped = 0; skipped <= text.size(); ++skipped)
            if (Fits(pattern, text.substr(skipped), label)) return true;
        return false;
    }
    return !text.empty() && kv::ToUpper(text.front()) == kv::ToUpper(sign) &&
           Fits(pattern, text.substr(1), label);
}

}  // namespace

LabelRule::LabelRule(const std::string& pattern) : pattern_(pattern) {
    const auto count = [&](char sign) { return std::ranges::count(pattern, sign); };
    if (count('#') != 1 || count('@') > 1 || count('*') > 2 || pattern.size() > kLongestLabel)
        throw std::invalid_argument(pattern);
}

BlockLabel LabelRule::Split(std::string_view label, std::string_view areaCode) const {
    const std::string text = kv::TrimSpace(label);
    if (text.empty()) throw Refused("it has no label");
    if (text.size() > kLongestLabel) Refuse(text.substr(0, kLongestLabel) + "...");
    BlockLabel split;
    if (pattern_.empty())
        split = SplitPlain(WithoutZeroFraction(text), areaCode);
    else if (!Fits(pattern_, text, split))
        Refuse(text);
    return {BlockNumber(split.number), BlockExtension(split.ext)};
}

std::string BlockNumber(std::string_view text) {
    const std::string trimmed = kv::TrimSpace(text);
    std::string_view digits = WithoutZeroFraction(trimmed);
    while (digits.size() > 1 && digits.front() == '0')
        digits.remove_prefix(1);
    if (digits.empty() || !std::ranges::all_of(digits, kv::IsDigit))
        throw Refused("\"" + trimmed + "\" is no block number");
    if (digits.size() > kLongestNumber)
        throw Refused("the block number " + std::string(digits) + " has more than 5 digits");
    return std::string(digits);
}

std::string BlockExtension(std::string_view text) {
    std::string ext = kv::ToUpper(kv::TrimSpace(text));
    if (ext.size() > kLongestExt || !std::ranges::all_of(ext, IsLetter))
        throw Refused("\"" + ext + "\" is no extension of one or two letters");
    return ext;
}

}  // namespace kvload
