// SPDX-License-Identifier: MIT
#include "pages/SessionPage.h"

#include "Shown.h"
#include "tour/Tour.h"
#include "widgets/Fields.h"

#include <halvekutils/qt/QtText.h>

#include <QGridLayout>

#include <limits>

namespace frontdesk {

using halvek::TextIn;
using halvek::Utils;

namespace {

constexpr int kGroupSpacing = 8;

struct TextProperty {
    const char* name;
    std::u16string (Utils::*get)() const;
    void (Utils::*set)(TextIn);
};

constexpr TextProperty kTextProperties[] = {
    {"SpecialMode", &Utils::SpecialMode, &Utils::SpecialMode},
    {"EntityListForUser", &Utils::EntityListForUser, &Utils::EntityListForUser},
    {"RemoteSettings", &Utils::RemoteSettings, &Utils::RemoteSettings},
    {"AppDataFolderUser", &Utils::AppDataFolderUser, &Utils::AppDataFolderUser},
    {"AppDataFolderCommon", &Utils::AppDataFolderCommon, &Utils::AppDataFolderCommon},
};

struct Reading {
    const char* name;
    QString (*read)(const Utils& utils);
};

constexpr Reading kReadings[] = {
    {"AppName", [](const Utils& utils) { return Shown(utils.AppName()); }},
    {"AppType", [](const Utils& utils) { return Shown(utils.AppType()); }},
    {"DBG", [](const Utils& utils) { return Shown(utils.DBG()); }},
    {"ExeFileStamp", [](const Utils& utils) { return Shown(utils.ExeFileStamp()); }},
    {"ColorArray", [](const Utils& utils) { return Shown(utils.ColorArray()); }},
    {"FormSkinColor", [](const Utils& utils) { return Shown(utils.FormSkinColor()); }},
    {"FormTextColor", [](const Utils& utils) { return Shown(utils.FormTextColor()); }},
    {"FormTopColor", [](const Utils& utils) { return Shown(utils.FormTopColor()); }},
    {"RequiredFieldBackColor",
     [](const Utils& utils) { return Shown(utils.RequiredFieldBackColor()); }},
    {"CodeDelimiter", [](const Utils& utils) { return Shown(utils.CodeDelimiter()); }},
    {"ColumnAdjustValue", [](const Utils& utils) { return Shown(utils.ColumnAdjustValue()); }},
    {"ScrollBarWidth", [](const Utils& utils) { return Shown(utils.ScrollBarWidth()); }},
};

QFormLayout* MakeForm(QGroupBox& box) {
    auto* form = new QFormLayout(&box);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    return form;
}

void AddButton(QFormLayout& form, QPushButton* button) {
    form.addRow(button);
    form.setAlignment(button, Qt::AlignRight);
}

}  // namespace

SessionPage::SessionPage(Desk& desk)
    : Page("&Session",
           "What the host tells the library at start-up. Every part of the program "
           "reads the same values."),
      desk_(desk) {
    auto* groups = new QGridLayout;
    groups->addWidget(MakeIdentity(), 0, 0);
    groups->addWidget(MakePreferences(), 0, 1);
    groups->addWidget(MakeOtherSettings(), 1, 0);
    groups->addWidget(MakeTexts(), 1, 1);
    groups->setColumnStretch(0, 1);
    groups->setColumnStretch(1, 1);
    groups->setSpacing(kGroupSpacing);
    Body().addLayout(groups);
    Body().addSpacing(kGroupSpacing);
    Body().addWidget(MakeButton("Read &all values", [this] { ReadAll(); }), 0, Qt::AlignLeft);
    Body().addStretch();
}

QGroupBox* SessionPage::MakeIdentity() {
    auto* box = new QGroupBox("Identity");
    QFormLayout& form = *MakeForm(*box);
    AddRow(form, "ErrFileName", &errFileName_);
    AddRow(form, "AppName", &appName_);
    AddRow(form, "AppType", &appType_);
    AddRow(form, "ExeFileStamp", &exeFileStamp_);
    debugMode_.setText("in debug mode faults beep and show a message");
    AddRow(form, "DebugMode", &debugMode_);
    AddButton(form, MakeButton("&InitUtils", [this] { ApplyIdentity(); }));
    return box;
}

QGroupBox* SessionPage::MakePreferences() {
    auto* box = new QGroupBox("Preferences");
    QFormLayout& form = *MakeForm(*box);
    AddRow(form, "FormSkinColor", &formSkin_);
    AddRow(form, "FormTextColor", &formText_);
    AddRow(form, "FormTopColor", &formTop_);
    AddRow(form, "RequiredFieldBackColor", &requiredFieldBack_);
    AddRow(form, "ColorArray", &colors_);
    AddButton(form, MakeButton("Init&Prefs", [this] { ApplyPreferences(); }));
    return box;
}

QGroupBox* SessionPage::MakeOtherSettings() {
    auto* box = new QGroupBox("Other settings");
    QFormLayout& form = *MakeForm(*box);
    columnAdjust_.setRange(0.1, 10.0);
    columnAdjust_.setSingleStep(0.05);
    scrollBarWidth_.setRange(0, std::numeric_limits<int>::max());
    scrollBarWidth_.setSuffix(" twips");
    AddRow(form, "HighlightBackColor", &highlightBack_);
    AddRow(form, "HighlightForeColor", &highlightFore_);
    AddRow(form, "CodeDelimiter", &codeDelimiter_);
    AddRow(form, "ColumnAdjustValue", &columnAdjust_);
    AddRow(form, "ScrollBarWidth", &scrollBarWidth_);
    AddButton(form, MakeButton("Init&OtherSettings", [this] { ApplyOtherSettings(); }));
    const OtherSettings start = desk_.Data().StartOtherSettings();
    highlightBack_.SetValue(start.highlightBack);
    highlightFore_.SetValue(start.highlightFore);
    return box;
}

QGroupBox* SessionPage::MakeTexts() {
    auto* box = new QGroupBox("Texts kept for all parts of the program");
    QFormLayout& form = *MakeForm(*box);
    for (const TextProperty& property : kTextProperties) {
        texts_.push_back(new QLineEdit);
        AddRow(form, property.name, texts_.back());
    }
    AddButton(form, MakeButton("S&tore", [this] { StoreTexts(); }));
    return box;
}

void SessionPage::Refresh() {
    const Utils& utils = desk_.Library();
    errFileName_.setText(desk_.ErrorLog().Path());
    appName_.setText(halvek::ToQString(utils.AppName()));
    appType_.setText(halvek::ToQString(utils.AppType()));
    exeFileStamp_.setText(halvek::ToQString(utils.ExeFileStamp()));
    debugMode_.setChecked(utils.DBG());
    formSkin_.SetValue(utils.FormSkinColor());
    formText_.SetValue(utils.FormTextColor());
    formTop_.SetValue(utils.FormTopColor());
    requiredFieldBack_.SetValue(utils.RequiredFieldBackColor());
    colors_.SetColors(utils.ColorArray());
    codeDelimiter_.setText(halvek::ToQString(utils.CodeDelimiter()));
    columnAdjust_.setValue(static_cast<double>(utils.ColumnAdjustValue()));
    scrollBarWidth_.setValue(utils.ScrollBarWidth());
    auto text = texts_.begin();
    for (const TextProperty& property : kTextProperties) {
        (*text++)->setText(halvek::ToQString((utils.*property.get)()));
    }
}

void SessionPage::ApplyIdentity() {
    desk_.InitUtils({errFileName_.text(), appName_.text(), appType_.text(), debugMode_.isChecked(),
                     exeFileStamp_.text()});
    Refresh();
}

void SessionPage::ApplyPreferences() {
    desk_.InitPrefs({desk_.Library().ColorArray(), formSkin_.Value(), formText_.Value(),
                     formTop_.Value(), requiredFieldBack_.Value()});
    Refresh();
}

void SessionPage::ApplyOtherSettings() {
    desk_.InitOtherSettings({highlightBack_.Value(), highlightFore_.Value(), codeDelimiter_.text(),
                             columnAdjust_.value(), scrollBarWidth_.value()});
    Refresh();
}

void SessionPage::StoreTexts() {
    auto text = texts_.begin();
    for (const TextProperty& property : kTextProperties) {
        const QString value = (*text++)->text();
        (desk_.Library().*property.set)(value);
        desk_.Calls().Add(property.name, Args(value));
    }
    Refresh();
}

void SessionPage::ReadAll() {
    const Utils& utils = desk_.Library();
    for (const Reading& reading : kReadings) {
        desk_.Calls().Add(reading.name, {}, reading.read(utils));
    }
    for (const TextProperty& property : kTextProperties) {
        desk_.Calls().Add(property.name, {}, Shown((utils.*property.get)()));
    }
}

void SessionPage::Play(Tour& tour) {
    const Utils& utils = desk_.Library();
    appType_.setText("billing office");
    ApplyIdentity();
    tour.Expect(utils.AppType() == u"billing office", "InitUtils stores the type");
    texts_[0]->setText("check security");
    StoreTexts();
    tour.Expect(utils.SpecialMode() == u"check security", "SpecialMode is stored");
    columnAdjust_.setValue(1.25);
    ApplyOtherSettings();
    tour.Expect(utils.ColumnAdjustValue() == 1.25F, "ColumnAdjustValue is stored");
    ApplyPreferences();
    tour.Expect(utils.ColorArray().UBound() == 36, "the palette keeps its bounds");
    ReadAll();
    texts_[0]->clear();
    StoreTexts();
}

}  // namespace frontdesk
