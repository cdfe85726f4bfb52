// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/RuntimeError.h>

#include <QPointer>

namespace halvek {

/// The control behind an adapter. Throws ObjectNotSet once it is gone.
template <class Widget>
Widget& Existing(const QPointer<Widget>& control, TextIn what) {
    if (control == nullptr) throw RuntimeError(Fault::ObjectNotSet, what);
    return *control;
}

}  // namespace halvek
