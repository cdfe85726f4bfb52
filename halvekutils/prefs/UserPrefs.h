// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/BoolIn.h>
#include <halvekutils/base/Color.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/TextIn.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace halvek {

class Remarks;

/// One user's preferences: colours, switches and a text for each screen of the host, which the
/// server keeps as one settings text.
///
/// The texts for the screens are the host's own; only the layout of the settings is known here.
/// Until PopulateSettings, a new object holds empty texts, 0 and false. A colour of -1 is not set:
/// reading it stores and returns its default.
///
/// @code{.cpp}
/// UserPrefs prefs;
/// prefs.PopulateSettings(server.settings());
/// prefs.UseTables(true);
/// server.save(prefs.GetSettingsString());
/// @endcode
class HALVEK_EXPORT UserPrefs {
  public:
    UserPrefs();
    ~UserPrefs();

    /// Whether the host offers its advanced settings. PopulateSettings keeps it when the text has
    /// no field for it.
    void ShowAdvancedSettings(BoolIn value) { showAdvancedSettings_ = value; }
    bool ShowAdvancedSettings() const { return showAdvancedSettings_; }
    /// Whether the host loads all codes when the user signs in.
    void LoadCodesOnLogin(BoolIn value) { loadCodesOnLogin_ = value; }
    bool LoadCodesOnLogin() const { return loadCodesOnLogin_; }

    /// Whether the connection to the server is kept, "Y" or "N"; "Y" after PopulateSettings when
    /// the text does not say.
    void PersistentConnection(TextIn value) { persistentConnection_ = value; }
    std::u16string PersistentConnection() const { return persistentConnection_; }

    /// Whether the host keeps its tables in a file.
    void UseFileForTables(BoolIn value) { useFileForTables_ = value; }
    bool UseFileForTables() const { return useFileForTables_; }
    /// Whether the list of reports shows all.
    void UseViewAllForReportsList(BoolIn value) { useViewAllForReportsList_ = value; }
    bool UseViewAllForReportsList() const { return useViewAllForReportsList_; }
    /// Whether the host keeps tables of codes; "2" and "0" in the settings text.
    void UseTables(BoolIn value) { useTables_ = value; }
    bool UseTables() const { return useTables_; }
    /// Whether the host keeps the AI screen's filter.
    void AIKeepFilter(BoolIn value) { aiKeepFilter_ = value; }
    bool AIKeepFilter() const { return aiKeepFilter_; }
    /// The AI screen's filter, in the host's own form.
    void AIFilterData(TextIn value) { aiFilterData_ = value; }
    std::u16string AIFilterData() const { return aiFilterData_; }
    /// How many days the AI screen shows.
    void AINumDaysToShow(std::int32_t value) { aiNumDaysToShow_ = value; }
    std::int32_t AINumDaysToShow() const { return aiNumDaysToShow_; }

    /// The printer that the user printed on last. Not part of the settings text, and kept by
    /// PopulateSettings.
    void LastPrinterUsed(TextIn value) { lastPrinterUsed_ = value; }
    std::u16string LastPrinterUsed() const { return lastPrinterUsed_; }

    /// Whether forms have a menu of windows; true after PopulateSettings unless the text says no.
    void FormWindowsMenu(BoolIn value) { formWindowsMenu_ = value; }
    bool FormWindowsMenu() const { return formWindowsMenu_; }
    /// The text colour of forms; white when not set.
    void FormTextColor(Color value) { formTextColor_ = value; }
    Color FormTextColor() { return OrDefault(formTextColor_, kDefaultFormText); }
    /// The background of forms; 9664091, a grey blue, when not set.
    void FormSkinColor(Color value) { formSkinColor_ = value; }
    Color FormSkinColor() { return OrDefault(formSkinColor_, kDefaultFormSkin); }
    /// The colour of a form's top; 9664091, a grey blue, when not set.
    void FormTopColor(Color value) { formTopColor_ = value; }
    Color FormTopColor() { return OrDefault(formTopColor_, kDefaultFormTop); }
    /// The text colour of fields; black when not set.
    void FieldTextColor(Color value) { fieldTextColor_ = value; }
    Color FieldTextColor() { return OrDefault(fieldTextColor_, kDefaultFieldText); }

    /// Resets the settings and applies those of a settings text, field by field.
    ///
    /// Fields are separated by the character of code 223. If the text ends early, the other
    /// settings stay reset; so does a field whose number does not fit into 32 bits. What follows
    /// field 30 is ignored. LastPrinterUsed is not reset, and ShowAdvancedSettings only when the
    /// text has its field.
    /// @return always false
    bool PopulateSettings(TextIn StrAllSettings);

    /// The settings text: 31 fields, with colours as they are stored, so -1 for a colour that is
    /// not set.
    std::u16string GetSettingsString() const;

