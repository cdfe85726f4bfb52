// SPDX-License-Identifier: MIT
#include <halvekutils/core/DataBins.h>

#include <memory>

namespace halvek {

DataBin::DataBin() = default;
DataBin::~DataBin() = default;

DataBins::DataBins() = default;
DataBins::~DataBins() = default;

void DataBins::Add(TextIn key, TextIn data, TextIn type) {
    if (const auto* found = bins_.Find(key); found != nullptr && (*found)->key_ == key) {
        std::u16string newData(data);
        (*found)->type_ = type;
        (*found)->data_ = std::move(newData);
        return;
    }
    const std::shared_ptr<DataBin> bin(new DataBin);
    bin->data_ = data;
    bin->key_ = key;
    bin->type_ = type;
    bins_.Add(bin, key);
}

const DataBin* DataBins::Find(TextIn key) const {
    const auto* found = bins_.Find(key);
    return found != nullptr && (*found)->key_ == key ? found->get() : nullptr;
}

void DataBins::Remove(TextIn key) {
    if (Find(key) != nullptr) bins_.Remove(key);
}

void DataBins::Clear() {
    bins_ = {};
}

}  // namespace halvek
