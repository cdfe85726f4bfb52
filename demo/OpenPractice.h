// SPDX-License-Identifier: MIT
#pragma once

#include "CallLog.h"
#include "practice/Practice.h"

#include <halvekutils/core/Utils.h>

#include <QString>

#include <memory>

namespace frontdesk {

/// Opens the practice's file. When it cannot be used, a message says why and offers to work with a
/// file beside it; the file itself is left as it is. Null when the user declines.
std::unique_ptr<Practice> OpenPractice(const QString& path, halvek::Utils& utils);

}  // namespace frontdesk
