// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>

#include <string>
#include <vector>

namespace halvek {

/// An entry of a help file's table of contents or index, as the file has it.
struct HelpSitemapEntry {
    struct Place {
        std::u16string title;
        std::u16string address;
    };

    int depth = 0;  ///< 0 for the outermost
    std::u16string title;
    std::vector<Place> places;  ///< none for a mere heading; a contents entry uses the first
    std::u16string seeAlso;     ///< another title of the index
};

/// Reads a table of contents or an index, nested HTML lists of "text/sitemap" objects.
///
/// Reads at most 50,000 entries; entries deeper than 32 lists count as 32 deep. An entry is never
/// more than one level deeper than the one before.
std::vector<HelpSitemapEntry> ParseHelpSitemap(TextIn html);

}  // namespace halvek
