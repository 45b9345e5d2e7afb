#include "window/controls/spin_button_ctrl.h"

#include "window/node_factory.h"

namespace {

const kv::RegisterControl<kv::SpinNode, CSpinButtonCtrl> kRegistered{kv::NodeClass::kSpin};

}  // namespace
