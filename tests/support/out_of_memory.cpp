#include "support/out_of_memory.h"

#include <cstdlib>
#include <new>

namespace {

bool none = false;

}  // namespace

namespace test {

OutOfMemory::OutOfMemory() {
    none = true;
}
OutOfMemory::~OutOfMemory() {
    none = false;
}

}  // namespace test

void* operator new(std::size_t size) {
    void* memory = none ? nullptr : std::malloc(size > 0 ? size : 1);
    return memory ? memory : throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
