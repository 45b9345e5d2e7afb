#include "kvdlg/given_registry.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "base/paths.h"
#include "kvdlg/bad_script.h"
#include "kvdlg/failure.h"

namespace kvdlg {

namespace {

using adaptors::Json;

constexpr const char* kVariable = "KVGUICTL_REGISTRY";

/// The text of the registry's file.
std::string TextOf(const Json& registry, const std::string& where) {
    constexpr const char* kExpected =
        "\"registry\" to be an object of paths, each an object of value names and texts";
    if (!registry.is_object()) Wrong(where, kExpected);
    std::string text;
    for (const auto& [path, values] : registry.items()) {
        if (!values.is_object()) Wrong(where, kExpected);
        text += "[" + path + "]\n";
        for (const auto& [name, value] : values.items()) {
            if (!value.is_string()) Wrong(where, kExpected);
            text += name + "=" + value.get<std::string>() + "\n";
        }
    }
    return text;
}

}  // namespace

GivenRegistry::GivenRegistry(const Json& script, const std::map<std::string, int>& lines) {
    if (!script.contains("registry")) return;
    const auto line = lines.find("/registry");
    const std::string where =
        (line == lines.end() ? "" : "Line " + std::to_string(line->second) + ", ") + "the script";
    const std::string text = TextOf(script["registry"], where);
    std::string file = (std::filesystem::temp_directory_path() / "kvdlg-XXXXXX").string();
    const int made = mkstemp(file.data());
    if (made >= 0) close(made);
    if (made < 0 || !kv::WriteFileWhole(file, text)) {
        throw FileFailure("The registry of the script cannot be written to " + file);
    }
    file_ = file;
    if (const char* former = std::getenv(kVariable)) former_ = former;
    setenv(kVariable, file_.c_str(), 1);
    kv::ForgetDrives();
}

GivenRegistry::~GivenRegistry() {
    if (file_.empty()) return;
    kv::RemoveFile(file_);
    if (former_) {
        setenv(kVariable, former_->c_str(), 1);
    } else {
        unsetenv(kVariable);
    }
    kv::ForgetDrives();
}

}  // namespace kvdlg
