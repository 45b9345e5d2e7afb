#pragma once

#include "adaptors/adaptor.h"

namespace kvdlg {

using adaptors::Json;

/// What is told of a run beside its outcome.
struct Records {
    Json messages = Json::array();  ///< texts of the message boxes
    Json sql = Json::array();       ///< statements that were sent
    Json windows = Json::array();   ///< windows as they stood when they closed, and snapshots
};

}  // namespace kvdlg
