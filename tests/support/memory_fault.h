#pragma once

#include <cstddef>
#include <cstdlib>
#include <new>

// Replaces the operators new and delete of a program: to be included by one of its sources.

namespace test {

/// While it lives, memory runs out behind that many allocations.
class MemoryFault {
public:
    explicit MemoryFault(long left) { Left() = left; }
    ~MemoryFault() { Left() = kEnough; }
    MemoryFault(const MemoryFault&) = delete;
    MemoryFault& operator=(const MemoryFault&) = delete;

    static bool Take() {
        if (Left() > 0) return Left()-- > 0;
        return Left() == kEnough;
    }

private:
    static constexpr long kEnough = -1;

    static long& Left() {
        static long left = kEnough;
        return left;
    }
};

}  // namespace test

// Not inlined: the compiler would see memory of "new" go to "free".
[[gnu::noinline]] void* operator new(std::size_t size) {
    void* memory = test::MemoryFault::Take() ? std::malloc(size > 0 ? size : 1) : nullptr;
    if (!memory) throw std::bad_alloc();
    return memory;
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
