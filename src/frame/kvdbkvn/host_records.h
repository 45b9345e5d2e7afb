#pragma once

#include "base/export.h"

// Classes that a host names and hands on by value. No dialog looks into one: what a host keeps in
// them it adds by deriving.

/// The name of an operator.
class KVGUICTL_API CKvOperName {};

/// How a host asks for a connection record.
class KVGUICTL_API CKvGuiDbInfo {};

/// How a host asks for the name of a server.
class KVGUICTL_API CKvServerNameDlg {};
