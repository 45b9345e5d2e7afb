#pragma once

#include <string>
#include <string_view>

namespace kvload {

/// A block's number and extension, as the dataset keeps them.
struct BlockLabel {
    std::string number;
    std::string ext;
    bool operator==(const BlockLabel&) const = default;
};

/// How the labels of a source split. Without a pattern: digits with a letter ahead of them or
/// letters behind, of which blanks, hyphens and slashes are no part ("123A", "123 A", "A-12"), and
/// behind it all the suffix of the area's water, if any.
class LabelRule {
public:
    LabelRule() = default;
    /// A pattern for the whole label, in which "#" is the number, "@" the letters of the extension,
    /// if any, "*" anything, and all else stands for itself in either case. Throws
    /// std::invalid_argument where it does not hold one "#", at most one "@" and at most two "*".
    explicit LabelRule(const std::string& pattern);

    /// Leading zeros of the number are no part of it. Throws Refused where the label does not
    /// split, or gives what the dataset has no place for.
    BlockLabel Split(std::string_view label, std::string_view areaCode) const;

private:
    std::string pattern_;
};

/// A number or an extension that stands in a field of its own. Throws Refused.
std::string BlockNumber(std::string_view text);
std::string BlockExtension(std::string_view text);

}  // namespace kvload
