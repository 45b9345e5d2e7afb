#include "workbench/document/recent_files.h"

#include "frame/kvcom/profile.h"

namespace workbench {

namespace {

constexpr const char* kSection = "Workbench";
constexpr int kMost = 8;

std::string Entry(int number) {
    return "RecentMap" + std::to_string(number);
}

}  // namespace

std::vector<std::string> RecentFiles::Paths() const {
    std::vector<std::string> paths;
    for (int number = 1; number <= kMost; ++number) {
        std::string path = kv::profile::GetString(kSection, Entry(number), "");
        if (!path.empty()) paths.push_back(std::move(path));
    }
    return paths;
}

void RecentFiles::Add(const std::string& path) {
    std::vector<std::string> paths = Paths();
    std::erase(paths, path);
    paths.insert(paths.begin(), path);
    for (int number = 1; number <= kMost; ++number) {
        const auto at = static_cast<std::size_t>(number - 1);
        kv::profile::WriteString(kSection, Entry(number), at < paths.size() ? paths[at] : "");
    }
}

}  // namespace workbench
