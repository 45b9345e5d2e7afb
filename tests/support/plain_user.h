#pragma once

#include <unistd.h>

#include <string>

namespace test {

/// For a death test: gives the file to a user without privileges, goes on as this one if the
/// process is the superuser's, to whom no file is closed, and exits with 0 if `check` is true.
template <class Check>
[[noreturn]] void ExitAsPlainUser(const std::string& file, Check check) {
    constexpr uid_t kNobody = 65534;
    constexpr int kNoSuchUser = 2;
    const bool super = geteuid() == 0;
    const bool changed = !super || (lchown(file.c_str(), kNobody, static_cast<gid_t>(-1)) == 0 &&
                                    setuid(kNobody) == 0);
    if (!changed) _exit(kNoSuchUser);
    _exit(check() ? 0 : 1);
}

}  // namespace test
