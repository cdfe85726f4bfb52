// SPDX-License-Identifier: MIT
#include <halvekutils/core/ComponentServices.h>
#include <halvekutils/core/UtilsPrivate.h>

#include <utility>

namespace halvek {

namespace {

std::shared_ptr<UserPrefs> CopyOf(const UserPrefs& prefs) {
    auto copy = std::make_shared<UserPrefs>();
    copy->PopulateSettings(prefs.GetSettingsString());
    return copy;
}

}  // namespace

std::shared_ptr<halvek::OpenWindows> Utils::OpenWindows() {
    if (d_->openWindows == nullptr) {
        d_->openWindows = halvek::OpenWindows::CreateEmpty(ComponentServices());
    }
    return d_->openWindows;
}

void Utils::SetCurrentUserPrefs(const UserPrefs& CurrentUserPrefs) {
    d_->userPrefs = CopyOf(CurrentUserPrefs);
}

void Utils::SetCurrentSystemPrefs(std::shared_ptr<SystemPrefs> CurrentSystemPrefs) {
    d_->systemPrefs = std::move(CurrentSystemPrefs);
}

std::shared_ptr<SystemPrefs> Utils::GetCurrentSystemPrefs() {
    if (d_->systemPrefs == nullptr) d_->systemPrefs = std::make_shared<SystemPrefs>();
    return d_->systemPrefs;
}

std::shared_ptr<UserPrefs> Utils::GetCurrentUserPrefs() const {
    return d_->userPrefs == nullptr ? std::make_shared<UserPrefs>() : CopyOf(*d_->userPrefs);
}

}  // namespace halvek
