#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "adaptors/tool.h"
#include "workbench/map/geometry.h"

namespace workbench {

/// The modeless tools that stand open beside the map. Each is made when it is first asked for, and
/// kept: its OK only hides it.
class MapTools {
public:
    /// The tools lie over that window.
    explicit MapTools(CWnd& owner) : owner_(owner) {}

    using Make = std::function<std::unique_ptr<adaptors::Tool>(CWnd* owner)>;
    /// Says who makes the tool of a class, in place of its adaptor.
    void SetMaker(const std::string& className, Make make);

    /// Shows a tool, with what it held when it was hidden. False for a class that is no tool.
    bool Show(const adaptors::Adaptor& adaptor);
    /// Hands a place of the map to each tool that is shown.
    void SetPosition(const Place& place);

    /// Those that are shown, in the order of their names.
    std::vector<CDialog*> Shown() const;
    /// Brings a tool to the front, with the keyboard.
    static void Activate(CDialog& tool);

    /// Where a window stands beside the map: at the right edge of the main window, as far as the
    /// screen has room there, and below the tools that stand there already.
    CPoint PlaceBeside(const CWnd& tool) const;

    /// Null for one that was never asked for.
    adaptors::Tool* Find(const std::string& className) const;

private:
    CWnd& owner_;
    std::map<std::string, Make> makers_;
    std::map<std::string, std::unique_ptr<adaptors::Tool>> tools_;
};

}  // namespace workbench
