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

}  // namespace halvek
