#pragma once

namespace test {

/// While it lives, every `new` of this program throws `std::bad_alloc`. What a test asserts comes
/// after it.
class OutOfMemory {
public:
    OutOfMemory();
    ~OutOfMemory();
    OutOfMemory(const OutOfMemory&) = delete;
    OutOfMemory& operator=(const OutOfMemory&) = delete;
};

}  // namespace test
