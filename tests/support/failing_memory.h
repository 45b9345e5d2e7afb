#pragma once

namespace test {

/// While it lives, each allocation of the process from the `first` one on fails.
class FailingMemory {
public:
    explicit FailingMemory(int first = 1);
    ~FailingMemory();
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;

    /// Whether one has failed yet.
    bool Failed() const;
};

}  // namespace test
