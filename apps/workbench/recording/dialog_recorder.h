#pragma once

#include <QString>
#include <functional>

#include "adaptors/adaptor.h"

namespace workbench {

/// Writes what a person does in the dialogs that the workbench opens, for a report of a fault: a
/// script for kvdlg for each of them.
class DialogRecorder {
public:
    /// From now on, into that folder.
    void Begin(const QString& folder);
    /// How many there were.
    int End();
    bool Records() const { return !folder_.isEmpty(); }

    /// Runs a dialog, and records it where that was begun. Returns the path of a script that could
    /// not be written; a dialog that could not be recorded has not been run.
    QString Run(const adaptors::Adaptor& adaptor, adaptors::Run& run);

private:
    QString folder_;
    int count_ = 0;
};

}  // namespace workbench
