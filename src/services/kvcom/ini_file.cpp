#include "services/kvcom/ini_file.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <map>
#include <set>
#include <tuple>

#include "base/paths.h"
#include "base/text.h"
#include "frame/kvlogs/log.h"

namespace kv {

namespace {

constexpr int kLogLevel = 101;

struct Entry {
    std::string key;
    std::string value;
};

std::optional<std::string> SectionOf(const std::string& line) {
    const std::string text = TrimSpace(line);
    if (text.size() < 2 || text.front() != '[' || text.back() != ']') return std::nullopt;
    return TrimSpace(std::string_view(text).substr(1, text.size() - 2));
}

bool IsComment(const std::string& text) {
    return text.starts_with(';') || text.starts_with('#');
}

std::string Unquoted(const std::string& value) {
    const bool quoted = value.size() >= 2 && value.front() == '"' && value.back() == '"';
    return quoted ? value.substr(1, value.size() - 2) : value;
}

std::optional<Entry> EntryOf(const std::string& line) {
    const std::string text = TrimSpace(line);
    const std::size_t mark = text.find('=');
    if (mark == std::string::npos || IsComment(text) || SectionOf(line)) return std::nullopt;
    return Entry{TrimSpace(text.substr(0, mark)), Unquoted(TrimSpace(text.substr(mark + 1)))};
}

bool HasLineEnd(std::string_view text) {
    return text.find_first_of(std::string_view("\r\n\0", 3)) != std::string_view::npos;
}

bool CanHold(std::string_view section, std::string_view key, std::string_view value) {
    if (HasLineEnd(section) || HasLineEnd(key) || HasLineEnd(value)) return false;
    if (TrimSpace(section) != section || TrimSpace(key) != key || key.empty()) return false;
    return key.find('=') == std::string_view::npos && !key.starts_with('[') &&
           !IsComment(std::string(key));
}

/// In quotes where it would otherwise be read back as another value.
std::string Written(std::string_view value) {
    const std::string text(value);
    const bool bare = Unquoted(TrimSpace(text)) == text;
    return bare ? text : '"' + text + '"';
}

/// Where the lines of a section stand: from behind its heading to the next heading.
struct Place {
    std::size_t first = 0;
    std::size_t last = 0;
};

std::optional<Place> FindSection(const std::vector<std::string>& lines, std::string_view section) {
    const auto isHeading = [](const std::string& line) { return SectionOf(line).has_value(); };
    const auto isWanted = [&](const std::string& line) {
        return isHeading(line) && EqualsNoCase(*SectionOf(line), section);
    };
    const auto heading = std::find_if(lines.begin(), lines.end(), isWanted);
    if (heading == lines.end()) return std::nullopt;
    const auto end = std::find_if(heading + 1, lines.end(), isHeading);
    return Place{static_cast<std::size_t>(heading - lines.begin()) + 1,
                 static_cast<std::size_t>(end - lines.begin())};
}

void TellOnce(const std::string& path) {
    static std::set<std::string> told;
    if (told.insert(path).second)
        CKvLog::Output("Cannot read the settings in " + path, kLogLevel, false);
}

/// None when there is a file that cannot be read.
std::optional<IniFile> Load(const std::string& path) {
    if (const auto text = ReadTextFile(path)) return IniFile(*text);
    if (!Exists(path)) return IniFile();
    TellOnce(path);
    return std::nullopt;
}

/// Settings are asked for with each statement: a file is read again when it has changed.
using FileState = std::tuple<dev_t, ino_t, off_t, time_t, long>;
struct Kept {
    FileState state;
    IniFile settings;
};

FileState StateOf(const struct stat& file) {
    return {file.st_dev, file.st_ino, file.st_size, file.st_ctim.tv_sec, file.st_ctim.tv_nsec};
}

/// Whether a later change cannot bear the time of the last one: file systems count in ticks.
bool IsSettled(const struct stat& file) {
    constexpr time_t kLongestTick = 2;
    return time(nullptr) > file.st_ctim.tv_sec + kLongestTick;
}

}  // namespace

IniFile::IniFile(std::string_view text) : lines_(SplitLines(text)) {}

std::optional<std::string> IniFile::Get(std::string_view section, std::string_view key) const {
    for (const auto& [name, value] : Entries(section)) {
        if (EqualsNoCase(name, key)) return value;
    }
    return std::nullopt;
}

std::vector<std::pair<std::string, std::string>> IniFile::Entries(std::string_view section) const {
    std::vector<std::pair<std::string, std::string>> entries;
    const Place place = FindSection(lines_, section).value_or(Place{});
    for (std::size_t i = place.first; i < place.last; ++i) {
        if (auto entry = EntryOf(lines_[i])) {
            entries.emplace_back(std::move(entry->key), std::move(entry->value));
        }
    }
    return entries;
}

bool IniFile::Set(std::string_view section, std::string_view key, std::string_view value) {
    if (!CanHold(section, key, value)) return false;
    const std::string line = std::string(key) + '=' + Written(value);
    if (!FindSection(lines_, section)) {
        if (!lines_.empty()) lines_.emplace_back();
        lines_.push_back('[' + std::string(section) + ']');
    }
    const Place place = *FindSection(lines_, section);
    std::size_t end = place.first;
    for (std::size_t i = place.first; i < place.last; ++i) {
        const std::optional<Entry> entry = EntryOf(lines_[i]);
        if (entry && EqualsNoCase(entry->key, key)) {
            lines_[i] = line;
            return true;
        }
        if (!TrimSpace(lines_[i]).empty()) end = i + 1;
    }
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(end), line);
    return true;
}

std::string IniFile::Text() const {
    return JoinLines(lines_);
}

IniFile SettingsFile::Read() const {
    static std::map<std::string, Kept> read;
    struct stat file;
    if (stat(path_.c_str(), &file) != 0 && errno == ENOENT) return IniFile();
    const auto known = read.find(path_);
    if (known != read.end() && known->second.state == StateOf(file)) return known->second.settings;
    const std::optional<IniFile> settings = Load(path_);
    if (settings && IsSettled(file)) read.insert_or_assign(path_, Kept{StateOf(file), *settings});
    return settings.value_or(IniFile());
}

bool SettingsFile::Write(std::string_view section, std::string_view key,
                         std::string_view value) const {
    std::optional<IniFile> settings = Load(path_);
    std::string error = "it cannot be read";
    if (settings) {
        error = "no line can hold it";
        if (settings->Set(section, key, value)) {
            MakeFolders(FolderOf(path_));
            if (WriteFileWhole(path_, settings->Text(), &error)) return true;
        }
    }
    CKvLog::Output(
        "Cannot write " + std::string(key) + " to the settings in " + path_ + ": " + error,
        kLogLevel, false);
    return false;
}

}  // namespace kv
