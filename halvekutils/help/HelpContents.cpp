// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/help/HelpContents.h>
#include <halvekutils/help/HelpText.h>
#include <halvekutils/help/HtmlTokens.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace halvek {

namespace {

constexpr int kDeepest = 32;
constexpr std::size_t kMaxEntries = 50'000;
constexpr std::size_t kMaxPlaces = 200;

/// Collects the values of one object.
class Values {
  public:
    void Start(bool isEntry) {
        *this = {};
        isEntry_ = isEntry;
    }

    void Add(std::u16string_view name, std::u16string value) {
        if (!isEntry_) return;
        if (EqualFolded(name, u"Name")) {
            // The first name is the entry's, each further one that of the place that follows.
            (entry_.title.empty() ? entry_.title : placeTitle_) = HelpTitleOf(value);
        } else if (EqualFolded(name, u"Local")) {
            AddPlace(std::move(value));
        } else if (EqualFolded(name, u"URL")) {
            // Beside a place in the file, the same on the network.
            if (entry_.places.empty()) network_ = std::move(value);
        } else if (EqualFolded(name, u"See Also")) {
            entry_.seeAlso = HelpTitleOf(value);
        }
    }

    /// The entry; without a title when there is none.
    HelpSitemapEntry Take() {
        if (entry_.places.empty() && !network_.empty()) AddPlace(std::move(network_));
        isEntry_ = false;
        return std::move(entry_);
    }

    bool IsEntry() const { return isEntry_; }

  private:
    void AddPlace(std::u16string address) {
        if (entry_.places.size() >= kMaxPlaces || address.empty()) return;
        entry_.places.push_back(
            {placeTitle_.empty() ? entry_.title : placeTitle_, std::move(address)});
    }

    bool isEntry_ = false;
    HelpSitemapEntry entry_;
    std::u16string placeTitle_;
    std::u16string network_;
};

}  // namespace

std::vector<HelpSitemapEntry> ParseHelpSitemap(TextIn html) {
    std::vector<HelpSitemapEntry> entries;
    Values values;
    int lists = 0;
    for (HtmlTokens tokens(html); tokens.Next() && entries.size() < kMaxEntries;) {
        if (tokens.IsText()) continue;
        if (tokens.IsStart(u"ul")) {
            ++lists;
        } else if (tokens.IsEnd(u"ul")) {
            lists = std::max(lists - 1, 0);
        } else if (tokens.IsStart(u"object")) {
            values.Start(EqualFolded(ValueOf(tokens.Attributes(), u"type"), u"text/sitemap"));
        } else if (tokens.IsStart(u"param") && values.IsEntry()) {
            const auto attributes = tokens.Attributes();
            values.Add(ValueOf(attributes, u"name"), ValueOf(attributes, u"value"));
        } else if (tokens.IsEnd(u"object") && values.IsEntry()) {
            HelpSitemapEntry entry = values.Take();
            const int deepest = entries.empty() ? 0 : entries.back().depth + 1;
            entry.depth = std::clamp(lists - 1, 0, std::min(deepest, kDeepest));
            if (!entry.title.empty()) entries.push_back(std::move(entry));
        }
    }
    return entries;
}

}  // namespace halvek
