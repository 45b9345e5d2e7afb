#pragma once

#include <map>
#include <string>

#include "kvdlg/actions.h"
#include "kvdlg/bad_script.h"
#include "window/acting/headless_desktop.h"
#include "window/acting/wait_scene.h"

/// A script of scenes as JSON, turned into the scenes of a headless desktop.
namespace kvdlg {

/// What a script calls the map that blocks are picked on.
inline constexpr const char* kMap = "the map";

/// Reads the text as JSON. Throws BadScript with the line and column of what is wrong.
Json ParseJson(const std::string& text, const std::string& nameOfText);

/// Sets what lies outside the windows as the head of the script says: which printer there is, which
/// drives, what time it is, how large the screen, and which folder is the current one. The registry
/// is not set here. Throws BadScript naming the line, also for a name that no script has.
void SetOutside(const Json& script, const std::map<std::string, int>& lines,
                kv::HeadlessDesktop& desktop);

/// What takes the scenes of a script.
struct Stage {
    kv::HeadlessDesktop& desktop;
    kv::QueryScenes& queries;
};

/// Adds the scenes of `user`, a list. The whole script is checked before anything runs: throws
/// BadScript naming line, scene and action. `lines` are those of the whole script, by JSON
/// pointers.
void AddScenes(const Json& user, const std::map<std::string, int>& lines, const Stage& stage,
               const Hooks& hooks);

}  // namespace kvdlg
