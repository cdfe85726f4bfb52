// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/help/HelpText.h>
#include <halvekutils/help/HtmlTokens.h>

#include <algorithm>
#include <string>

namespace halvek {

namespace {

constexpr std::size_t kNone = std::u16string_view::npos;
constexpr std::size_t kMaxAttributes = 64;

constexpr bool IsBlank(char16_t character) {
    return character == u' ' || (character >= u'\t' && character <= u'\r');
}

constexpr bool IsLetter(char16_t character) {
    const char16_t folded = character | 0x20;
    return folded >= u'a' && folded <= u'z';
}

template <class Rule>
std::size_t Skip(std::u16string_view text, std::size_t at, const Rule& rule) {
    while (at < text.size() && rule(text[at])) ++at;
    return at;
}

}  // namespace

bool HtmlTokens::Next() {
    while (at_ < html_.size()) {
        if (html_[at_] != u'<') {
            TakeText(html_.find(u'<', at_));
            return true;
        }
        const char16_t next = at_ + 1 < html_.size() ? html_[at_ + 1] : u' ';
        if (html_.substr(at_, 4) == u"<!--") {
            const std::size_t end = Find(u"-->", at_ + 4, hasCommentEnd_);
            at_ = end == kNone ? std::min(html_.find(u'>', at_), html_.size() - 1) + 1 : end + 3;
        } else if (next == u'!' || next == u'?') {
            at_ = std::min(html_.find(u'>', at_), html_.size() - 1) + 1;
        } else if (IsLetter(next) || next == u'/') {
            if (TakeTag()) return true;
        } else {
            TakeText(html_.find(u'<', at_ + 1));
            return true;
        }
    }
    return false;
}

void HtmlTokens::TakeText(std::size_t end) {
    name_ = {};
    text_ = html_.substr(at_, end - at_);
    at_ += text_.size();
}

/// False for an end tag without a name.
bool HtmlTokens::TakeTag() {
    const std::size_t end = EndOfTag(at_ + 1);
    std::u16string_view tag = html_.substr(at_ + 1, end - at_ - 1);
    at_ = std::min(end, html_.size() - 1) + 1;
    isEnd_ = tag.starts_with(u'/');
    if (isEnd_) tag.remove_prefix(1);
    const std::size_t length =
        Skip(tag, 0, [](char16_t c) { return !IsBlank(c) && c != u'/' && c != u'<'; });
    name_ = tag.substr(0, length);
    inTag_ = tag.substr(length);
    return length > 0;
}

/// At the first ">" outside quotation marks; a mark counts only after an equals sign, and a lone
/// one is text.
std::size_t HtmlTokens::EndOfTag(std::size_t at) {
    while (true) {
        at = html_.find_first_of(u">=", at);
        if (at == kNone) return html_.size();
        if (html_[at] == u'>') return at;
        at = Skip(html_, at + 1, IsBlank);
        if (at == html_.size()) return at;
        if (html_[at] != u'"' && html_[at] != u'\'') continue;
        bool& isThere = html_[at] == u'"' ? hasQuote_ : hasApostrophe_;
        const std::size_t close = Find(html_.substr(at, 1), at + 1, isThere);
        at = close == kNone ? at + 1 : close + 1;
    }
}

std::size_t HtmlTokens::Find(std::u16string_view what, std::size_t from, bool& isThere) const {
    const std::size_t at = isThere ? html_.find(what, from) : kNone;
    isThere = at != kNone;
    return at;
}

bool HtmlTokens::IsStart(std::u16string_view name) const {
    return !isEnd_ && EqualFolded(name_, name);
}

bool HtmlTokens::IsEnd(std::u16string_view name) const {
    return isEnd_ && EqualFolded(name_, name);
}

std::vector<HtmlAttribute> HtmlTokens::Attributes() const {
    std::vector<HtmlAttribute> attributes;
    const std::u16string_view tag = inTag_;
    for (std::size_t at = 0; attributes.size() < kMaxAttributes;) {
        at = Skip(tag, at, [](char16_t c) { return IsBlank(c) || c == u'/' || c == u'='; });
        if (at == tag.size()) break;
        HtmlAttribute attribute;
        const std::size_t end = Skip(tag, at, [](char16_t c) { return !IsBlank(c) && c != u'='; });
        attribute.name = tag.substr(at, end - at);
        at = Skip(tag, end, IsBlank);
        if (at < tag.size() && tag[at] == u'=') {
            at = Skip(tag, at + 1, IsBlank);
            const char16_t mark = at < tag.size() ? tag[at] : u'\0';
            const bool isQuoted = mark == u'"' || mark == u'\'';
            const std::size_t close = isQuoted
                                          ? tag.find(mark, at + 1)
                                          : Skip(tag, at, [](char16_t c) { return !IsBlank(c); });
            if (isQuoted) ++at;
            attribute.value = tag.substr(at, close - at);
            at = close == kNone ? tag.size() : close + (isQuoted ? 1 : 0);
        }
        attributes.push_back(attribute);
    }
    return attributes;
}

std::u16string_view HtmlTokens::TakeRaw() {
    // Without its end tag the element is empty: a page with a lone tag is no blank page.
    const auto isUnclosed = [this](std::u16string_view it) { return EqualFolded(it, name_); };
    if (std::ranges::any_of(unclosed_, isUnclosed)) return {};
    const std::size_t start = at_;
    std::size_t close = html_.find(u"</", start);
    while (close != kNone && !StartsFolded(html_.substr(close + 2), name_)) {
        close = html_.find(u"</", close + 2);
    }
    if (close == kNone) {
        unclosed_.push_back(name_);
        return {};
    }
    at_ = std::min(html_.find(u'>', close), html_.size() - 1) + 1;
    return html_.substr(start, close - start);
}

std::u16string ValueOf(const std::vector<HtmlAttribute>& attributes, std::u16string_view name) {
    const auto found = std::ranges::find_if(
        attributes, [name](const HtmlAttribute& it) { return EqualFolded(it.name, name); });
    return found == attributes.end() ? std::u16string() : WithoutReferences(found->value);
}

}  // namespace halvek
