#pragma once

#include <functional>
#include <string>

#include "base/export.h"

/// Picking blocks on a map: the one entry of the library `graphics`, which a host provides.
namespace kv {

/// Lets the user pick blocks on a map, modally, and answers when the map is closed.
///
/// Takes the user, password and server of the connection in force, a mode (always 1), a text
/// (always empty) and the schema owner of the application's own tables. Answers a text of fields,
/// each with a comma behind it: two fields that are the map's own, then area name, block and
/// extension for each block picked. An empty text stands for no pick. An exception that leaves it
/// counts as no pick, too.
using Graphics = std::function<std::string(const std::string& user, const std::string& password,
                                           const std::string& server, int mode,
                                           const std::string& text, const std::string& owner)>;

/// Names what `graphics` calls, and returns what there was. Process-wide; null for none.
KVGUICTL_API Graphics SetGraphics(Graphics graphics);

}  // namespace kv

/// Calls what the host named. Answers an empty text where it named nothing, or that failed; the log
/// then tells why.
KVGUICTL_API std::string graphics(const std::string& user, const std::string& password,
                                  const std::string& server, int mode, const std::string& text,
                                  const std::string& owner);
