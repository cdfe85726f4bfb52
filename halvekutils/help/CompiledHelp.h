// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/help/HelpArchive.h>
#include <halvekutils/help/HelpContents.h>
#include <halvekutils/help/HelpTopic.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace halvek {

/// A compiled help file (.chm): its pages, its context numbers and its table of contents.
///
/// @code{.cpp}
/// CompiledHelp help("FrontDesk.chm");
/// if (auto topic = help.TopicOfContext(100)) show(HelpTextOf(help.Read(topic->path)));
/// @endcode
class HALVEK_INTERNAL CompiledHelp {
  public:
    /// Throws what HelpArchive throws for a file that cannot be read or is not a help file.
    explicit CompiledHelp(const std::filesystem::path& file);
    ~CompiledHelp();
    CompiledHelp(const CompiledHelp&) = delete;
    CompiledHelp& operator=(const CompiledHelp&) = delete;

    const std::filesystem::path& File() const { return archive_.File(); }

    /// The title of the help window; the file's name when the file has no title.
    const std::u16string& Title() const { return title_; }

    /// The topic that the file opens with; an empty path when it has no page.
    const HelpTopic& DefaultTopic() const { return defaultTopic_; }

    /// Empty when the file has none.
    const std::vector<HelpContentsEntry>& Contents() const { return contents_; }

    /// The topic of a context number; nothing when the file lacks the number. The topic itself may
    /// be missing.
    std::optional<HelpTopic> TopicOfContext(std::int32_t contextId);

    bool Has(TextIn path) const { return archive_.Has(path); }

    /// The bytes of an object; see HelpArchive.
    std::string Read(TextIn path) { return archive_.Read(path); }

  private:
    std::string ReadIfThere(TextIn path);
    void ReadSystem();
    void ReadContents();
    HelpTopic WithoutBuildFolders(HelpTopic topic) const;

    HelpArchive archive_;
    std::u16string title_;
    std::u16string contentsPath_;
    HelpTopic defaultTopic_;
    std::vector<HelpContentsEntry> contents_;
};

}  // namespace halvek
