#pragma once

#include <string>

#include "base/cstring.h"
#include "base/export.h"

/// Odds and ends that are process-wide or of the machine.
class KVGUICTL_API CKvMisc {
public:
    /// The folder that every import and export dialog starts in; "" when nothing is remembered yet.
    static CString S_GetImportFilePath();
    static void S_SetImportFilePath(CString path);

    /// Fills the three texts from the connection record in force; a record of the three connects as
    /// it does. User and password are taken out of a server text that holds them (a URL, an ODBC
    /// text), so that it can be shown. With the flag the password is given, otherwise it stays
    /// empty, and "***" stands for any other one (a key's) that is left in the server text.
    static void GetParsedConnectString(std::string& user, std::string& password,
                                       std::string& server, bool withPassword);

    /// A text that tells this machine from others: the same for every process and user of it, free
    /// of quotes and blanks. With the flag in upper case.
    static CString GetMachineID(bool upperCase);
};
