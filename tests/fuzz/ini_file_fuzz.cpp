#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/text.h"
#include "services/kvcom/ini_file.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

/// The text up to the next zero byte, which is taken off with it.
std::string TakeText(std::string_view& bytes) {
    const std::size_t end = bytes.find('\0');
    const std::string text(bytes.substr(0, end));
    bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    return text;
}

/// Each key of a section is found, with the value of the first that has its name.
void CheckEntries(const kv::IniFile& file, const std::string& section) {
    const auto entries = file.Entries(section);
    for (const auto& [key, value] : entries)
        Check(file.Get(section, key).has_value());
    if (!entries.empty())
        Check(file.Get(section, kv::ToUpper(entries.front().first)) == entries.front().second);
}

/// A value that was taken is read back as it was, also from the text that is written; one that was
/// not changes nothing.
void CheckSetting(kv::IniFile file, const std::string& section, const std::string& key,
                  const std::string& value) {
    const std::string before = file.Text();
    if (!file.Set(section, key, value)) return Check(file.Text() == before);
    Check(file.Get(section, key) == value);
    const kv::IniFile again(file.Text());
    Check(again.Get(section, key) == value);
    Check(again.Text() == file.Text());
}

}  // namespace

/// A section, a key and a value, each ended by a zero byte, and then the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::string section = TakeText(bytes);
    const std::string key = TakeText(bytes);
    const std::string value = TakeText(bytes);
    const kv::IniFile file(bytes);
    CheckEntries(file, section);
    CheckSetting(file, section, key, value);
    return 0;
}
