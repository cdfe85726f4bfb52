// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/core/DataBins.h>
#include <halvekutils/core/Utils.h>

#include <cstdint>
#include <memory>
#include <string>

namespace halvek {

/// What belongs to one Utils object.
struct Utils::Private {
    std::u16string appDataFolderUser;
    std::u16string appDataFolderCommon;
    DataBins bins;
    std::int32_t serverClockOffset = 0;  ///< in seconds, server minus workstation
    std::shared_ptr<halvek::OpenWindows> openWindows;
    std::shared_ptr<const UserPrefs> userPrefs;
    std::shared_ptr<SystemPrefs> systemPrefs;
};

/// The anchor of a pop-up beside a target. Nothing is given, which centres the pop-up, without a
/// target, or when it is gone, which is logged.
PopupAnchor AnchorOf(Utils& utils, PopupEdge edge, const std::shared_ptr<PopupTarget>& target);

/// Repaints a host's form after a dialog; nothing for none and for one that is gone. A fault is
/// logged with the prefix.
void Refresh(Utils& utils, const char16_t* faultPrefix, const std::shared_ptr<OwnerForm>& form);

/// The log of an object, for the guard around its members.
inline auto LogOf(Utils& utils) {
    return [&utils](TextIn line) { utils.LogError(line); };
}

}  // namespace halvek
