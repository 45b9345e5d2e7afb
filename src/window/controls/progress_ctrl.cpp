#include "window/controls/progress_ctrl.h"

#include "window/node_factory.h"

namespace {

const kv::RegisterControl<kv::ProgressNode, CProgressCtrl> kRegistered{kv::NodeClass::kProgress};

}  // namespace
