#pragma once

#include <functional>
#include <map>
#include <stdexcept>
#include <string>

#include "adaptors/adaptor.h"
#include "window/acting/headless_desktop.h"

/// A script of scenes as JSON, turned into the scenes of a headless desktop.
namespace kvdlg {

using adaptors::Json;

/// A script that cannot be read, with what was expected and where.
class BadScript : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What a script calls the map that blocks are picked on.
inline constexpr const char* kMap = "the map";

struct Hooks {
    /// "snapshot": the window as it stands.
    std::function<void(kv::Node&, const std::string& name)> snapshot;
    /// "call": a method that a tool's host calls.
    std::function<void(const std::string& method, const Json& arguments)> call;
    /// Told where in the script the next action stands.
    std::function<void(const std::string& where)> at;
};

/// Reads the text as JSON. Throws BadScript with the line and column of what is wrong.
Json ParseJson(const std::string& text, const std::string& nameOfText);

/// Sets what lies outside the windows as the head of the script says: which printer there is, which
/// drives, what time it is, and how large the screen. Throws BadScript naming the line, also for a
/// name that no script has.
void SetOutside(const Json& script, const std::map<std::string, int>& lines,
                kv::HeadlessDesktop& desktop);

/// Adds the scenes of `user`, a list, to the desktop. The whole script is checked before anything
/// runs: throws BadScript naming line, scene and action. `lines` are those of the whole script, by
/// JSON pointers.
void AddScenes(const Json& user, const std::map<std::string, int>& lines,
               kv::HeadlessDesktop& desktop, const Hooks& hooks);

}  // namespace kvdlg
