#pragma once

#include <functional>
#include <utility>

#include "base/file_fault.h"

namespace test {

/// While it lives, the n-th file call of `base` fails, counted from 1; none for 0.
class FileFaults {
public:
    explicit FileFaults(int failing)
        : before_(kv::SetFileFault([this, failing] { return ++calls_ == failing; })) {}
    ~FileFaults() { kv::SetFileFault(std::move(before_)); }
    FileFaults(const FileFaults&) = delete;
    FileFaults& operator=(const FileFaults&) = delete;

    /// How many calls there were.
    int Calls() const { return calls_; }

private:
    int calls_ = 0;
    kv::FileFault before_;
};

}  // namespace test
