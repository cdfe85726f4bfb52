// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/help/CompiledHelp.h>
#include <halvekutils/help/LittleEndian.h>

#include <algorithm>
#include <utility>

namespace halvek {

namespace {

constexpr std::size_t kMaxName = 2000;

/// The bytes from a place up to a zero byte.
std::string_view BytesAt(std::string_view bytes, std::uint64_t place) {
    if (place >= bytes.size()) return {};
    bytes = bytes.substr(static_cast<std::size_t>(place), kMaxName);
    return bytes.substr(0, bytes.find('\0'));
}

}  // namespace

CompiledHelp::CompiledHelp(const std::filesystem::path& file, HelpDecoder decoder)
    : archive_(file), decoder_(std::move(decoder)) {
    ReadSystem();
    ReadWindow();
    if (!archive_.Has(contentsPath_)) contentsPath_ = archive_.FirstEndingIn(u".hhc");
    if (!archive_.Has(indexPath_)) indexPath_ = archive_.FirstEndingIn(u".hhk");
    contents_ = ReadEntries(contentsPath_, false);
    index_ = ReadEntries(indexPath_, true);
    if (title_.empty()) title_ = FromUtf8(file.filename().native());
    for (const HelpEntry& entry : contents_) {
        if (!defaultTopic_.path.empty()) break;
        defaultTopic_ = entry.topic;
    }
    for (const char16_t* const ending : {u".htm", u".html"}) {
        if (defaultTopic_.path.empty()) defaultTopic_.path = archive_.FirstEndingIn(ending);
    }
}

CompiledHelp::~CompiledHelp() = default;

std::string CompiledHelp::ReadIfThere(TextIn path) {
    return archive_.Has(path) ? archive_.Read(path) : std::string();
}

/// After its version, #SYSTEM is a list of values, each with a 16-bit number that says what it is
/// and a 16-bit length in front.
void CompiledHelp::ReadSystem() {
    enum Number : std::uint16_t {
        kContentsFile = 0,
        kIndexFile = 1,
        kDefaultTopic = 2,
        kTitle = 3,
        kLanguage = 4,
    };
    constexpr int kMaxValues = 1000;
    const std::string system = ReadIfThere(u"/#SYSTEM");
    std::string_view title;
    std::uint64_t at = 4;
    for (int i = 0; i < kMaxValues; ++i) {
        const auto number = NumberAt<std::uint16_t>(system, at);
        const auto length = NumberAt<std::uint16_t>(system, at + 2);
        if (!length) break;
        const std::string_view values = system;
        const std::string_view value = BytesAt(
            values.substr(0, std::min<std::size_t>(at + 4 + *length, values.size())), at + 4);
        if (*number == kContentsFile) contentsPath_ = WithoutBuildFolders(HelpNameOf(value)).path;
        if (*number == kIndexFile) indexPath_ = WithoutBuildFolders(HelpNameOf(value)).path;
        if (*number == kDefaultTopic) defaultTopic_ = WithoutBuildFolders(HelpNameOf(value));
        if (*number == kTitle) title = value;
        if (*number == kLanguage) {
            charset_ = HelpCharsetOf(NumberAt<std::uint32_t>(system, at + 4).value_or(0));
        }
        at += 4 + std::uint64_t{*length};
    }
    title_ = HelpTitleOf(TextOfSystem(title));
}

/// UTF-8 where it is well formed: some compilers write no other.
std::u16string CompiledHelp::TextOfSystem(std::string_view bytes) const {
    const std::u16string text = HelpNameOf(bytes);
    const bool isAscii = std::ranges::all_of(text, [](char16_t c) { return c < 0x80; });
    const bool isUtf8 = FromUtf8(bytes).find(char16_t{0xFFFD}) == std::u16string::npos;
    return isAscii || isUtf8 ? text : HelpTextOf(bytes, decoder_, charset_);
}

/// Files of projects that describe their windows name contents, index and first page only there:
/// #WINDOWS is a count, a length and the windows, with places in #STRINGS.
void CompiledHelp::ReadWindow() {
    if (!contentsPath_.empty() && !indexPath_.empty() && !defaultTopic_.path.empty()) return;
    constexpr std::uint64_t kFirstWindow = 8;
    enum Place : std::uint64_t { kContents = 0x60, kIndex = 0x64, kFirstPage = 0x68, kHome = 0x6C };
    const std::string windows = ReadIfThere(u"/#WINDOWS");
    const std::string strings = ReadIfThere(u"/#STRINGS");
    const auto topicAt = [&](Place place) {
        const auto text = NumberAt<std::uint32_t>(windows, kFirstWindow + place).value_or(0);
        return WithoutBuildFolders(HelpNameOf(BytesAt(strings, text)));
    };
    if (contentsPath_.empty()) contentsPath_ = topicAt(kContents).path;
    if (indexPath_.empty()) indexPath_ = topicAt(kIndex).path;
    for (const Place place : {kFirstPage, kHome}) {
        if (defaultTopic_.path.empty() && Has(topicAt(place).path)) defaultTopic_ = topicAt(place);
    }
}

std::vector<HelpEntry> CompiledHelp::ReadEntries(const std::u16string& path, bool isIndex) {
    constexpr std::size_t kMaxEntries = 50'000;
    std::vector<HelpEntry> entries;
    const std::u16string text = HelpTextOf(ReadIfThere(path), decoder_, charset_);
    for (HelpSitemapEntry& read : ParseHelpSitemap(text)) {
        const bool hasList = isIndex && (read.places.size() > 1 || !read.seeAlso.empty());
        const std::u16string first = hasList || read.places.empty() ? u"" : read.places[0].address;
        entries.push_back(EntryFor(read.depth, std::move(read.title), first, path));
        if (!hasList) continue;
        for (HelpSitemapEntry::Place& place : read.places) {
            entries.push_back(
                EntryFor(read.depth + 1, std::move(place.title), place.address, path));
        }
        if (!read.seeAlso.empty()) {
            entries.push_back({read.depth + 1, read.seeAlso, {}, {}, read.seeAlso});
        }
        if (entries.size() >= kMaxEntries) break;
    }
    return entries;
}

HelpEntry CompiledHelp::EntryFor(int depth, std::u16string title, TextIn address,
                                 TextIn page) const {
    HelpEntry entry{depth, std::move(title), {}, {}, {}};
    if (auto topic = Resolve(address, page)) {
        entry.topic = *std::move(topic);
    } else {
        entry.outside = address.Str();
    }
    return entry;
}

/// #IVB is a list of pairs: a context number and the place of its topic in #STRINGS.
std::optional<HelpTopic> CompiledHelp::TopicOfContext(std::int32_t contextId) {
    const std::string pairs = ReadIfThere(u"/#IVB");
    const std::uint64_t end = std::uint64_t{4} + NumberAt<std::uint32_t>(pairs, 0).value_or(0);
    for (std::uint64_t at = 4; at < end; at += 8) {
        const auto number = NumberAt<std::int32_t>(pairs, at);
        const auto place = NumberAt<std::uint32_t>(pairs, at + 4);
        if (!place) break;
        if (*number != contextId) continue;
        return WithoutBuildFolders(HelpNameOf(BytesAt(ReadIfThere(u"/#STRINGS"), *place)));
    }
    return std::nullopt;
}

std::optional<HelpTopic> CompiledHelp::Resolve(TextIn address, TextIn page) const {
    const std::u16string fileName = FromUtf8(File().filename().native());
    const auto inside = WithinHelpFile(address, fileName);
    if (!inside && !archive_.Has(ParseHelpTopic(address).path)) return std::nullopt;
    const std::u16string_view written = inside ? *inside : std::u16string_view(address);
    HelpTopic plain = ParseHelpTopic(written);
    if (plain.path.empty()) return plain;
    const std::vector<HelpTopic> meanings = MeaningsOf(written, FolderOf(page));
    for (const HelpTopic& meaning : meanings) {
        if (Has(meaning.path)) return meaning;
    }
    return meanings[0];
}

HelpTopic CompiledHelp::TopicOf(TextIn text) const {
    const auto topic = Resolve(text);
    return topic ? *topic : ParseHelpTopic(text);
}

/// Some compilers store the folders that a page had on the machine that built the file.
HelpTopic CompiledHelp::WithoutBuildFolders(TextIn text) const {
    HelpTopic topic = TopicOf(text);
    std::u16string_view path = topic.path;
    while (!path.empty() && !archive_.Has(path)) {
        path = path.substr(std::min(path.find(u'/', 1), path.size()));
    }
    if (!path.empty()) topic.path = std::u16string(path);
    return topic;
}

std::u16string CompiledHelp::TextOf(TextIn path) {
    return HelpTextOf(Read(path), decoder_, charset_);
}

std::vector<std::u16string> CompiledHelp::Pages() const {
    return archive_.PathsEndingIn({u".htm", u".html", u".xhtml", u".xht"});
}

}  // namespace halvek
