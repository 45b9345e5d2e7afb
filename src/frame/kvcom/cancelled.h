#pragma once

#include "frame/kvcom/exception.h"

/// A query that the person cancelled. Nothing has failed: whoever tells of failures is silent, and
/// what was to be filled stays empty.
class KVGUICTL_API CKvCancelled : public CKvException {
public:
    CKvCancelled() : CKvException("Cancelled") {}
};
