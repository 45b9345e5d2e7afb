#include "frame/kvlogs/log.h"

#include <array>
#include <cstdio>
#include <ctime>

#include "base/paths.h"
#include "base/text.h"
#include "base/user_folders.h"

namespace {

std::string Now() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &local);
    return text.data();
}

/// The text on one line, each run of white space in it a blank.
std::string OnOneLine(const std::string& text) {
    std::string line;
    for (const char ch : kv::TrimSpace(text)) {
        const bool space = kv::IsSpace(ch);
        if (!space || line.back() != ' ') line += space ? ' ' : ch;
    }
    return line;
}

void Append(const std::string& line) {
    const std::string path =
        kv::FromEnvironment("KVGUICTL_LOG", kv::ConfigFolder() + "/KVGuiCtl.log");
    kv::MakeFolders(kv::FolderOf(path));
    std::FILE* file = std::fopen(kv::ToNative(path).c_str(), "ab");
    if (!file) return;
    std::fwrite(line.data(), 1, line.size(), file);
    std::fclose(file);
}

}  // namespace

void CKvLog::Output(const std::string& text, int level, bool terminal) {
    const std::string line = Now() + kv::FormatText(" %d ", level) + OnOneLine(text) + '\n';
    Append(line);
    if (terminal || kv::FromEnvironment("KVGUICTL_LOG_TERMINAL", "") == "1") {
        std::fwrite(line.data(), 1, line.size(), stderr);
    }
}
