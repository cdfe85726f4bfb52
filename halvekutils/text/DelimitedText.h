// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/StringArray.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <string>

namespace halvek {

// The rules of the members of Utils with the same names, which document them for hosts.

std::u16string SplitStr(TextIn strSplit, TextIn delim, std::int16_t intNum);
bool StrToArr(TextIn str, TextIn del, StringArray& arr);
std::int32_t CountInstances(TextIn strSearchIn, TextIn strSearchFor);
bool ChunkStrToArr(TextIn str, StringArray& arr, std::int32_t chunkLength, TextIn del);
void SplitLeftRight(TextIn strSplit, TextIn delimiter, std::u16string& strLeft,
                    std::u16string& strRight);

}  // namespace halvek
