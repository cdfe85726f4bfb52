// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Internal.h>
#include <halvekutils/base/TextIn.h>

#include <string>

namespace halvek {

/// A place in a compiled help file.
struct HelpTopic {
    std::u16string path;    ///< of the page, from the file's root, as in "/billing/late.htm"
    std::u16string anchor;  ///< in the page; empty for its beginning

    friend bool operator==(const HelpTopic&, const HelpTopic&) = default;
};

/// Reads a topic as hosts and help files write it.
///
/// Accepts "::/late.htm", "/late.htm", "late.htm" and "billing\late.htm", each also with "#anchor"
/// at the end and with ">window", which is ignored. The path is empty when the text names none.
HALVEK_INTERNAL HelpTopic ParseHelpTopic(TextIn text);

}  // namespace halvek
