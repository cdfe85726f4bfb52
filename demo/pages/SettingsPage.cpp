// SPDX-License-Identifier: MIT
#include "pages/SettingsPage.h"

#include "Shown.h"
#include "tour/Tour.h"
#include "widgets/Fields.h"
#include "widgets/Table.h"

#include <halvekutils/qt/QtText.h>

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>

#include <iterator>

namespace frontdesk {

using halvek::SystemPrefs;
using halvek::ToQString;
using halvek::UserPrefs;

namespace {

constexpr QChar kSeparator(223);
constexpr int kTextColumn = 2;
constexpr int kColumnWidths[] = {34, 168, 200};
constexpr const char* kHeadings[] = {"No.", "Setting", "Settings text"};

constexpr std::int32_t kF2Key = 113;
constexpr std::int32_t kScrollBarPixels = 17;

template <class Object>
QWidget* MakeForm(const std::vector<PropertyField<Object>>& fields) {
    auto* widget = new QWidget;
    auto* form = new QFormLayout(widget);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (const auto& each : fields) {
        each.control->setObjectName(each.name);
        AddRow(*form, each.name, each.control);
    }
    return widget;
}

QLayout* RowOf(std::initializer_list<QWidget*> buttons) {
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QWidget* button : buttons) row->addWidget(button);
    return row;
}

}  // namespace

SettingsPage::SettingsPage(Desk& desk)
    : Page("Se&ttings",
           "The user's preferences, from settings.txt, and the one text in which the server keeps "
           "them. Its fields are separated by ß."),
      desk_(desk) {
    auto* columns = new QHBoxLayout;
    columns->addLayout(MakeEditor(), 1);
    columns->addSpacing(8);
    columns->addLayout(MakeText(), 1);
    Body().addLayout(columns, 1);
    Body().addLayout(MakeSystem());
    system_->CloseDialogAfterSave(true);
    system_->CodeDelimeter(desk_.Data().StartOtherSettings().codeDelimiter);
    system_->LookupKey(kF2Key);
    system_->ScrollBarWidth(kScrollBarPixels);
    desk_.Library().SetCurrentSystemPrefs(system_);
    desk_.Calls().Add("SetCurrentSystemPrefs", {"system"});
    ShowText(ToQString(desk_.Data().Settings()));
    Populate();
}

QLayout* SettingsPage::MakeEditor() {
    auto* area = new QScrollArea;
    area->setWidget(MakeForm(userFields_));
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    auto* column = new QVBoxLayout;
    column->addWidget(area, 1);
    column->addLayout(RowOf({MakeButton("Set &current", [this] { SetCurrent(); }),
                             MakeButton("Get curr&ent", [this] { GetCurrent(); })}));
    return column;
}

QLayout* SettingsPage::MakeText() {
    StyleAsList(text_);
    text_.setColumnCount(static_cast<int>(std::size(kHeadings)));
    for (int column = 0; column < text_.columnCount(); ++column) {
        auto* heading = new QTableWidgetItem(kHeadings[column]);
        heading->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        text_.setHorizontalHeaderItem(column, heading);
        text_.setColumnWidth(column, kColumnWidths[column]);
    }
    text_.setAccessibleName("Settings text, a field a row");
    auto* column = new QVBoxLayout;
    column->addWidget(&text_, 1);
    column->addLayout(RowOf({MakeButton("&Populate", [this] { Populate(); }),
                             MakeButton("&Get string", [this] { GetString(); })}));
    return column;
}

QLayout* SettingsPage::MakeSystem() {
    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel("Practice:"));
    for (const auto& each : systemFields_) {
        auto* label = new QLabel(each.name);
        label->setBuddy(each.control);
        each.control->setObjectName(each.name);
        each.control->setAccessibleName(each.name);
        row->addWidget(label);
        row->addWidget(each.control);
    }
    row->addStretch();
    row->addWidget(MakeButton("St&ore", [this] { StoreSystem(); }));
    return row;
}

QString SettingsPage::Text() const {
    QString text;
    for (int row = 0; row < text_.rowCount(); ++row) text += text_.item(row, kTextColumn)->text();
    return text;
}

