#pragma once

#include <QStringList>
#include <string>

#include "window/desktop.h"

/// The platform's own dialogs. Each answers with the id of the button that ended it.
namespace kv::qt {

int ShowMessageBox(const MessageBoxRequest& request);
int ShowFileDialog(const FileDialogRequest& request, std::string& path);
/// With one of these printers chosen, where there are any.
int ShowPrintSetup(PrinterSettings& settings, const QStringList& printers);
/// The printer to begin with: the default one, or where there is none, the first; empty for none.
QString PrinterToUse(const QString& byDefault, const QStringList& printers);
/// False when the machine has no printer.
bool FindDefaultPrinter(PrinterSettings& settings);

}  // namespace kv::qt
