#pragma once

#include <functional>
#include <string>

#include "adaptors/adaptor.h"
#include "window/acting/headless_desktop.h"

/// The actions of a script.
namespace kvdlg {

using adaptors::Json;

struct Hooks {
    /// "snapshot": the window as it stands.
    std::function<void(kv::Node&, const std::string& name)> snapshot;
    /// "call": a method that a tool's host calls.
    std::function<void(const std::string& method, const Json& arguments)> call;
    /// Told where in the script the next action stands.
    std::function<void(const std::string& where)> at;
};

using Action = std::function<void(kv::User&)>;

/// What an object with one action does. Throws BadScript for what is none; `where` is the place in
/// the script. The desktop must outlive the action.
Action MakeAction(const Json& step, const std::string& where, kv::HeadlessDesktop& desktop,
                  const Hooks& hooks);

}  // namespace kvdlg
