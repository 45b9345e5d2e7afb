#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace test {

inline constexpr std::string_view kExpected = ".expected.json";

/// The text of a script of this folder, or of what it is expected to give.
inline std::string ScriptFile(const std::string& name) {
    std::ostringstream text;
    text << std::ifstream(std::filesystem::path(KVDLG_SCRIPTS) / name, std::ios::binary).rdbuf();
    return text.str();
}

/// The names of all scripts, in order.
inline std::vector<std::string> ScriptNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(KVDLG_SCRIPTS)) {
        const std::string name = entry.path().filename().string();
        if (name.ends_with(kExpected)) {
            names.push_back(name.substr(0, name.size() - kExpected.size()));
        }
    }
    std::ranges::sort(names);
    return names;
}

}  // namespace test
