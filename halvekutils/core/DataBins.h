// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/KeyedCollection.h>
#include <halvekutils/core/DataBin.h>

namespace halvek {

/// The bins of one Utils object, in the order in which they were added.
///
/// A search compares keys exactly, while the collection refuses a key that differs from another
/// only in letter case. So only the one bin that the collection holds under the key can match
/// exactly, and no search needs to walk through the bins.
class DataBins {
  public:
    DataBins();
    ~DataBins();

    /// Replaces the text and type of the bin with exactly this key, or appends a new bin. Throws
    /// DuplicateKey when a bin has this key in other letter case.
    void Add(TextIn key, TextIn data, TextIn type);

    /// The bin with exactly this key, or null.
    const DataBin* Find(TextIn key) const;

    /// Removes the bin with exactly this key, if there is one.
    void Remove(TextIn key);

    void Clear();

  private:
    KeyedCollection<DataBin> bins_;
};

}  // namespace halvek
