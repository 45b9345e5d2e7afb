#pragma once

#include <filesystem>

namespace kv::sample {

/// Removes what SQLite keeps beside a database. Left beside another of the same name, it would be
/// taken for that one's. False when some of it stays.
bool RemoveWhatLiesBeside(const std::filesystem::path& database);

}  // namespace kv::sample
