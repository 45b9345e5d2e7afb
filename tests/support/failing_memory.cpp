#include "support/failing_memory.h"

#include <cstdlib>
#include <new>

namespace {

/// Allocations that still succeed; below 0 where none is to fail.
int g_left = -1;
bool g_failed = false;

void* Allocate(std::size_t size) {
    if (g_left == 0) {
        g_failed = true;
        return nullptr;
    }
    if (g_left > 0) --g_left;
    return std::malloc(size ? size : 1);
}

}  // namespace

void* operator new(std::size_t size) {
    void* memory = Allocate(size);
    if (!memory) throw std::bad_alloc();
    return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size);
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}

namespace test {

FailingMemory::FailingMemory(int first) {
    g_failed = false;
    g_left = first - 1;
}

FailingMemory::~FailingMemory() {
    g_left = -1;
}

bool FailingMemory::Failed() const {
    return g_failed;
}

}  // namespace test
