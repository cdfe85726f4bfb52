// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/help/HelpMarkup.h>
#include <halvekutils/help/HelpSearch.h>
#include <halvekutils/help/HtmlTokens.h>

#include <algorithm>
#include <array>
#include <utility>

namespace halvek {

namespace {

constexpr std::size_t kMaxFound = 1000;
constexpr std::size_t kNone = std::u16string_view::npos;

// Latin, Greek and Cyrillic letters
constexpr auto kFolded = [] {
    std::array<char16_t, 0x600> folded{};
    for (std::size_t i = 0; i < folded.size(); ++i) {
        auto character = FoldCase(static_cast<char16_t>(i));
        const bool isOdd = i % 2 == 1;
        const bool isPair = (i >= 0x100 && i < 0x138) || (i >= 0x14A && i < 0x178) ||
                            (i >= 0x1DE && i < 0x1F0) || (i >= 0x1F8 && i < 0x220) ||
                            (i >= 0x460 && i < 0x482) || (i >= 0x48A && i < 0x4C0) ||
                            (i >= 0x4D0 && i < 0x530);
        const bool isOddPair =
            (i >= 0x139 && i < 0x149) || (i >= 0x179 && i < 0x17F) || (i >= 0x1CD && i < 0x1DD);
        if ((isPair && !isOdd) || (isOddPair && isOdd)) character = static_cast<char16_t>(i + 1);
        if (i >= 0x391 && i <= 0x3AB) character = static_cast<char16_t>(i + 0x20);
        if (i == 0x3C2) character = 0x3C3;  // the sigma at the end of words
        if (i >= 0x410 && i <= 0x42F) character = static_cast<char16_t>(i + 0x20);
        if (i >= 0x400 && i <= 0x40F) character = static_cast<char16_t>(i + 0x50);
        folded[i] = character;
    }
    return folded;
}();

void Fold(std::u16string& text) {
    for (char16_t& character : text) {
        if (character < kFolded.size()) character = kFolded[character];
    }
}

/// Finds a word again and again: tells from the last character of each place how far the next place
/// is at least.
class Finder {
  public:
    explicit Finder(std::u16string_view word) : word_(word) {
        skip_.fill(word.size());
        for (std::size_t i = 0; i + 1 < word.size(); ++i) {
            skip_[word[i] & 0xFF] = word.size() - 1 - i;
        }
    }

    std::size_t Find(std::u16string_view text, std::size_t from) const {
        const std::size_t last = word_.size() - 1;
        for (std::size_t at = from; at + last < text.size();) {
            const char16_t end = text[at + last];
            if (end == word_[last] && text.substr(at, word_.size()) == word_) return at;
            at += skip_[end & 0xFF];
        }
        return kNone;
    }

  private:
    std::u16string_view word_;
    std::array<std::size_t, 256> skip_{};
};

/// 0 when one of the words is missing.
int PlacesIn(const std::u16string& text, const std::vector<std::u16string>& words) {
    constexpr int kMaxPlaces = 1000;
    int places = 0;
    for (const std::u16string& word : words) {
        const Finder finder(word);
        int ofWord = 0;
        for (std::size_t at = 0; ofWord < kMaxPlaces; ++ofWord, at += word.size()) {
            at = finder.Find(text, at);
            if (at == kNone) break;
        }
        if (ofWord == 0) return 0;
        places += ofWord;
    }
    return places;
}

std::u16string TitleIn(const std::u16string& html) {
    for (HtmlTokens tokens(html); tokens.Next();) {
        if (tokens.IsText()) continue;
        if (tokens.IsStart(u"title")) return HelpTitleOf(WithoutReferences(tokens.TakeRaw()));
        if (tokens.IsStart(u"body")) break;
    }
    return {};
}

std::u16string ExcerptAround(const std::u16string& text, std::size_t at) {
    constexpr std::size_t kBefore = 40;
    constexpr std::size_t kLength = 140;
    std::size_t start = at > kBefore ? text.find_first_of(u" \n", at - kBefore) : 0;
    if (start > at) start = at;
    return HelpTitleOf(text.substr(start, kLength));
}

}  // namespace

std::vector<std::u16string> HelpSearchWords(TextIn typed) {
    constexpr std::size_t kMaxWords = 10;
    constexpr std::size_t kMaxLength = 200;
    std::vector<std::u16string> words;
    std::u16string_view rest = typed;
    while (words.size() < kMaxWords) {
        rest.remove_prefix(std::min(rest.find_first_not_of(u" \t\n"), rest.size()));
        if (rest.empty()) break;
        const bool isQuoted = rest[0] == u'"';
        if (isQuoted) rest.remove_prefix(1);
        const std::size_t end = rest.find_first_of(isQuoted ? u"\"" : u" \t\n\"");
        std::u16string word = HelpTitleOf(rest.substr(0, std::min(end, kMaxLength)));
        if (!word.empty()) words.push_back(std::move(word));
        rest.remove_prefix(std::min(end, rest.size()));
        if (isQuoted && !rest.empty()) rest.remove_prefix(1);
    }
    return words;
}

HelpSearch::HelpSearch(std::shared_ptr<CompiledHelp> help, TextIn words)
    : help_(std::move(help)), words_(HelpSearchWords(words)), folded_(words_) {
    for (std::u16string& word : folded_) Fold(word);
    if (!words_.empty()) pages_ = help_->Pages();
}

HelpSearch::~HelpSearch() = default;

bool HelpSearch::AtEnd() const {
    return next_ == pages_.size() || found_.size() >= kMaxFound;
}

void HelpSearch::Step() {
    constexpr std::size_t kLength = 1'000'000;
    for (std::size_t length = 0; length < kLength && !AtEnd(); ++next_) {
        try {
            length += SearchPage(pages_[next_]);
        } catch (const RuntimeError&) {
            ++unreadable_;
            length += kLength / 100;
        }
    }
}

/// How long the page is.
std::size_t HelpSearch::SearchPage(const std::u16string& path) {
    const std::u16string html = help_->TextOf(path);
    std::u16string text = HelpWordsOf(html);
    Fold(text);
    if (const int places = PlacesIn(text, folded_); places > 0) Add(path, html, places);
    return html.size() + 1000;
}

void HelpSearch::Add(const std::u16string& path, const std::u16string& html, int places) {
    const std::u16string text = HelpWordsOf(html);
    std::u16string folded = text;
    Fold(folded);
    HelpFind find{path, TitleIn(html), ExcerptAround(text, folded.find(folded_[0])), places};
    if (find.title.empty()) find.title = path.substr(path.rfind(u'/') + 1);
    found_.push_back(std::move(find));
}

int HelpSearch::Percent() const {
    return AtEnd() ? 100 : static_cast<int>(100 * next_ / pages_.size());
}

}  // namespace halvek
