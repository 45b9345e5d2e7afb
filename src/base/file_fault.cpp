#include "base/file_fault.h"

#include <cerrno>
#include <utility>

namespace kv {

namespace {

FileFault& InForce() {
    static FileFault fault;
    return fault;
}

}  // namespace

FileFault SetFileFault(FileFault fault) {
    return std::exchange(InForce(), std::move(fault));
}

bool FileCallFails() {
    if (!InForce() || !InForce()()) return false;
    errno = EIO;
    return true;
}

}  // namespace kv
