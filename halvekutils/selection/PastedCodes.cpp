// SPDX-License-Identifier: MIT
#include <halvekutils/selection/PastedCodes.h>

#include <algorithm>

namespace halvek {

std::u16string PastedCodes(TextIn text) {
    std::u16string codes;
    std::u16string_view rest = text;
    for (std::size_t at; (at = rest.find_first_of(u"\r\n\t;")) != rest.npos;) {
        codes += rest.substr(0, at);
        codes.resize(codes.find_last_not_of(u" ,") + 1);
        rest.remove_prefix(std::min(rest.find_first_not_of(u"\r\n\t; ,", at), rest.size()));
        if (!codes.empty() && !rest.empty()) codes += u',';
    }
    return codes.append(rest);
}

}  // namespace halvek