    /// The background of fields that must be filled in; 16765560, an orange, when not set.
    void RequiredFieldBackColor(Color value) { requiredFieldBackColor_ = value; }
    Color RequiredFieldBackColor() {
        return OrDefault(requiredFieldBackColor_, kDefaultRequiredFieldBack);
    }
    /// The text of the posting screen.
    void PostingFormData(TextIn value) { postingFormData_ = value; }
    std::u16string PostingFormData() const { return postingFormData_; }
    /// The text of the schedule screen.
    void ScheduleFormData(TextIn value) { scheduleFormData_ = value; }
    std::u16string ScheduleFormData() const { return scheduleFormData_; }
    /// The text of the reports screen.
    void ReportsFormData(TextIn value) { reportsFormData_ = value; }
    std::u16string ReportsFormData() const { return reportsFormData_; }
    /// The text of the insurance screen.
    void InsuranceFormData(TextIn value) { insuranceFormData_ = value; }
    std::u16string InsuranceFormData() const { return insuranceFormData_; }
    /// The text of the demographics screen.
    void DemoFormData(TextIn value) { demoFormData_ = value; }
    std::u16string DemoFormData() const { return demoFormData_; }
    /// The text of the AI screen. In a settings text it may stand between two "|", which are
    /// removed.
    void AIFormData(TextIn value) { aiFormData_ = value; }
    std::u16string AIFormData() const { return aiFormData_; }
    /// The text of the viewer.
    void ViewerFormData(TextIn value) { viewerFormData_ = value; }
    std::u16string ViewerFormData() const { return viewerFormData_; }
    /// The text of the work list.
    void WorklistFormData(TextIn value) { worklistFormData_ = value; }
    std::u16string WorklistFormData() const { return worklistFormData_; }
    /// The text of the screen that imports images.
    void ImportImagesData(TextIn value) { importImagesData_ = value; }
    std::u16string ImportImagesData() const { return importImagesData_; }
    /// The text of the EMR preferences.
    void EMRPrefsData(TextIn value) { emrPrefsData_ = value; }
    std::u16string EMRPrefsData() const { return emrPrefsData_; }
    /// The text of the image screen.
    void ImageData(TextIn value) { imageData_ = value; }
    std::u16string ImageData() const { return imageData_; }
    /// The type of document to scan.
    void ScanningDocType(TextIn value) { scanningDocType_ = value; }
    std::u16string ScanningDocType() const { return scanningDocType_; }
    /// The folder of images.
    void SolvaneImagesFolder(TextIn value) { solvaneImagesFolder_ = value; }
    std::u16string SolvaneImagesFolder() const { return solvaneImagesFolder_; }

  private:
    friend struct ServerTextCheck;
    struct Table;

    void Populate(TextIn settings, Remarks* remarks);
    /// The names of the settings text's fields, and what they hold as they are written.
    std::vector<std::pair<std::u16string_view, std::u16string>> Fields() const;

    static constexpr Color kNotSet = -1;
    static constexpr Color kDefaultFormText = kWhite;
    static constexpr Color kDefaultFormSkin = Rgb(0x5B, 0x76, 0x93);
    static constexpr Color kDefaultFormTop = kDefaultFormSkin;
    static constexpr Color kDefaultFieldText = kBlack;
    static constexpr Color kDefaultRequiredFieldBack = Rgb(0x78, 0xD2, 0xFF);

    static Color OrDefault(Color& color, Color whenNotSet) {
        if (color == kNotSet) color = whenNotSet;
        return color;
    }

    bool showAdvancedSettings_ = false;
    bool loadCodesOnLogin_ = false;
    std::u16string persistentConnection_;
    bool useFileForTables_ = false;
    bool useViewAllForReportsList_ = false;
    bool useTables_ = false;
    bool aiKeepFilter_ = false;
    std::u16string aiFilterData_;
    std::int32_t aiNumDaysToShow_ = 0;
    std::u16string lastPrinterUsed_;
    bool formWindowsMenu_ = false;
    Color formTextColor_ = 0;
    Color formSkinColor_ = 0;
    Color formTopColor_ = 0;
    Color fieldTextColor_ = 0;
    Color requiredFieldBackColor_ = 0;
    std::u16string postingFormData_;
    std::u16string scheduleFormData_;
    std::u16string reportsFormData_;
    std::u16string insuranceFormData_;
    std::u16string demoFormData_;
    std::u16string aiFormData_;
    std::u16string viewerFormData_;
    std::u16string worklistFormData_;
    std::u16string importImagesData_;
    std::u16string emrPrefsData_;
    std::u16string imageData_;
    std::u16string scanningDocType_;
    std::u16string solvaneImagesFolder_;
    std::u16string reservedSetting12_;
    std::u16string reservedSetting17_;
    std::u16string reservedSetting18_;
};

}  // namespace halvek
