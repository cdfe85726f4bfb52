// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/help/CompiledHelp.h>
#include <halvekutils/help/HelpText.h>
#include <halvekutils/help/LittleEndian.h>

#include <algorithm>
#include <string_view>

namespace halvek {

namespace {

/// The text from a place up to a zero byte.
std::u16string TextAt(std::string_view bytes, std::uint64_t place) {
    if (place >= bytes.size()) return {};
    bytes.remove_prefix(static_cast<std::size_t>(place));
    return HelpNameOf(bytes.substr(0, bytes.find('\0')));
}

}  // namespace

CompiledHelp::CompiledHelp(const std::filesystem::path& file) : archive_(file) {
    ReadSystem();
    ReadContents();
    if (title_.empty()) title_ = FromUtf8(file.filename().native());
    if (defaultTopic_.path.empty() && !contents_.empty()) defaultTopic_ = contents_[0].topic;
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
    enum Number : std::uint16_t { kContentsFile = 0, kDefaultTopic = 2, kTitle = 3 };
    const std::string system = ReadIfThere(u"/#SYSTEM");
    for (std::uint64_t at = 4;;) {
        const auto number = NumberAt<std::uint16_t>(system, at);
        const auto length = NumberAt<std::uint16_t>(system, at + 2);
        if (!length) return;
        const std::string_view values = system;
        const std::u16string value = TextAt(
            values.substr(0, std::min<std::size_t>(at + 4 + *length, values.size())), at + 4);
        if (*number == kContentsFile) contentsPath_ = ParseHelpTopic(value).path;
        if (*number == kDefaultTopic) defaultTopic_ = WithoutBuildFolders(ParseHelpTopic(value));
        if (*number == kTitle) title_ = value;
        at += 4 + std::uint64_t{*length};
    }
}

void CompiledHelp::ReadContents() {
    if (!archive_.Has(contentsPath_)) contentsPath_ = archive_.FirstEndingIn(u".hhc");
    contents_ = ParseHelpContents(HelpTextOf(ReadIfThere(contentsPath_)));
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
        const std::u16string topic = TextAt(ReadIfThere(u"/#STRINGS"), *place);
        return WithoutBuildFolders(ParseHelpTopic(topic));
    }
    return std::nullopt;
}

/// Some compilers store the folders that a page had on the machine that built the file.
HelpTopic CompiledHelp::WithoutBuildFolders(HelpTopic topic) const {
    std::u16string_view path = topic.path;
    while (!path.empty() && !archive_.Has(path)) {
        path = path.substr(std::min(path.find(u'/', 1), path.size()));
    }
    if (!path.empty()) topic.path = std::u16string(path);
    return topic;
}

}  // namespace halvek
