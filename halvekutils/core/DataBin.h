// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <string>

namespace halvek {

/// A named piece of text that the host parks in its Utils object.
///
/// Each property is plain storage: the setter keeps a copy, the getter returns one. Made by
/// Utils::AddBin only.
class HALVEK_EXPORT DataBin {
  public:
    ~DataBin();

    void BinData(TextIn value) { data_ = value; }
    std::u16string BinData() const { return data_; }
    void BinKey(TextIn value) { key_ = value; }
    std::u16string BinKey() const { return key_; }
    void BinName(TextIn value) { name_ = value; }
    std::u16string BinName() const { return name_; }
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
