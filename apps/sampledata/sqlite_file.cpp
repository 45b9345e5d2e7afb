#include "sampledata/sqlite_file.h"

#include <system_error>

namespace kv::sample {

bool RemoveWhatLiesBeside(const std::filesystem::path& database) {
    std::error_code error;
    for (const char* ending : {"-journal", "-wal", "-shm"}) {
        std::filesystem::remove(database.string() + ending, error);
        if (error) return false;
    }
    return true;
}

}  // namespace kv::sample
