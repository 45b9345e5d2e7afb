#pragma once

#include <functional>
#include <memory>
#include <string>

#include "kvdlg/records.h"
#include "window/node.h"

namespace kvdlg {

/// Called with a window that is done, with its controls as they stand.
using WindowClosed = std::function<void(kv::Node&)>;

/// Where windows are drawn. There is one at a time, made ahead of the windows, and outliving them.
class Screen {
public:
    virtual ~Screen() = default;
    /// Writes a PNG file of the window that the node lies in. Throws FileFailure.
    virtual void SavePicture(kv::Node& node, const std::string& path) = 0;
};

/// Windows open and a person works on them. `closed` is told of each, and `records` gets the texts
/// of the message boxes; both must outlive the screen. Throws BadUse where there is no display.
std::unique_ptr<Screen> OpenDisplay(Records& records, WindowClosed closed);

/// Nothing is seen but on pictures, for which no display is needed; what the windows do is up to
/// another desktop, set later. Throws BadUse where the program was built without windows.
std::unique_ptr<Screen> OpenHiddenScreen();

}  // namespace kvdlg
