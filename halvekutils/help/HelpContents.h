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
/// Takes 20,000 entries at most, and what lies deeper than 32 lists as if it lay there. An entry is
/// never more than one level deeper than the one before.
std::vector<HelpContentsEntry> ParseHelpContents(TextIn html);

}  // namespace halvek
