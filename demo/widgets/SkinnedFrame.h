// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/core/Utils.h>

#include <QFrame>

namespace frontdesk {

/// A part of a page in the colours of the practice's forms, whatever the desktop's are.
class SkinnedFrame : public QFrame {
  public:
    SkinnedFrame();

    /// Takes over the colours given to InitPrefs.
    void SetColors(const halvek::Utils& library);
};

}  // namespace frontdesk
