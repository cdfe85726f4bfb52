// SPDX-License-Identifier: MIT
#pragma once

namespace halvek {

enum class Memory {
    MissingOnce,  ///< one allocation fails, those behind it succeed
    Exhausted,    ///< that allocation and all behind it fail
};

/// Lets `allocationsBefore` allocations of this process succeed and the next one fail, until the
/// end of the scope. The program that links this runs on a heap of its own.
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
