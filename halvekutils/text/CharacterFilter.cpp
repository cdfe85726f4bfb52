// SPDX-License-Identifier: MIT
#include <halvekutils/base/CharacterBlock.h>
#include <halvekutils/base/Characters.h>
#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/StringArray.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/text/CharacterFilter.h>
#include <halvekutils/text/DelimitedText.h>

#include <algorithm>
#include <array>
#include <bit>
#include <functional>
#include <string_view>
#include <utility>

namespace halvek {

namespace {

using CodeTable = std::array<bool, 256>;

constexpr CodeTable kUnwanted = [] {
    CodeTable table{};
    for (std::size_t code = 0; code < table.size(); ++code) table[code] = code < 32 || code >= 127;
    table[u'\n'] = table[u'\r'] = false;
    for (const char16_t reserved : {u':', u'^', u'`', u'|'}) table[reserved] = true;
    return table;
}();

// What the user reads. Only this message forbids the tilde: every filter lets it pass.
constexpr std::u16string_view kForbidden = u"| : ^ ` ~";
constexpr int kBackspace = 8;

/// Which codes are removed, and the characters that a message names.
struct Filter {
    CodeTable removed = kUnwanted;
    std::u16string named{kForbidden};
};

/// False when the exceptions cannot be separated.
bool ReadExceptions(TextIn strExceptions, Filter& filter) {
    if (strExceptions.empty()) return true;
    StringArray exceptions;
    if (!StrToArr(strExceptions, u",", exceptions)) return false;
    for (const std::u16string& exception : exceptions) {
        if (!exception.empty()) filter.removed[CodeOf(exception.front())] = false;
    }
    filter.named.clear();
    for (std::size_t i = 0; i < kForbidden.size(); i += 2) {
        const std::u16string_view character = kForbidden.substr(i, 1);
        if (std::ranges::find(exceptions, character) == exceptions.end()) {
            filter.named.append(u" ").append(character);
        }
    }
    return true;
}

/// Calls `visit` with the position of each character that some filter may change.
template <class Visit>
void ForEachSpecial(std::u16string_view text, const Visit& visit) {
    std::size_t at = 0;
    for (; at + kBlockLength <= text.size(); at += kBlockLength) {
        // From the bar on: the two harmless characters after it are rare.
        std::uint32_t mask = MaskOfOthers<u' ', u'{', u':', u'^', u'`'>(text.data() + at);
        for (; mask != 0; mask &= mask - 1) {
            visit(at + static_cast<std::size_t>(std::countr_zero(mask)));
        }
    }
    for (; at < text.size(); ++at) visit(at);
}

/// The text with some characters replaced. `keeps(character, code)` is true for those that stay;
/// `replace(code, out)` appends the replacement of any other.
template <class Keeps, class Replace>
std::u16string Replaced(TextIn text, const Keeps& keeps, const Replace& replace) {
    constexpr std::size_t kStep = 4096;  // small enough to be copied while it is in the cache
    std::u16string out;
    out.reserve(text.size());
    for (TextIn rest = text; !rest.empty(); rest.remove_prefix(std::min(kStep, rest.size()))) {
        const TextIn step = rest.substr(0, kStep);
        std::size_t start = 0;
        ForEachSpecial(step, [&](std::size_t at) {
            const std::uint8_t code = CodeOf(step[at]);
            if (keeps(step[at], code)) return;
            out.append(step, start, at - start);
            replace(code, out);
            start = at + 1;
        });
        out.append(step, start);
    }
    return out;
}

std::u16string MessageOf(const Filter& filter, bool bDoNotRemoveUnwantedChars) {
    const std::u16string_view headline = bDoNotRemoveUnwantedChars
                                             ? u"Invalid characters were found."
                                             : u"Invalid characters were found and removed.";
    return std::u16string(headline) + u"\r\nThe following characters may not be used: \r\n" +
           filter.named + u"\r\n";
}

/// True when writing to the owner would change what the view shows.
bool IsViewOf(std::u16string_view view, const std::u16string& owner) {
    const std::less_equal<const char16_t*> isUpTo;
    return isUpTo(owner.data(), view.data()) && isUpTo(view.data(), owner.data() + owner.size());
}

/// Both texts for the debug console, which drops lines outside debug mode.
void TellDebugConsole(Services& session, TextIn strIN, TextIn result) {
    if (!session.DebugMode()) return;
    session.ShowInDebug(u"Invalid chars fnd and rmvd.\r\nstrIN:     " + strIN.Str() +
                        u"\r\nstrOUT: " + result.Str() + u"\r\n");
}

}  // namespace

bool IsUnwantedChar(std::int32_t locChar) {
    const auto last = static_cast<std::int32_t>(kUnwanted.size()) - 1;
    return kUnwanted[static_cast<std::size_t>(std::clamp(locChar, 0, last))];
}

bool IsDateChar(std::int32_t locChar) {
    if (locChar < 0 || locChar > 255) {
        throw RuntimeError(Fault::InvalidArgument, u"character code " + IntegerText(locChar));
    }
    return IsDigit(static_cast<char16_t>(locChar)) || locChar == u'/' || locChar == kBackspace;
}

bool IsAlpha(TextIn strText) {
    return std::ranges::all_of(strText, IsLetter);
}

std::u16string RemoveUnprintableChars(TextIn str) {
    const auto keeps = [](char16_t character, std::uint8_t) {
        return character >= 32 && character <= 126;
    };
    const auto replace = [](std::uint8_t code, std::u16string& out) {
        if (code >= 32 && code <= 126) {  // the "?" of a character that the code page lacks
            out += CharacterOf(code);
            return;
        }
        out += u'<' + IntegerText(code) + u'>';
        if (code == u'\r') out += u"\r\n";
    };
    return Replaced(str, keeps, replace);
}

FilterReport RemoveUnwantedChars(TextIn strIN, std::u16string& strOUT, TextIn strReplaceWith,
                                 bool bDoNotRemoveUnwantedChars, TextIn strExceptions) {
    FilterReport report;
    Filter filter;
    if (strIN.empty() || !ReadExceptions(strExceptions, filter)) {
        strOUT.clear();
        return report;
    }
    const auto keeps = [&](char16_t character, std::uint8_t code) {
        return !filter.removed[code] && (character < 0x80 || CharacterOf(code) == character);
    };
    const auto replace = [&](std::uint8_t code, std::u16string& out) {
        if (filter.removed[code]) {
            report.found = true;
            out.append(strReplaceWith);
        } else {
            out += CharacterOf(code);
        }
    };
    std::u16string result = Replaced(strIN, keeps, replace);
    if (!report.found) {
        strOUT = bDoNotRemoveUnwantedChars ? strIN.Str() : std::move(result);
        return report;
    }
    const std::u16string kept = IsViewOf(strIN, strOUT) ? strIN.Str() : std::u16string();
    const TextIn original = kept.empty() ? strIN : TextIn(kept);
    if (bDoNotRemoveUnwantedChars) {
        strOUT = original;
        TellDebugConsole(Services::Current(), original, result);
    } else {
        strOUT = std::move(result);
        TellDebugConsole(Services::Current(), original, strOUT);
    }
    report.message = MessageOf(filter, bDoNotRemoveUnwantedChars);
    return report;
}

}  // namespace halvek
