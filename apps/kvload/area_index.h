#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace kvload {

/// The areas that a dataset has, or is about to have, and their blocks.
class AreaIndex {
public:
    void Add(const std::string& name, const std::string& code, const std::string& mmsCode);
    void AddBlock(const std::string& code, const std::string& number, const std::string& ext);
    bool HasBlock(const std::string& code, const std::string& number, const std::string& ext) const;
    /// The codes of all areas that have the text, in any case of its letters, in that column of the
    /// area table.
    std::vector<std::string> CodesBy(std::string_view column, const std::string& text) const;
    /// The only one of them. Throws Refused where there is none, or more than one.
    std::string CodeBy(std::string_view column, const std::string& text) const;

private:
    std::set<std::string> codes_;
    std::multimap<std::string, std::string> byName_;
    std::multimap<std::string, std::string> byMmsCode_;
    std::unordered_set<std::string> blocks_;
};

}  // namespace kvload
