// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/base/StringArray.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <string>

namespace halvek {

// The rules behind the members of Utils of the same names, which document them for a host.

HALVEK_EXPORT std::u16string SplitStr(TextIn strSplit, TextIn delim, std::int16_t intNum);
HALVEK_EXPORT bool StrToArr(TextIn str, TextIn del, StringArray& arr);
HALVEK_EXPORT std::int32_t CountInstances(TextIn strSearchIn, TextIn strSearchFor);
HALVEK_EXPORT bool ChunkStrToArr(TextIn str, StringArray& arr, std::int32_t chunkLength,
                                 TextIn del);
HALVEK_EXPORT void SplitLeftRight(TextIn strSplit, TextIn delimiter, std::u16string& strLeft,
                                  std::u16string& strRight);

}  // namespace halvek
