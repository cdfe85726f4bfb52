// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/CaseFolding.h>

#include <string_view>

namespace halvek {

/// The small letter without its accent, as people type a name that they look for; any other
/// character is returned unchanged. Covers the accented letters of Latin-1 and Latin Extended-A; a
/// curly apostrophe is a straight one, a hard blank a blank.
constexpr char16_t PlainLetter(char16_t character) {
    // "?" stands for a character that is no letter with an accent.
    constexpr std::u16string_view kLatin1 =
        u"aaaaaa?ceeeeiiii"
        u"dnooooo?ouuuuy??"
        u"aaaaaa?ceeeeiiii"
        u"dnooooo?ouuuuy?y";
    constexpr std::u16string_view kExtended =
        u"aaaaaaccccccccdd"
        u"ddeeeeeeeeeegggg"
        u"gggghhhhiiiiiiii"
        u"ii??jjkk?lllllll"
        u"lllnnnnnnn??oooo"
        u"oo??rrrrrrssssss"
        u"ssttttttuuuuuuuu"
        u"uuuuwwyyyzzzzzzs";
    constexpr char16_t kFirst = 0xC0;
    static_assert(kLatin1.size() == 0x40 && kExtended.size() == 0x80);
    if (character < kFirst) return character == 0xA0 ? u' ' : FoldCase(character);
    if (character < 0x180) {
        const std::size_t at = character - kFirst;
        const char16_t plain = at < kLatin1.size() ? kLatin1[at] : kExtended[at - kLatin1.size()];
        return plain == u'?' ? FoldCase(character) : plain;
    }
    return character == 0x2018 || character == 0x2019 ? u'\'' : character;
}

}  // namespace halvek
