// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>
#include <halvekutils/help/CompiledHelp.h>

#include <QImage>
#include <QString>

namespace halvek {

// The pages of the help viewer as HTML. None of them runs a script.

/// An object of the help file: a page as it is, a picture on a page of its own, anything else as
/// plain text. Throws when it cannot be read.
QString PageOf(CompiledHelp& help, TextIn path);

QString MissingTopicPage(const CompiledHelp& help, TextIn path);
QString MissingContextPage(const CompiledHelp& help, TextIn contextId);
QString UnreadablePage(TextIn what);

/// The picture in these bytes; null when there is none or it is larger than a page can need.
QImage PictureOf(const std::string& bytes);

}  // namespace halvek
