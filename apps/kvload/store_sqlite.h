#pragma once

#include <filesystem>
#include <memory>

#include "kvload/store.h"

namespace kvload {

std::unique_ptr<Store> OpenSqliteStore(const std::filesystem::path& path, Purpose purpose);

}  // namespace kvload
