// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace frontdesk {

enum class Glyph { Desk, Calendar, Person, Check, Card, Search, List, Calculator };

/// An icon that is painted in the desktop's text colour, crisp at every scale.
QIcon MakeIcon(Glyph glyph);

}  // namespace frontdesk
