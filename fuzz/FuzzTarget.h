// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/Remarks.h>

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace halvek {

/// What a target does with one input.
void Check(FuzzedDataProvider& input);

/// A text of some length, as the server would send it, from an input that holds several.
inline std::u16string FuzzText(FuzzedDataProvider& input, std::size_t most) {
    const auto length = input.ConsumeIntegralInRange<std::size_t>(0, most);
    return FromCodePage(input.ConsumeBytesAsString(length));
}

/// The rest of an input.
inline std::u16string RestAsText(FuzzedDataProvider& input) {
    return FromCodePage(input.ConsumeRemainingBytesAsString());
}

/// A text made of a few characters only, so that separators are frequent and pieces often equal.
inline std::u16string Narrowed(std::u16string text, std::u16string_view characters) {
    for (char16_t& character : text) character = characters[character % characters.size()];
    return text;
}

/// The rest of an input, made of few characters in every other one.
inline std::u16string RestAsText(FuzzedDataProvider& input, std::u16string_view characters) {
    const bool isAny = input.ConsumeBool();
    return isAny ? RestAsText(input) : Narrowed(RestAsText(input), characters);
}

// Plain versions of the library's fast functions, to compare with.

inline std::u16string Folded(std::u16string text) {
    for (char16_t& character : text) character = FoldCase(character);
    return text;
}

inline std::u16string Trimmed(const std::u16string& text) {
    const std::size_t start = std::min(text.find_first_not_of(u' '), text.size());
    return text.substr(start, text.find_last_not_of(u' ') + 1 - start);
}

/// The pieces between separators: one more than there are separators.
inline std::vector<std::u16string> Cut(std::u16string_view text, char16_t separator) {
    std::vector<std::u16string> pieces(1);
    for (const char16_t character : text) {
        if (character == separator) {
            pieces.emplace_back();
        } else {
            pieces.back() += character;
        }
    }
    return pieces;
}

/// One of some texts.
inline const std::u16string& Picked(FuzzedDataProvider& input,
                                    const std::vector<std::u16string>& texts) {
    return texts[input.ConsumeIntegralInRange<std::size_t>(0, texts.size() - 1)];
}

/// Ends the run like a crash when a condition does not hold.
inline void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

/// What a check of a text remarks on lies in the text, record by record.
/// @return  how many records are left out because of their key
inline std::size_t DoubledIn(const Remarks& remarks, const std::u16string& text) {
    std::size_t doubled = 0;
    std::size_t record = 1;
    for (const Remark& remark : remarks.All()) {
        Require(remark.record >= record, "records are remarked on in their order");
        Require(remark.position <= text.size(), "a remark lies in the text");
        Require(!remark.text.empty(), "a remark says something");
        record = remark.record;
        if (remark.kind == RemarkKind::Doubled) ++doubled;
    }
    return doubled;
}

}  // namespace halvek

/// The fuzzer's way in; a target is one source.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    halvek::Check(input);
    return 0;
}
