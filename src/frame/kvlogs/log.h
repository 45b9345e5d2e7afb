#pragma once

#include <string>

#include "base/export.h"

/// The log: lines of text in a file of the user's ("KVGuiCtl/KVGuiCtl.log" in the configuration
/// folder; `KVGUICTL_LOG` names another file), and on request on the terminal, for every line where
/// `KVGUICTL_LOG_TERMINAL` is 1.
class KVGUICTL_API CKvLog {
public:
    /// Writes one line: local time, level, and the text with its line ends as blanks. With the flag
    /// the line goes to the terminal, too. The level is for the reader of the log; nothing is left
    /// out by it. Never throws; a log that cannot be written is passed over.
    static void Output(const std::string& text, int level, bool terminal);
};
