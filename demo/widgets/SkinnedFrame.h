// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/core/Utils.h>

#include <QFrame>

namespace frontdesk {

/// A part of a page in the colours of the practice's forms instead of the desktop's.
class SkinnedFrame : public QFrame {
  public:
    SkinnedFrame();

    /// Applies the colours given to InitPrefs.
    void SetColors(const halvek::Utils& library);
};

}  // namespace frontdesk
