#pragma once

#include <QString>

#include "frame/kvcom/exception.h"

namespace workbench {

/// What is told of a failure: nothing of a query that the person has cancelled, who knows.
QString FailureWords(const CKvException& failure);

}  // namespace workbench
