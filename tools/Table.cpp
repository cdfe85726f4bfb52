// SPDX-License-Identifier: MIT
#include "Table.h"

#include <halvekutils/base/Utf8.h>

namespace check {

void AppendUtf8(std::string& out, std::u16string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        // Nearly all characters are ASCII; from the first other one on, the library converts.
        if (text[i] >= 0x80) {
            out += halvek::ToUtf8(text.substr(i));
            return;
        }
        out += static_cast<char>(text[i]);
    }
}

Table& Table::Add(halvek::TextIn text) {
    AppendUtf8(text_, text);
    ends_.push_back(text_.size());
    return *this;
}

Table& Table::Add(bool flag) {
    text_ += flag ? "true" : "false";
    ends_.push_back(text_.size());
    return *this;
}

}  // namespace check
