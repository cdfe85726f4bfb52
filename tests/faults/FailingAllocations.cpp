// SPDX-License-Identifier: MIT
#include "tests/faults/FailingAllocations.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constexpr int kUnlimited = -1;

int allocationsLeft = kUnlimited;
halvek::Memory missing = halvek::Memory::MissingOnce;
bool failed = false;

bool Fails() {
    if (allocationsLeft == kUnlimited) return false;
    if (allocationsLeft > 0) {
        --allocationsLeft;
        return false;
    }
    failed = true;
    if (missing == halvek::Memory::MissingOnce) allocationsLeft = kUnlimited;
    return true;
}

}  // namespace

// Not inlined: the compiler would see malloc in one operator and warn of a mismatch in the other.
[[gnu::noinline]] void* operator new(std::size_t size) {
    if (Fails()) throw std::bad_alloc();
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace halvek {

FailingAllocations::FailingAllocations(int allocationsBefore, Memory memory) {
    failed = false;
    missing = memory;
    allocationsLeft = allocationsBefore;
}

FailingAllocations::~FailingAllocations() {
    allocationsLeft = kUnlimited;
}

bool FailingAllocations::HaveFailed() {
    return failed;
}

}  // namespace halvek
