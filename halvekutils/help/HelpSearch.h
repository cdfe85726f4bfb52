// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/help/CompiledHelp.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace halvek {

/// A page that holds what was searched.
struct HelpFind {
    std::u16string path;
    std::u16string title;    ///< the file's name when the page has none
    std::u16string excerpt;  ///< around the first place
    int places = 0;
};

/// Searches the pages of a help file for words, letter case ignored, in steps that leave time for
/// the user. A page is found when it holds all words; words in quotation marks stand together.
///
/// @code{.cpp}
/// HelpSearch search(help, u"late \"grace period\"");
/// while (!search.AtEnd()) search.Step();
/// @endcode
class HALVEK_INTERNAL HelpSearch {
  public:
    HelpSearch(std::shared_ptr<CompiledHelp> help, TextIn words);
    ~HelpSearch();
    HelpSearch(const HelpSearch&) = delete;
    HelpSearch& operator=(const HelpSearch&) = delete;

    /// True when all pages are searched, or enough are found.
    bool AtEnd() const;

    /// Searches some pages, about a megabyte.
    void Step();

    /// From 0 to 100.
    int Percent() const;

    /// At most 1,000.
    const std::vector<HelpFind>& Found() const { return found_; }

    /// How many pages could not be read.
    std::size_t Unreadable() const { return unreadable_; }

    /// What is searched, as the text of a page has it.
    const std::vector<std::u16string>& Words() const { return words_; }

  private:
    std::size_t SearchPage(const std::u16string& path);
    void Add(const std::u16string& path, const std::u16string& html, int places);

    std::shared_ptr<CompiledHelp> help_;
    std::vector<std::u16string> words_;
    std::vector<std::u16string> folded_;
    std::vector<std::u16string> pages_;
    std::size_t next_ = 0;
    std::size_t unreadable_ = 0;
    std::vector<HelpFind> found_;
};

/// The words of a search, those in quotation marks together; at most ten.
std::vector<std::u16string> HelpSearchWords(TextIn typed);

}  // namespace halvek
