#pragma once

#include <sys/stat.h>

#include <string>

namespace kv::db {

/// Which file a path means at a time.
struct FileIdentity {
    dev_t device = 0;
    ino_t inode = 0;
    bool operator==(const FileIdentity&) const = default;
};

/// That of a path of the machine's own. All 0 where no plain file is there; `whyNot`, if given,
/// tells what is there instead.
inline FileIdentity IdentityOf(const std::string& path, const char** whyNot = nullptr) {
    struct stat status {};
    const bool there = stat(path.c_str(), &status) == 0;
    if (there && S_ISREG(status.st_mode)) return {status.st_dev, status.st_ino};
    if (whyNot) {
        *whyNot = !there                    ? "there is no such file"
                  : S_ISDIR(status.st_mode) ? "it is a folder"
                                            : "it is no plain file";
    }
    return {};
}

}  // namespace kv::db
