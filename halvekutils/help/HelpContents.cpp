// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/help/HelpContents.h>
#include <halvekutils/help/HelpText.h>

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace halvek {

namespace {

constexpr int kDeepest = 32;
constexpr std::size_t kMaxEntries = 20'000;
constexpr char16_t kBlanks[] = u" \t\r\n";

/// The tags of a text, one after the other.
class Tags {
  public:
    explicit Tags(std::u16string_view html) : rest_(html) {}

    /// Moves to the next tag; false when there is none.
    bool Next() {
        const std::size_t start = rest_.find(u'<');
        if (start == std::u16string_view::npos) return false;
        rest_.remove_prefix(start + 1);
        const std::size_t end = EndOfTag();
        if (end == std::u16string_view::npos) return false;
        tag_ = rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
        return true;
    }

    bool Is(std::u16string_view name) const {
        return EqualFolded(tag_.substr(0, tag_.find_first_of(kBlanks)), name);
    }

    /// The value of an attribute; empty when the tag lacks it.
    std::u16string Value(std::u16string_view name) const {
        std::u16string_view rest = tag_;
        while (true) {
            const std::size_t equals = rest.find(u'=');
            if (equals == std::u16string_view::npos) return {};
            const std::u16string_view before = rest.substr(0, equals);
            const std::size_t last = before.find_last_not_of(kBlanks);
            const std::size_t blank = before.find_last_of(kBlanks, last);
            const std::u16string_view found = before.substr(blank + 1, last - blank);
            rest.remove_prefix(equals + 1);
            const std::u16string_view value = TakeValue(rest);
            if (EqualFolded(found, name)) return WithoutReferences(value);
        }
    }

  private:
    /// Where the tag ends: at the first ">" outside quotation marks.
    std::size_t EndOfTag() const {
        std::size_t at = 0;
        while (true) {
            at = rest_.find_first_of(u"\"'>", at);
            if (at == std::u16string_view::npos || rest_[at] == u'>') return at;
            const std::size_t close = rest_.find(rest_[at], at + 1);
            // A lone mark is text.
            if (close == std::u16string_view::npos) return rest_.find(u'>', at);
            at = close + 1;
        }
    }

    static std::u16string_view TakeValue(std::u16string_view& rest) {
        rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
        const bool isQuoted = rest.starts_with(u'"') || rest.starts_with(u'\'');
        const std::size_t end = isQuoted ? rest.find(rest[0], 1) : rest.find_first_of(kBlanks);
        const std::u16string_view value = rest.substr(0, end).substr(isQuoted ? 1 : 0);
        rest.remove_prefix(std::min(end, rest.size()));
        return value;
    }

    std::u16string_view rest_;
    std::u16string_view tag_;
};

}  // namespace

std::vector<HelpContentsEntry> ParseHelpContents(TextIn html) {
    std::vector<HelpContentsEntry> entries;
    HelpContentsEntry entry;
    int lists = 0;
    bool isEntry = false;
    const auto add = [&] {
        const int deepest = entries.empty() ? 0 : entries.back().depth + 1;
        entry.depth = std::clamp(lists - 1, 0, std::min(deepest, kDeepest));
        if (!entry.title.empty()) entries.push_back(entry);
    };
    for (Tags tags(html); tags.Next() && entries.size() < kMaxEntries;) {
        if (tags.Is(u"ul")) {
            ++lists;
        } else if (tags.Is(u"/ul")) {
            lists = std::max(lists - 1, 0);
        } else if (tags.Is(u"object")) {
            isEntry = EqualFolded(tags.Value(u"type"), u"text/sitemap");
            entry = {};
        } else if (tags.Is(u"param") && isEntry) {
            const std::u16string name = tags.Value(u"name");
            const std::u16string value = tags.Value(u"value");
            // Of several names and topics, as an index has them, the first counts.
            if (EqualFolded(name, u"Name") && entry.title.empty()) entry.title = value;
            if (EqualFolded(name, u"Local") && entry.topic.path.empty()) {
                entry.topic = ParseHelpTopic(value);
            }
        } else if (tags.Is(u"/object") && isEntry) {
            isEntry = false;
            add();
        }
    }
    return entries;
}

}  // namespace halvek
