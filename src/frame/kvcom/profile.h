#pragma once

#include <string>

#include "base/export.h"

/// The application's profile: what it remembers of its looks, such as which tool bars are shown, by
/// section and entry, both without regard to case.
///
/// It is a text file under the user's configuration folder ("KVGuiCtl/profile.ini" under
/// `XDG_CONFIG_HOME`, or under ".config" of the home folder; `KVGUICTL_PROFILE` names another
/// file). A file that cannot be read is logged once and counts as empty.
namespace kv::profile {

/// The stored number; `fallback` where nothing is stored, or no number.
KVGUICTL_API int GetInt(const std::string& section, const std::string& entry, int fallback);
/// The stored text; `fallback` where nothing is stored.
KVGUICTL_API std::string GetString(const std::string& section, const std::string& entry,
                                   const std::string& fallback);

/// Store a value. False, with a line in the log, when it cannot be stored: the file cannot be
/// written (it is then what it was), a text holds a line end, an entry holds "=".
KVGUICTL_API bool WriteInt(const std::string& section, const std::string& entry, int value);
KVGUICTL_API bool WriteString(const std::string& section, const std::string& entry,
                              const std::string& value);

}  // namespace kv::profile
