#pragma once

#include <string>

#include "window/desktop.h"

/// The platform's own dialogs. Each answers with the id of the button that ended it.
namespace kv::qt {

int ShowMessageBox(const MessageBoxRequest& request);
int ShowFileDialog(const FileDialogRequest& request, std::string& path);
int ShowPrintSetup(PrinterSettings& settings);
bool FindDefaultPrinter(PrinterSettings& settings);

}  // namespace kv::qt
