#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>

namespace kvload {

/// The areas that a dataset has, or is about to have.
class AreaIndex {
public:
    void Add(const std::string& name, const std::string& code, const std::string& mmsCode);
    bool HasCode(const std::string& code) const { return codes_.contains(code); }
    /// The code of the area that has the text in that column of the area table. Throws Refused
    /// where there is none, or more than one.
    std::string CodeBy(std::string_view column, const std::string& text) const;

private:
    std::set<std::string> codes_;
    std::multimap<std::string, std::string> byName_;
    std::multimap<std::string, std::string> byMmsCode_;
};

}  // namespace kvload
