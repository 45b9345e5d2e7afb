#pragma once

#include <string>

#include "base/export.h"

/// The user's own folders on this machine, in the machine's form.
namespace kv {

/// "KVGuiCtl" in the user's folder of settings: `XDG_CONFIG_HOME`, or ".config" of the home folder.
KVGUICTL_API std::string ConfigFolder();

/// "kvguictl" in the user's folder of data: `XDG_DATA_HOME`, or ".local/share" of the home folder.
std::string DataFolder();

/// The value of a variable of the environment, or `fallback` where it is missing or empty.
KVGUICTL_API std::string FromEnvironment(const char* name, const std::string& fallback);

}  // namespace kv
