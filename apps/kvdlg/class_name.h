#pragma once

#include <string>

#include "adaptors/adaptor.h"

namespace kvdlg {

/// The dialog of that class, in letters of any case. Throws BadUse, which names the nearest one
/// where one is near.
const adaptors::Adaptor& Require(const std::string& className);

}  // namespace kvdlg
