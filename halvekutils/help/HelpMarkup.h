// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>

#include <optional>
#include <string>
#include <string_view>

namespace halvek {

/// What a page asks of its file.
class HALVEK_INTERNAL HelpSurroundings {
  public:
    struct Picture {
        std::u16string address;  ///< under which the page gets it
        int width;
        int height;
    };

    virtual ~HelpSurroundings();

    /// The address that a link opens.
    virtual std::u16string Link(std::u16string_view written) = 0;

    /// The picture at an address; nothing when it is missing or cannot be shown.
    virtual std::optional<Picture> PictureAt(std::u16string_view written) = 0;

    /// A style sheet; empty for a missing one.
    virtual std::u16string StyleAt(std::u16string_view written) = 0;
};

/// A page that the text layout shows in reasonable time.
struct HelpMarkup {
    std::u16string html;
    bool hasColours = false;  ///< false for a page that leaves all colours to its reader
    bool isCut = false;       ///< it is longer than what is shown
    bool isPlain = false;     ///< it is too intricate: only its text is shown
};

/// Copies a page with what the text layout knows, and nothing that would cost it minutes or
/// gigabytes: known elements, attributes and styles only, of ordinary sizes and nested as deep as
/// people nest them, at most 5 million characters. Frames become links, missing pictures their
/// texts.
HALVEK_INTERNAL HelpMarkup CleanedHelpPage(std::u16string_view html, HelpSurroundings& file);

/// The words of a page, one line for each paragraph; for searching.
HALVEK_INTERNAL std::u16string HelpWordsOf(std::u16string_view html);

}  // namespace halvek
