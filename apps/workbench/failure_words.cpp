#include "workbench/failure_words.h"

#include "frame/kvcom/cancelled.h"

namespace workbench {

QString FailureWords(const CKvException& failure) {
    if (dynamic_cast<const CKvCancelled*>(&failure)) return {};
    return QString::fromStdString(failure.GetErrorMessage(true, true));
}

}  // namespace workbench
