// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/help/HelpArchive.h>
#include <halvekutils/help/HelpContents.h>
#include <halvekutils/help/HelpText.h>
#include <halvekutils/help/HelpTopic.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace halvek {

/// An entry of a help file's table of contents or index.
struct HelpEntry {
    int depth = 0;  ///< 0 for the outermost
    std::u16string title;
    HelpTopic topic;         ///< its path is empty for a mere heading
    std::u16string outside;  ///< an address that leads out of the file
    std::u16string seeAlso;  ///< the title of another entry

    friend bool operator==(const HelpEntry&, const HelpEntry&) = default;
};

/// A compiled help file (.chm): its pages, its context numbers, its table of contents and its
/// index.
///
/// @code{.cpp}
/// CompiledHelp help("FrontDesk.chm");
/// if (auto topic = help.TopicOfContext(100)) show(help.TextOf(topic->path));
/// @endcode
class HALVEK_INTERNAL CompiledHelp {
  public:
    /// Throws what HelpArchive throws for a file that cannot be read or is not a help file.
    explicit CompiledHelp(const std::filesystem::path& file, HelpDecoder decoder = {});
    ~CompiledHelp();
    CompiledHelp(const CompiledHelp&) = delete;
    CompiledHelp& operator=(const CompiledHelp&) = delete;

    const std::filesystem::path& File() const { return archive_.File(); }

    /// The title of the help window; the file's name when the file has no title.
    const std::u16string& Title() const { return title_; }

    /// The topic that the file opens with; an empty path when it has no page.
    const HelpTopic& DefaultTopic() const { return defaultTopic_; }

    /// Empty when the file has none.
    const std::vector<HelpEntry>& Contents() const { return contents_; }

    /// The keywords; each place of one that has several is an entry below it. Empty when the file
    /// has none.
    const std::vector<HelpEntry>& Index() const { return index_; }

    /// The topic of a context number; nothing when the file lacks the number. The topic itself may
    /// be missing.
    std::optional<HelpTopic> TopicOfContext(std::int32_t contextId);

    /// Where an address leads that a page writes; nothing when it leads out of the file. The first
    /// meaning of those that MeaningsOf lists which the file holds; the first one when it holds
    /// none.
    std::optional<HelpTopic> Resolve(TextIn address, TextIn page = u"/") const;

    /// The same for a topic as a host writes it, which never leads out.
    HelpTopic TopicOf(TextIn text) const;

    bool Has(TextIn path) const { return archive_.Has(path); }

    /// The bytes of an object; see HelpArchive.
    std::string Read(TextIn path) { return archive_.Read(path); }

    /// A page as text.
    std::u16string TextOf(TextIn path);

    /// The paths of all pages, in the order in which they are read fastest.
    std::vector<std::u16string> Pages() const;

  private:
    std::string ReadIfThere(TextIn path);
    void ReadSystem();
    void ReadWindow();
    std::u16string TextOfSystem(std::string_view bytes) const;
    std::vector<HelpEntry> ReadEntries(const std::u16string& path, bool isIndex);
    HelpEntry EntryFor(int depth, std::u16string title, TextIn address, TextIn page) const;
    HelpTopic WithoutBuildFolders(TextIn text) const;

    HelpArchive archive_;
    HelpDecoder decoder_;
    std::string_view charset_;  ///< of texts that do not name theirs; empty for Windows-1252
    std::u16string title_;
    std::u16string contentsPath_;
    std::u16string indexPath_;
    HelpTopic defaultTopic_;
    std::vector<HelpEntry> contents_;
    std::vector<HelpEntry> index_;
};

}  // namespace halvek
