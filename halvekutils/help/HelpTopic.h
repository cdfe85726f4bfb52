// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace halvek {

/// A place in a compiled help file.
struct HelpTopic {
    std::u16string path;    ///< of the page, from the file's root, as in "/billing/late.htm"
    std::u16string anchor;  ///< in the page; empty for its beginning

    friend bool operator==(const HelpTopic&, const HelpTopic&) = default;
};

/// Reads a topic as hosts and help files write it, relative to a folder.
///
/// Accepts "::/late.htm", "/late.htm", "late.htm" and "billing\late.htm", each also with "#anchor"
/// at the end, with ">window", which is ignored, and with blanks around it. The path is empty when
/// the text names none.
HALVEK_INTERNAL HelpTopic ParseHelpTopic(TextIn text, TextIn folder = u"/");

/// What an address may mean, the likeliest first: as it is written, then percent-decoded; each in
/// the folder of the page that has it, then from the root.
std::vector<HelpTopic> MeaningsOf(TextIn address, TextIn folder);

/// An address without the blanks around it and the prefixes that name this file, as in
/// "ms-its:desk.chm::/late.htm" and "mk:@MSITStore:C:\help\desk.chm::/late.htm"; nothing when it
/// leads to another file or to the network.
std::optional<std::u16string_view> WithinHelpFile(std::u16string_view address, TextIn fileName);

/// The folder of a page, with "/" at the end.
std::u16string_view FolderOf(std::u16string_view path);

}  // namespace halvek
