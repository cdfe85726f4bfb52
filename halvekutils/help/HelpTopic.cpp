// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/Pieces.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/help/HelpText.h>
#include <halvekutils/help/HelpTopic.h>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace halvek {

namespace {

constexpr std::size_t kMaxAddress = 2000;
constexpr std::size_t kNone = std::u16string_view::npos;

/// The path from the root, without empty, "." and ".." components; nothing lies above the root.
std::u16string FromRoot(std::u16string path) {
    std::ranges::replace(path, u'\\', u'/');
    std::vector<std::u16string_view> components;
    for (const TextIn component : Pieces(path, u'/')) {
        if (component == u"..") {
            if (!components.empty()) components.pop_back();
        } else if (!component.empty() && component != u".") {
            components.push_back(component);
        }
    }
    std::u16string result;
    for (const std::u16string_view component : components) (result += u'/') += component;
    return result;
}

std::u16string_view Trimmed(std::u16string_view text) {
    constexpr auto kIsInk = [](char16_t character) {
        return character > u' ' && character != 0xA0;
    };
    const auto start = std::ranges::find_if(text, kIsInk);
    const auto end = std::find_if(text.rbegin(), text.rend(), kIsInk).base();
    return start < end ? std::u16string_view(start, end) : std::u16string_view();
}

int DigitOf(char16_t character) {
    if (character >= u'0' && character <= u'9') return character - u'0';
    const char16_t folded = FoldCase(character);
    return folded >= u'a' && folded <= u'f' ? folded - u'a' + 10 : -1;
}

/// "page%201.htm" as "page 1.htm"; the decoded bytes are UTF-8 or Windows-1252.
std::u16string PercentDecoded(std::u16string_view text) {
    std::u16string decoded;
    std::string bytes;
    const auto flush = [&] {
        decoded += HelpNameOf(bytes);
        bytes.clear();
    };
    for (std::size_t at = 0; at < text.size(); ++at) {
        const int high = at + 2 < text.size() && text[at] == u'%' ? DigitOf(text[at + 1]) : -1;
        const int low = high < 0 ? -1 : DigitOf(text[at + 2]);
        if (low < 0) {
            flush();
            decoded += text[at];
        } else {
            bytes += static_cast<char>(high * 16 + low);
            at += 2;
        }
    }
    flush();
    return decoded;
}

HelpTopic SplitAt(std::u16string_view text, std::size_t hash, std::u16string_view folder) {
    const std::u16string_view path = text.substr(0, hash);
    const std::u16string_view anchor =
        hash == kNone ? std::u16string_view() : text.substr(hash + 1);
    if (path.empty()) return {{}, std::u16string(anchor)};
    const bool isFromRoot = path.starts_with(u'/') || path.starts_with(u'\\');
    std::u16string whole(isFromRoot ? std::u16string_view() : folder);
    return {FromRoot((whole += u'/') += path), std::u16string(anchor)};
}

/// "http:", "file:", "C:"; nothing for a path.
std::u16string_view SchemeOf(std::u16string_view address) {
    const std::size_t colon = address.find_first_of(u":/\\#?");
    return colon == kNone || address[colon] != u':' ? std::u16string_view()
                                                    : address.substr(0, colon + 1);
}

}  // namespace

HelpTopic ParseHelpTopic(TextIn text, TextIn folder) {
    std::u16string_view rest = Trimmed(text.substr(0, kMaxAddress));
    rest = Trimmed(rest.substr(0, rest.find(u'>')));
    if (rest.starts_with(u"::")) rest.remove_prefix(2);
    // Names of a help file's own tables start with that character; names of topics never do.
    return SplitAt(rest, rest.find(u'#'), folder);
}

std::vector<HelpTopic> MeaningsOf(TextIn address, TextIn folder) {
    const std::u16string_view written = Trimmed(address.substr(0, kMaxAddress));
    const std::u16string decoded = PercentDecoded(written);
    std::vector<HelpTopic> meanings;
    const auto add = [&](HelpTopic meaning) {
        meaning.anchor = PercentDecoded(meaning.anchor);
        if (meaning.path.empty() || std::ranges::count(meanings, meaning) > 0) return;
        meanings.push_back(std::move(meaning));
    };
    for (const std::u16string_view from :
         {std::u16string_view(folder), std::u16string_view(u"/")}) {
        for (const std::u16string_view text : {written, std::u16string_view(decoded)}) {
            add(ParseHelpTopic(text, from));
            HelpTopic decodedParts = ParseHelpTopic(written, from);
            decodedParts.path = FromRoot(PercentDecoded(decodedParts.path));
            add(std::move(decodedParts));
            // Names may hold "#", and addresses a question.
            add(SplitAt(text, kNone, from));
            HelpTopic unasked = ParseHelpTopic(text, from);
            unasked.path = FromRoot(unasked.path.substr(0, unasked.path.find(u'?')));
            add(std::move(unasked));
        }
    }
    return meanings;
}

std::optional<std::u16string_view> WithinHelpFile(std::u16string_view address, TextIn fileName) {
    constexpr std::u16string_view kPrefixes[] = {u"ms-its:", u"ms-itss:", u"its:",
                                                 u"mk:@msitstore:"};
    std::u16string_view rest = Trimmed(address.substr(0, kMaxAddress));
    const auto* const prefix = std::ranges::find_if(
        kPrefixes, [rest](std::u16string_view it) { return StartsFolded(rest, it); });
    if (prefix != std::end(kPrefixes)) rest.remove_prefix(prefix->size());
    const std::size_t inside = rest.find(u"::");
    if (inside != kNone && inside < rest.find(u'#')) {
        std::u16string_view file = rest.substr(0, inside);
        file.remove_prefix(file.find_last_of(u"/\\:") + 1);
        if (!file.empty() && !EqualFolded(file, fileName) &&
            !EqualFolded(PercentDecoded(file), fileName)) {
            return std::nullopt;
        }
        return rest.substr(inside + 2);
    }
    const bool isElsewhere = rest.starts_with(u"//") || rest.starts_with(u"\\\\");
    if (prefix != std::end(kPrefixes) || isElsewhere || !SchemeOf(rest).empty()) {
        return std::nullopt;
    }
    return rest;
}

std::u16string_view FolderOf(std::u16string_view path) {
    return path.substr(0, path.rfind(u'/') + 1);
}

}  // namespace halvek
