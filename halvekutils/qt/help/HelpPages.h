// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>
#include <halvekutils/help/CompiledHelp.h>

#include <QImage>
#include <QString>
#include <QUrl>

#include <optional>
#include <string>
#include <string_view>

namespace halvek {

// The pages of the help viewer as HTML. None of them runs a script.

struct HelpPage {
    QString html;
    bool isPaper = false;  ///< it has colours of its own, made for light paper
};

/// The address of a place in a file whose root has this address.
QUrl HelpAddressOf(const QUrl& root, const HelpTopic& topic);

/// An object of the help file: a page as far as the text layout bears it, a picture on a page of
/// its own, anything else as plain text. Throws when it cannot be read.
HelpPage PageOf(CompiledHelp& help, TextIn path, const QUrl& root);

HelpPage MissingTopicPage(const CompiledHelp& help, TextIn path);
HelpPage MissingContextPage(const CompiledHelp& help, TextIn contextId);
HelpPage UnreadablePage(TextIn what);

/// The size of the picture in these bytes; empty when there is none, it is larger than a page can
/// need or of a kind that help files do not have.
QSize PictureSizeOf(const std::string& bytes);

/// The picture itself, no larger than `most`; null where PictureSizeOf is empty or it is damaged.
QImage PictureOf(const std::string& bytes, const QSize& most);

/// Decodes what the library without windows cannot; see HelpDecoder.
std::optional<std::u16string> DecodedHelpText(std::string_view charset, std::string_view bytes);

}  // namespace halvek
