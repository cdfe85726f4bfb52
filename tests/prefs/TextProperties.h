// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/prefs/UserPrefs.h>

#include <cstddef>
#include <string>

namespace halvek {

/// A property of the user preferences and its field of the settings text.
template <class Get, class Set>
struct Property {
    std::size_t field;
    Get get;
    Set set;
};

/// The properties whose field holds their value unchanged.
inline constexpr Property<std::u16string (UserPrefs::*)() const, void (UserPrefs::*)(TextIn)>
    kTextProperties[] = {{0, &UserPrefs::AIFormData, &UserPrefs::AIFormData},
                         {1, &UserPrefs::DemoFormData, &UserPrefs::DemoFormData},
                         {2, &UserPrefs::ScheduleFormData, &UserPrefs::ScheduleFormData},
                         {3, &UserPrefs::PostingFormData, &UserPrefs::PostingFormData},
                         {4, &UserPrefs::ReportsFormData, &UserPrefs::ReportsFormData},
                         {13, &UserPrefs::AIFilterData, &UserPrefs::AIFilterData},
                         {19, &UserPrefs::PersistentConnection, &UserPrefs::PersistentConnection},
                         {21, &UserPrefs::InsuranceFormData, &UserPrefs::InsuranceFormData},
                         {24, &UserPrefs::ViewerFormData, &UserPrefs::ViewerFormData},
                         {25, &UserPrefs::WorklistFormData, &UserPrefs::WorklistFormData},
                         {26, &UserPrefs::ImportImagesData, &UserPrefs::ImportImagesData},
                         {27, &UserPrefs::EMRPrefsData, &UserPrefs::EMRPrefsData},
                         {28, &UserPrefs::ImageData, &UserPrefs::ImageData},
                         {29, &UserPrefs::ScanningDocType, &UserPrefs::ScanningDocType},
                         {30, &UserPrefs::SolvaneImagesFolder, &UserPrefs::SolvaneImagesFolder}};

}  // namespace halvek
