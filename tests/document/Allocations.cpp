#include "tests/document/Allocations.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

std::size_t inUse = 0;
std::size_t peak = 0;

void* allocate(std::size_t size) {
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr)
        throw std::bad_alloc();
    inUse += malloc_usable_size(block);
    if (inUse > peak)
        peak = inUse;
    return block;
}

void release(void* block) noexcept {
    if (block != nullptr)
        inUse -= malloc_usable_size(block);
    std::free(block);
}

} // namespace

// The whole test program counts what it allocates.
void* operator new(std::size_t size) {
    return allocate(size);
}

void* operator new[](std::size_t size) {
    return allocate(size);
}

void operator delete(void* block) noexcept {
    release(block);
}

void operator delete[](void* block) noexcept {
    release(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
    release(block);
}

void operator delete[](void* block, std::size_t /*size*/) noexcept {
    release(block);
}

namespace veltrix::test {

PeakMemory::PeakMemory() : before_(inUse) {
    peak = inUse;
}

std::size_t PeakMemory::Bytes() const {
    return peak - before_;
}

} // namespace veltrix::test
