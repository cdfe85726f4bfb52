// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <halvekutils/base/Utf8.h>

#include <cstring>

using namespace halvek;

namespace {

bool IsHigh(char16_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
bool IsLow(char16_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

/// The text with U+FFFD for each surrogate that stands alone.
std::u16string WellFormed(std::u16string text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPair = IsHigh(text[i]) && i + 1 < text.size() && IsLow(text[i + 1]);
        if (isPair) {
            ++i;
        } else if (IsHigh(text[i]) || IsLow(text[i])) {
            text[i] = 0xFFFD;
        }
    }
    return text;
}

void CheckUtf8(const std::string& bytes) {
    std::u16string text = FromUtf8(bytes);
    Require(WellFormed(text) == text, "no half of a pair is read");
    Require(FromUtf8(ToUtf8(text)) == text, "what was read is written and read again");
    const bool isWhole = text.find(u'\xFFFD') == text.npos;
    Require(!isWhole || ToUtf8(text) == bytes, "one text has one form in bytes");
    const std::size_t length = text.size();
    std::erase(text, u'\xFFFD');
    const bool isSent = bytes.find("\xEF\xBF\xBD") != bytes.npos;
    Require(isSent || ToUtf8(text).size() + length - text.size() == bytes.size(),
            "each byte of what is malformed is replaced");
}

}  // namespace

void halvek::Check(FuzzedDataProvider& input) {
    const std::string bytes = input.ConsumeRemainingBytesAsString();
    Require(ToCodePage(FromCodePage(bytes)) == bytes, "every byte of the code page comes back");

    CheckUtf8(bytes);
    constexpr std::string_view kEdges = "A\x80\x8F\x90\x9F\xA0\xBF\xC1\xC2\xE0\xED\xF0\xF4\xF5";
    std::string edges = bytes;
    for (char& byte : edges) byte = kEdges[static_cast<unsigned char>(byte) % kEdges.size()];
    CheckUtf8(edges);

    std::u16string text(bytes.size() / 2, u'\0');
    std::memcpy(text.data(), bytes.data(), 2 * text.size());
    Require(FromUtf8(ToUtf8(text)) == WellFormed(text), "every text comes back");
    for (const char16_t unit : text) {
        const char16_t kept = CharacterOf(CodeOf(unit));
        Require(kept == unit || kept == u'?', "what the code page lacks is a question mark");
    }
}
