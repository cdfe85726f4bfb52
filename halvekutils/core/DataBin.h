// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <string>

namespace halvek {

/// A named piece of text that the host stores in its Utils object.
///
/// Each property is plain storage: the setter keeps a copy, the getter returns one. Only
/// Utils::AddBin makes a bin.
class HALVEK_EXPORT DataBin {
  public:
    ~DataBin();

    /// The stored text.
    void BinData(TextIn value) { data_ = value; }
    std::u16string BinData() const { return data_; }
    /// The key given to Utils::AddBin.
    void BinKey(TextIn value) { key_ = value; }
    std::u16string BinKey() const { return key_; }
    /// A free name, empty at first; never read by the library.
    void BinName(TextIn value) { name_ = value; }
    std::u16string BinName() const { return name_; }
    /// The type word given to Utils::AddBin; never read by the library.
    void BinType(TextIn value) { type_ = value; }
    std::u16string BinType() const { return type_; }

  private:
    friend class DataBins;
    DataBin();

    std::u16string data_;
    std::u16string key_;
    std::u16string name_;
    std::u16string type_;
};

}  // namespace halvek
