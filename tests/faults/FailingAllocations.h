// SPDX-License-Identifier: MIT
#pragma once

namespace halvek {

enum class Memory {
    MissingOnce,  ///< one allocation fails, later ones succeed
    Exhausted,    ///< that allocation and all later ones fail
};

/// Lets `allocationsBefore` allocations of this process succeed and the next one fail, until the
/// end of the scope. The program that links this has its own heap.
class FailingAllocations {
  public:
    FailingAllocations(int allocationsBefore, Memory memory);
    ~FailingAllocations();
    FailingAllocations(const FailingAllocations&) = delete;
    FailingAllocations& operator=(const FailingAllocations&) = delete;

    /// Whether an allocation has failed so far.
    static bool HaveFailed();
};

}  // namespace halvek
