// SPDX-License-Identifier: MIT
#include "pages/PrintersPage.h"

#include "Shown.h"
#include "tour/Tour.h"
#include "widgets/Fields.h"
#include "widgets/Table.h"

#include <halvekutils/qt/QtText.h>

#include <QApplication>
#include <QHBoxLayout>

namespace frontdesk {

using halvek::PrinterDefinition;
using halvek::ToQString;

namespace {

constexpr Column<PrinterDefinition> kColumns[] = {
    {"ID", 56, [](const PrinterDefinition& of) { return ToQString(of.PrinterID()); }},
    {"Type", 66, [](const PrinterDefinition& of) { return ToQString(of.PrinterType()); }},
    {"Serial", 56, [](const PrinterDefinition& of) { return Tick(of.IsSerial()); }},
    {"Description", 186,
     [](const PrinterDefinition& of) { return ToQString(of.PrinterDescription()); }},
    {"Port", 110, [](const PrinterDefinition& of) { return ToQString(of.PrinterPort()); }},
    {"Device", 150, [](const PrinterDefinition& of) { return ToQString(of.PrinterDeviceName()); }},
    {"Driver", 150, [](const PrinterDefinition& of) { return ToQString(of.PrinterDriverName()); }},
    {"Order", 50, [](const PrinterDefinition& of) { return QString::number(of.NumberInOrder()); }},
};

struct Switch {
    const char* caption;
    bool exclude;
};

// In the order of GetPrintersCollectionFiltered's arguments, with their defaults.
constexpr Switch kSwitchTexts[] = {
    {"without the s&pool", true},
    {"without fil&es", false},
    {"without &workstation printers", false},
    {"without seria&l printers", false},
};

struct Source {
    const char* caption;
    const char* specialMode;
};

constexpr Source kSources[] = {
    {"Connections, else the list", ""},
    {"Printer list", "printerlistold"},
    {"Connections only", "printerlistnew"},
};

}  // namespace

PrintersPage::PrintersPage(Desk& desk)
    : Page("&Printers",
           "Every output device that a user may choose: the server's, from printers.txt, then the "
           "workstation's."),
      desk_(desk),
      table_(MakeTable("Printers", kColumns)),
      filter_(MakeFilter()) {
    Body().addWidget(filter_);
    Body().addWidget(table_, 1);
    Body().addLayout(MakeStatus());
    Body().addWidget(logged_);
}

QGroupBox* PrintersPage::MakeFilter() {
    auto* filter = new QGroupBox("F&iltered");
    filter->setCheckable(true);
    filter->setChecked(false);
    auto* row = new QHBoxLayout(filter);
    for (std::size_t i = 0; i < kSwitches; ++i) {
        switches_[i].setText(kSwitchTexts[i].caption);
        switches_[i].setChecked(kSwitchTexts[i].exclude);
        connect(&switches_[i], &QCheckBox::clicked, this, [this] { NoteFilter(); });
        row->addWidget(&switches_[i]);
    }
    row->addStretch();
    connect(filter, &QGroupBox::clicked, this, [this] { NoteFilter(); });
    return filter;
}

QLayout* PrintersPage::MakeStatus() {
    auto* label = new QLabel("Wor&kstation printers from");
    label->setBuddy(&source_);
    source_.setAccessibleName("Where the workstation's printers come from");
    for (const Source& source : kSources) source_.addItem(source.caption, source.specialMode);
    auto* row = new QHBoxLayout;
    row->addWidget(&count_, 1);
    row->addWidget(label);
    row->addWidget(&source_);
    row->addWidget(MakeButton("&Build", [this] { Build(); }));
    row->addWidget(MakeButton("Clea&r", [this] { Clear(); }));
    return row;
}

std::shared_ptr<halvek::PrintersCollection> PrintersPage::Listed() {
    if (!filter_->isChecked()) return desk_.Library().GetPrintersCollection();
    return desk_.Library().GetPrintersCollectionFiltered(
        switches_[0].isChecked(), switches_[1].isChecked(), switches_[2].isChecked(),
        switches_[3].isChecked());
}

void PrintersPage::Refresh() {
    const auto printers = Listed();
    FillTable(*table_, kColumns, printers);
    count_.setText(printers == nullptr ? QString("No collection")
                                       : QString("Printers: %1").arg(printers->Count()));
}

void PrintersPage::NoteFilter() {
    Refresh();
    if (!filter_->isChecked()) return;
    QStringList arguments;
    for (const QCheckBox& each : switches_) arguments << Shown(each.isChecked());
    desk_.Calls().Add("GetPrintersCollectionFiltered", arguments, count_.text());
}

void PrintersPage::Build() {
    const QString sessionMode = ToQString(desk_.Library().SpecialMode());
    desk_.Library().SpecialMode(sessionMode + source_.currentData().toString());
    QApplication::setOverrideCursor(Qt::WaitCursor);
    desk_.Library().BuildPrintersCollection(desk_.Data().Printers());
    QApplication::restoreOverrideCursor();
    desk_.Library().SpecialMode(sessionMode);
    logged_->SetMessages(
        desk_.Calls().Add("BuildPrintersCollection", Args(desk_.Data().Printers())));
    Refresh();
}

void PrintersPage::Clear() {
    desk_.Library().ClearPrintersCollection();
    logged_->SetMessages(desk_.Calls().Add("ClearPrintersCollection", {}));
    Refresh();
}

QString PrintersPage::FilteredWith(std::initializer_list<bool> exclude) {
    std::size_t i = 0;
    for (const bool each : exclude) switches_[i++].setChecked(each);
    NoteFilter();
    QStringList ids;
    const auto printers = Listed();
    for (const auto& printer : printers) ids << ToQString(printer->PrinterID());
    return ids.join(' ');
}

void PrintersPage::Play(Tour& tour) {
    // Each workstation has other printers, so they are left out of the comparison.
    const struct {
        std::initializer_list<bool> exclude;
        const char* left;
    } cases[] = {
        {{true, false, true, false}, "2 7 8 11 12 9 10"},
        {{false, false, true, false}, "S 2 7 8 11 12 9 10"},
        {{false, true, true, true}, "S"},
        {{true, true, true, false}, "2 7 8 11 12"},
        {{true, true, true, true}, ""},
    };
    Clear();
    tour.Picture(*window(), "page-printers-cleared");
    for (int source = 0; source < source_.count(); ++source) {
        Clear();
        source_.setCurrentIndex(source);
        Build();
        tour.Expect(logged_->toPlainText().contains("format is invalid for item 6 Superbills"),
                    "the entry with three fields is logged");
    }
    Build();
    tour.Expect(logged_->toPlainText().contains("BuildPrintersCollection"),
                "a second build without a clear fails");
    tour.Picture(*window(), "page-printers-built-twice");
    source_.setCurrentIndex(0);
    Clear();
    Build();
    filter_->setChecked(true);
    for (const auto& each : cases) {
        tour.ExpectResult("filtered printers", FilteredWith(each.exclude), each.left);
    }
    FilteredWith({true, false, false, false});
}

}  // namespace frontdesk
