// SPDX-License-Identifier: MIT
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Guard.h>

namespace halvek {

void Utils::AddBin(TextIn BinKey, TextIn BinData, TextIn BinType) {
    Guarded(OnFault::Beep, u"Error in Utils.AddBin ", LogOf(*this),
            [&] { d_->bins.Add(BinKey, BinData, BinType); });
}

std::u16string Utils::GetBinData(TextIn BinKey) const {
    const DataBin* const bin = d_->bins.Find(BinKey);
    return bin == nullptr ? std::u16string() : bin->BinData();
}

bool Utils::BinExists(TextIn BinKey) const {
    return d_->bins.Find(BinKey) != nullptr;
}
void Utils::RemoveBin(TextIn BinKey) {
    d_->bins.Remove(BinKey);
}
void Utils::ClearAllBins() {
    d_->bins.Clear();
}

}  // namespace halvek
