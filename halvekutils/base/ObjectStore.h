// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Compiler.h>

#include <cstddef>
#include <memory>

namespace halvek {

/// Makes shared objects a chunk at a time: one allocation for many of them.
///
/// An object that outlives the store keeps its chunk alive.
template <class T>
class ObjectStore {
  public:
    /// A new object, made by its default constructor.
    std::shared_ptr<T> Make() {
        if (used_ == kChunk) {
            chunk_ = std::make_shared<Chunk>();
            used_ = 0;
        }
        return std::shared_ptr<T>(chunk_, &chunk_->objects[used_++]);
    }

  private:
    static constexpr std::size_t kChunk = 64;
    struct Chunk {
        T objects[kChunk];
    };

    std::shared_ptr<Chunk> chunk_;
    std::size_t used_ = kChunk;
};

}  // namespace halvek
