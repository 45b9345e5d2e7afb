#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kv {

/// Text of "[section]" and "key=value" lines. Sections and keys are found without regard to case,
/// the first one where there are several. Lines that are neither (comments, which begin with ";" or
/// "#", and whatever else a person wrote) stay where they are.
class IniFile {
public:
    IniFile() = default;
    explicit IniFile(std::string_view text);

    /// Without the white space around it, and without the double quotes that enclose it whole.
    std::optional<std::string> Get(std::string_view section, std::string_view key) const;
    /// Keys and values of a section, in order.
    std::vector<std::pair<std::string, std::string>> Entries(std::string_view section) const;
    /// Replaces the line of that key, or adds one at the end of its section. False, with nothing
    /// changed, for what such a line cannot hold.
    bool Set(std::string_view section, std::string_view key, std::string_view value);

    std::string Text() const;

private:
    std::vector<std::string> lines_;
};

/// Such a text in a file.
class SettingsFile {
public:
    /// The machine's own path.
    explicit SettingsFile(std::string path) : path_(std::move(path)) {}

    /// Empty when there is no file; also, with a line in the log once in the life of the process,
    /// when there is one that cannot be read.
    IniFile Read() const;
    /// Changes one value. False, with a line in the log, when that cannot be done; the file is then
    /// what it was. A file that cannot be read is never written over.
    bool Write(std::string_view section, std::string_view key, std::string_view value) const;

private:
    std::string path_;
};

}  // namespace kv
