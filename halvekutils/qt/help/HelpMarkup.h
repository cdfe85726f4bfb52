// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextOption>

namespace halvek {

/// The HTML of a page, or a style sheet, without what would take the text layout minutes or
/// gigabytes: it is cut at half a million characters, loses tags that stand too deep in others, and
/// its borders and spaces have three digits at most. Any ordinary page stays as it is, but for
/// style sheets without a type, which get the one that Qt wants to see.
QString SanitizedHtml(const QString& html);

}  // namespace halvek
