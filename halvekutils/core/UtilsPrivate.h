#pragma once

#include <halvekutils/core/DataBins.h>
#include <halvekutils/core/Utils.h>

#include <memory>
#include <string>

namespace halvek {

/// What belongs to one Utils object.
struct Utils::Private {
    std::u16string appDataFolderUser;
    std::u16string appDataFolderCommon;
    DataBins bins;
    std::shared_ptr<halvek::OpenWindows> openWindows;
    std::shared_ptr<const UserPrefs> userPrefs;
    std::shared_ptr<SystemPrefs> systemPrefs;
};

/// The log of an object, for the guard around its members.
inline auto LogOf(Utils& utils) {
    return [&utils](TextIn line) { utils.LogError(line); };
}

}  // namespace halvek