void SettingsPage::ShowText(const QString& text) {
    const QStringList fields = text.split(kSeparator);
    text_.setRowCount(0);
    for (qsizetype i = 0; i < fields.size(); ++i) {
        const bool isNamed = i < static_cast<qsizetype>(std::size(kSettingNames));
        const bool isLast = i == fields.size() - 1;
        const int row =
            AddTableRow(text_, {QString::number(i), isNamed ? kSettingNames[i] : "(ignored)",
                                fields[i] + (isLast ? QString() : QString(kSeparator))});
        QTableWidgetItem* cell = text_.item(row, kTextColumn);
        cell->setFlags(cell->flags() | Qt::ItemIsEditable);
        cell->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    }
}

void SettingsPage::Load() {
    for (const auto& each : userFields_) each.load(prefs_);
}

void SettingsPage::Store() {
    for (const auto& each : userFields_) each.store(prefs_);
}

void SettingsPage::Refresh() {
    const auto current = desk_.Library().GetCurrentSystemPrefs();
    for (const auto& each : systemFields_) each.load(*current);
}

void SettingsPage::Populate() {
    const bool result = prefs_.PopulateSettings(Text());
    desk_.Calls().Add("prefs.PopulateSettings", Args(Text()), Shown(result));
    Load();
}

void SettingsPage::GetString() {
    Store();
    const QString text = ToQString(prefs_.GetSettingsString());
    desk_.Calls().Add("prefs.GetSettingsString", {}, Shown(text));
    ShowText(text);
}

void SettingsPage::SetCurrent() {
    Store();
    desk_.Library().SetCurrentUserPrefs(prefs_);
    desk_.Calls().Add("SetCurrentUserPrefs", {"prefs"});
}

void SettingsPage::GetCurrent() {
    prefs_ = *desk_.Library().GetCurrentUserPrefs();
    desk_.Calls().Add("GetCurrentUserPrefs", {}, Shown(ToQString(prefs_.GetSettingsString())));
    Load();
}

void SettingsPage::StoreSystem() {
    for (const auto& each : systemFields_) each.store(*system_);
    const auto current = desk_.Library().GetCurrentSystemPrefs();
    desk_.Calls().Add("GetCurrentSystemPrefs()->CodeDelimeter", {},
                      Shown(ToQString(current->CodeDelimeter())));
    desk_.Calls().Add("GetCurrentSystemPrefs()->LookupKey", {}, Shown(current->LookupKey()));
}

void SettingsPage::Play(Tour& tour) {
    const QString sent = ToQString(desk_.Data().Settings());
    const auto line = [this](const char* name) { return findChild<QLineEdit*>(name); };
    tour.ExpectResult("the reserved setting", text_.item(12, kTextColumn)->text(), "r12ß");
    GetString();
    // The form's top colour was not set, and the editor has read it, which stored its default.
    tour.ExpectResult("the settings text", Text(),
                      QString(sent).replace("ßß16314084", "ß9664091ß16314084"));
    line("LastPrinterUsed")->setText("Label printer");
    line("ScanningDocType")->setText("Referral letter");
    SetCurrent();
    line("ScanningDocType")->setText("Changed later");
    GetCurrent();
    tour.ExpectResult("the copy", line("ScanningDocType")->text(), "Referral letter");
    tour.ExpectResult("the copy's printer", line("LastPrinterUsed")->text(), "");
    ShowText("|abc|defßName");
    Populate();
    tour.ExpectResult("a field between bars", line("AIFormData")->text(), "abc");
    tour.ExpectResult("a setting left out", line("PersistentConnection")->text(), "Y");
    tour.Picture(*window(), "page-settings-short-text");
    line("CodeDelimeter")->setText("/");
    StoreSystem();
    tour.Expect(desk_.Library().GetCurrentSystemPrefs() == system_, "the object is shared");
    line("CodeDelimeter")->setText("-");
    StoreSystem();
    ShowText(sent);
    Populate();
}

}  // namespace frontdesk
