// SPDX-License-Identifier: MIT
#include "pages/SettingsFields.h"

#include "widgets/ColorButton.h"
#include "widgets/Fields.h"

#include <halvekutils/base/BoolIn.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/qt/QtText.h>

#include <QCheckBox>

#include <cstdint>
#include <limits>
#include <string>

namespace frontdesk {

using halvek::BoolIn;
using halvek::Color;
using halvek::SystemPrefs;
using halvek::TextIn;
using halvek::UserPrefs;

namespace {

// Each kind of property picks the setter and the getter among the members of its name.

template <class Object>
PropertyField<Object> Text(const char* name, void (Object::*set)(TextIn),
                           std::u16string (Object::*get)() const) {
    auto* line = new QLineEdit;
    const auto load = [=](Object& object) {
        line->setText(halvek::ToQString((object.*get)()));
        line->setCursorPosition(0);
    };
    return {name, line, load, [=](Object& object) { (object.*set)(line->text()); }};
}

template <class Object>
PropertyField<Object> Flag(const char* name, void (Object::*set)(BoolIn),
                           bool (Object::*get)() const) {
    auto* box = new QCheckBox;
    return {name, box, [=](Object& object) { box->setChecked((object.*get)()); },
            [=](Object& object) { (object.*set)(box->isChecked()); }};
}

template <class Object>
PropertyField<Object> Number(const char* name, void (Object::*set)(std::int32_t),
                             std::int32_t (Object::*get)() const) {
    QSpinBox* number = MakeNumber(0, std::numeric_limits<std::int32_t>::min(),
                                  std::numeric_limits<std::int32_t>::max());
    return {name, number, [=](Object& object) { number->setValue((object.*get)()); },
            [=](Object& object) { (object.*set)(number->value()); }};
}

PropertyField<UserPrefs> Tint(const char* name, void (UserPrefs::*set)(Color),
                              Color (UserPrefs::*get)()) {
    auto* button = new ColorButton;
    return {name, button, [=](UserPrefs& prefs) { button->SetValue((prefs.*get)()); },
            [=](UserPrefs& prefs) { (prefs.*set)(button->Value()); }};
}

}  // namespace

std::vector<PropertyField<UserPrefs>> MakeUserFields() {
    return {
        Text("AIFormData", &UserPrefs::AIFormData, &UserPrefs::AIFormData),
        Text("DemoFormData", &UserPrefs::DemoFormData, &UserPrefs::DemoFormData),
        Text("ScheduleFormData", &UserPrefs::ScheduleFormData, &UserPrefs::ScheduleFormData),
        Text("PostingFormData", &UserPrefs::PostingFormData, &UserPrefs::PostingFormData),
        Text("ReportsFormData", &UserPrefs::ReportsFormData, &UserPrefs::ReportsFormData),
        Tint("RequiredFieldBackColor", &UserPrefs::RequiredFieldBackColor,
             &UserPrefs::RequiredFieldBackColor),
        Tint("FieldTextColor", &UserPrefs::FieldTextColor, &UserPrefs::FieldTextColor),
        Tint("FormTopColor", &UserPrefs::FormTopColor, &UserPrefs::FormTopColor),
        Tint("FormSkinColor", &UserPrefs::FormSkinColor, &UserPrefs::FormSkinColor),
        Tint("FormTextColor", &UserPrefs::FormTextColor, &UserPrefs::FormTextColor),
        Flag("FormWindowsMenu", &UserPrefs::FormWindowsMenu, &UserPrefs::FormWindowsMenu),
        Number("AINumDaysToShow", &UserPrefs::AINumDaysToShow, &UserPrefs::AINumDaysToShow),
        Text("AIFilterData", &UserPrefs::AIFilterData, &UserPrefs::AIFilterData),
        Flag("AIKeepFilter", &UserPrefs::AIKeepFilter, &UserPrefs::AIKeepFilter),
        Flag("UseTables", &UserPrefs::UseTables, &UserPrefs::UseTables),
        Flag("UseFileForTables", &UserPrefs::UseFileForTables, &UserPrefs::UseFileForTables),
        Text("PersistentConnection", &UserPrefs::PersistentConnection,
             &UserPrefs::PersistentConnection),
        Flag("LoadCodesOnLogin", &UserPrefs::LoadCodesOnLogin, &UserPrefs::LoadCodesOnLogin),
        Text("InsuranceFormData", &UserPrefs::InsuranceFormData, &UserPrefs::InsuranceFormData),
        Flag("ShowAdvancedSettings", &UserPrefs::ShowAdvancedSettings,
             &UserPrefs::ShowAdvancedSettings),
        Flag("UseViewAllForReportsList", &UserPrefs::UseViewAllForReportsList,
             &UserPrefs::UseViewAllForReportsList),
        Text("ViewerFormData", &UserPrefs::ViewerFormData, &UserPrefs::ViewerFormData),
        Text("WorklistFormData", &UserPrefs::WorklistFormData, &UserPrefs::WorklistFormData),
        Text("ImportImagesData", &UserPrefs::ImportImagesData, &UserPrefs::ImportImagesData),
        Text("EMRPrefsData", &UserPrefs::EMRPrefsData, &UserPrefs::EMRPrefsData),
        Text("ImageData", &UserPrefs::ImageData, &UserPrefs::ImageData),
        Text("ScanningDocType", &UserPrefs::ScanningDocType, &UserPrefs::ScanningDocType),
        Text("SolvaneImagesFolder", &UserPrefs::SolvaneImagesFolder,
             &UserPrefs::SolvaneImagesFolder),
        Text("LastPrinterUsed", &UserPrefs::LastPrinterUsed, &UserPrefs::LastPrinterUsed),
    };
}

std::vector<PropertyField<SystemPrefs>> MakeSystemFields() {
    return {
        Flag("CloseDialogAfterSave", &SystemPrefs::CloseDialogAfterSave,
             &SystemPrefs::CloseDialogAfterSave),
        Text("CodeDelimeter", &SystemPrefs::CodeDelimeter, &SystemPrefs::CodeDelimeter),
        Number("LookupKey", &SystemPrefs::LookupKey, &SystemPrefs::LookupKey),
        Number("ScrollBarWidth", &SystemPrefs::ScrollBarWidth, &SystemPrefs::ScrollBarWidth),
    };
}

}  // namespace frontdesk
