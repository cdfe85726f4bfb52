// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextOption>

namespace halvek {

/// The HTML of a page, or a style sheet, without anything that would cost the text layout minutes
/// or gigabytes: it is cut at half a million characters, loses tags that are nested too deep, and
/// its borders and spaces have at most three digits. An ordinary page stays as it is, except that
/// style sheets without a type get the type that Qt expects.
QString SanitizedHtml(const QString& html);

}  // namespace halvek
