#pragma once

#include "base/export.h"
#include "frame/kvcom/exception.h"

// Classes that a host names and hands on by value, next to those that the dialogs work with. No
// dialog looks into one, so that they hold nothing here: what a host keeps in them it adds by
// deriving.

/// A layer of a map.
class KVGUICTL_API CKvLayerInfo {};

/// Arithmetic of the host's.
class KVGUICTL_API CKvMath {};

/// A project of the host's.
class KVGUICTL_API CKvProjectInfo {};

/// What tells one navigation line from others.
class KVGUICTL_API CKvNavKey {};

/// A failure of the host's own libraries; whoever catches `CKvException` catches it, too.
class KVGUICTL_API CKvUvException : public CKvException {
public:
    using CKvException::CKvException;
};
