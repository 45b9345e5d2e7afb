#pragma once

#include <functional>
#include <string>

#include "workbench/workbench.h"

namespace workbench {

/// Shows a pick on the map and a report about it, as a user would who presses Run twice.
void PlaySample(Workbench& host);

/// Writes PNG files into a folder, which is made if it is not there: one of every dialog, each with
/// its sample inputs and named by its class, and "workbench.png". False, with the reason on the
/// standard error output, when one could not be made.
bool SavePictures(Workbench& host, const std::string& folder);

/// Opens a dialog with its sample inputs, hands its window over when it is in front, and closes all
/// that is open. False when none was there to look at, or `look` answers so.
bool LookAtDialog(Workbench& host, const adaptors::Adaptor& adaptor,
                  const std::function<bool(kv::Node&)>& look);

/// Writes a PNG file of one dialog with its sample inputs into a folder that is there. False, with
/// the reason on the standard error output, when it could not be made.
bool SaveDialog(Workbench& host, const adaptors::Adaptor& adaptor, const std::string& folder);

/// Writes a PNG file of the main window.
bool SaveWindow(Workbench& host, const std::string& path);

}  // namespace workbench
