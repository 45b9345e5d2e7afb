#pragma once

#include <functional>

#include "base/export.h"
#include "window/acting/headless_desktop.h"

namespace kv {

/// A scene of a desktop without a screen: a query takes longer than a person is left without a
/// sign, and `act` acts on the window by which it can be cancelled, once `skip` pumpings have gone
/// by.
KVGUICTL_API void ExpectWait(HeadlessDesktop& desktop, std::function<void(User&)> act,
                             int skip = 0);

}  // namespace kv
