// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/ByRef.h>
#include <halvekutils/platform/Controls.h>
#include <halvekutils/selection/SelectGrid.h>

#include <memory>
#include <string>

namespace halvek {

class Utils;

/// The log's prefix for whatever goes wrong on the way.
inline constexpr char16_t kSelectionFault[] = u"ShowSelectionGridForm error ";

/// Shows a selection dialog as asked and returns what the members of Utils that open one return.
/// The typed character is taken from the caller's variable.
std::u16string OpenSelection(Utils& utils, SelectionRequest request,
                             ByRef<std::u16string> TypedCharacter,
                             std::shared_ptr<OwnerForm> FormToRefresh);

}  // namespace halvek
