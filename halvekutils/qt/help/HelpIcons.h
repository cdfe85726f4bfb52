// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace halvek {

/// The pictures on the help viewer's tools.
enum class HelpPicture { Back, Forward, Home, Contents, Find, Smaller, Larger, Print };

/// A picture painted at the size it is asked for, so it is crisp at every scale; pale when
/// disabled.
QIcon HelpIcon(HelpPicture picture);

}  // namespace halvek
