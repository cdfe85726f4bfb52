// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>
#include <halvekutils/help/HelpTopic.h>

#include <string>
#include <vector>

namespace halvek {

/// An entry of a help file's table of contents.
struct HelpContentsEntry {
    int depth = 0;  ///< 0 for the outermost
    std::u16string title;
    HelpTopic topic;  ///< its path is empty for a mere heading

    friend bool operator==(const HelpContentsEntry&, const HelpContentsEntry&) = default;
};

/// Reads a table of contents, nested HTML lists of "text/sitemap" objects.
///
/// Reads at most 20,000 entries; entries deeper than 32 lists count as 32 deep. An entry is never
/// more than one level deeper than the one before.
std::vector<HelpContentsEntry> ParseHelpContents(TextIn html);

}  // namespace halvek
