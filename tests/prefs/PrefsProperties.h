// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/BoolIn.h>
#include <halvekutils/prefs/UserPrefs.h>

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

/// Those that hold a colour.
inline constexpr Property<Color (UserPrefs::*)(), void (UserPrefs::*)(Color)> kColors[] = {
    {5, &UserPrefs::RequiredFieldBackColor, &UserPrefs::RequiredFieldBackColor},
    {6, &UserPrefs::FieldTextColor, &UserPrefs::FieldTextColor},
    {7, &UserPrefs::FormTopColor, &UserPrefs::FormTopColor},
    {8, &UserPrefs::FormSkinColor, &UserPrefs::FormSkinColor},
    {9, &UserPrefs::FormTextColor, &UserPrefs::FormTextColor}};

/// Those that are on or off.
inline constexpr Property<bool (UserPrefs::*)() const, void (UserPrefs::*)(BoolIn)> kSwitches[] = {
    {10, &UserPrefs::FormWindowsMenu, &UserPrefs::FormWindowsMenu},
    {14, &UserPrefs::AIKeepFilter, &UserPrefs::AIKeepFilter},
    {15, &UserPrefs::UseTables, &UserPrefs::UseTables},
    {16, &UserPrefs::UseFileForTables, &UserPrefs::UseFileForTables},
    {20, &UserPrefs::LoadCodesOnLogin, &UserPrefs::LoadCodesOnLogin},
    {22, &UserPrefs::ShowAdvancedSettings, &UserPrefs::ShowAdvancedSettings},
    {23, &UserPrefs::UseViewAllForReportsList, &UserPrefs::UseViewAllForReportsList}};

}  // namespace halvek
