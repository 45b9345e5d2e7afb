#pragma once

#include "base/export.h"

// Classes that a host names and hands on by value. No dialog looks into one: what a host keeps in
// them it adds by deriving.

/// A file that a log is written to.
class KVGUICTL_API CKvLogFile {};

/// How a host shows a log.
class KVGUICTL_API CKvLogView {};
