#pragma once

#include <memory>
#include <string>

#include "kvload/store.h"

namespace kvload {

std::unique_ptr<Store> OpenPostgresStore(const std::string& server, Purpose purpose);

}  // namespace kvload
