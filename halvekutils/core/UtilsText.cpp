// SPDX-License-Identifier: MIT
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Guard.h>
#include <halvekutils/text/DelimitedText.h>

namespace halvek {

std::u16string Utils::SplitStr(TextIn strSplit, TextIn delim, std::int16_t intNum) const {
    return halvek::SplitStr(strSplit, delim, intNum);
}

bool Utils::StrToArr(TextIn Str, TextIn DEL, StringArray& Arr) const {
    return halvek::StrToArr(Str, DEL, Arr);
}

std::int32_t Utils::CountInstances(TextIn strSearchIn, TextIn strSearchFor) const {
    return halvek::CountInstances(strSearchIn, strSearchFor);
}

bool Utils::ChunkStrToArr(TextIn Str, StringArray& Arr, std::int32_t ChunkLength,
                          TextIn DEL) const {
    return halvek::ChunkStrToArr(Str, Arr, ChunkLength, DEL);
}

void Utils::SplitLeftRight(TextIn strSplit, TextIn Delimiter, std::u16string& strLeft,
                           std::u16string& strRight) {
    const auto prefix = [&] { return u"Error in SplitLeftRight :" + strSplit.Str() + u", "; };
    Guarded(OnFault::Beep, prefix, LogOf(*this),
            [&] { halvek::SplitLeftRight(strSplit, Delimiter, strLeft, strRight); });
}

bool Utils::ExistsInColl(const std::shared_ptr<Fetchable>& coll, TextIn key) const {
    return halvek::ExistsInColl(coll, key);
}

}  // namespace halvek
