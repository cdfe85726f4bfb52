// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/prefs/SystemPrefs.h>
#include <halvekutils/prefs/UserPrefs.h>

#include <QWidget>

#include <functional>
#include <vector>

namespace frontdesk {

/// A property of an object, shown in a control of the property's name.
template <class Object>
struct PropertyField {
    const char* name;
    QWidget* control;
    std::function<void(Object&)> load;   ///< from the object into the control
    std::function<void(Object&)> store;  ///< and back
};

/// The properties of the user's preferences in the order of the settings text, the one that the
/// text lacks at the end.
std::vector<PropertyField<halvek::UserPrefs>> MakeUserFields();

/// Some of the practice's preferences.
std::vector<PropertyField<halvek::SystemPrefs>> MakeSystemFields();

/// The names of the settings text's fields.
inline constexpr const char* kSettingNames[] = {
    "AIFormData",
    "DemoFormData",
    "ScheduleFormData",
    "PostingFormData",
    "ReportsFormData",
    "RequiredFieldBackColor",
    "FieldTextColor",
    "FormTopColor",
    "FormSkinColor",
    "FormTextColor",
    "FormWindowsMenu",
    "AINumDaysToShow",
    "(reserved)",
    "AIFilterData",
    "AIKeepFilter",
    "UseTables",
    "UseFileForTables",
    "(reserved)",
    "(reserved)",
    "PersistentConnection",
    "LoadCodesOnLogin",
    "InsuranceFormData",
    "ShowAdvancedSettings",
    "UseViewAllForReportsList",
    "ViewerFormData",
    "WorklistFormData",
    "ImportImagesData",
    "EMRPrefsData",
    "ImageData",
    "ScanningDocType",
    "SolvaneImagesFolder",
};

}  // namespace frontdesk
