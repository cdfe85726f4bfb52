// SPDX-License-Identifier: MIT
#include "pages/DataBinsPage.h"

#include "Shown.h"
#include "tour/Tour.h"
#include "widgets/Fields.h"

#include <halvekutils/qt/QtText.h>

#include <QHBoxLayout>
#include <QHeaderView>

namespace frontdesk {

namespace {

constexpr int kKeyWidth = 180;
constexpr int kExistsWidth = 90;
constexpr int kRowPadding = 8;

}  // namespace

DataBinsPage::DataBinsPage(Desk& desk)
    : Page("Data &bins",
           "Texts that one window stores under a key and another fetches. Letter "
           "case of keys matters."),
      desk_(desk) {
    MakeTable();
    Body().addLayout(MakeFields());
    Body().addLayout(MakeButtons());
    Body().addSpacing(8);
    Body().addWidget(&table_, 1);
}

QLayout* DataBinsPage::MakeFields() {
    auto* form = new QFormLayout;
    AddRow(*form, "&Key", &key_);
    AddRow(*form, "&Data", &data_);
    AddRow(*form, "&Type", &type_);
    key_.setText("visit");
    data_.setText("03/07/2004|Room 12");
    type_.setText("text");
    return form;
}

QLayout* DataBinsPage::MakeButtons() {
    auto* row = new QHBoxLayout;
    row->addWidget(MakeButton("&AddBin", [this] { AddBin(); }));
    row->addWidget(MakeButton("&GetBinData", [this] { GetBinData(); }));
    row->addWidget(MakeButton("Bin&Exists", [this] { BinExists(); }));
    row->addWidget(MakeButton("&RemoveBin", [this] { RemoveBin(); }));
    row->addWidget(MakeButton("&ClearAllBins", [this] { ClearAllBins(); }));
    row->addStretch();
    return row;
}

void DataBinsPage::MakeTable() {
    table_.setAccessibleName("Keys used so far");
    table_.setColumnCount(3);
    table_.setHorizontalHeaderLabels({"Key used so far", "BinExists", "GetBinData"});
    table_.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table_.horizontalHeader()->setHighlightSections(false);
    table_.horizontalHeader()->setStretchLastSection(true);
    table_.setColumnWidth(0, kKeyWidth);
    table_.setColumnWidth(1, kExistsWidth);
    table_.verticalHeader()->hide();
    table_.verticalHeader()->setDefaultSectionSize(table_.fontMetrics().height() + kRowPadding);
    table_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_.setSelectionBehavior(QAbstractItemView::SelectRows);
    table_.setShowGrid(false);
    table_.setTabKeyNavigation(false);
}

void DataBinsPage::Refresh() {
    const halvek::Utils& utils = desk_.Library();
    table_.setRowCount(static_cast<int>(usedKeys_.size()));
    int row = 0;
    for (const QString& key : usedKeys_) {
        table_.setItem(row, 0, new QTableWidgetItem(key));
        table_.setItem(row, 1, new QTableWidgetItem(Shown(utils.BinExists(key))));
        const QString found = halvek::ToQString(utils.GetBinData(key));
        table_.setItem(row++, 2, new QTableWidgetItem(found));
    }
}

void DataBinsPage::AddBin() {
    desk_.Library().AddBin(key_.text(), data_.text(), type_.text());
    Note("AddBin", Args(key_.text(), data_.text(), type_.text()));
}

void DataBinsPage::GetBinData() {
    Note("GetBinData", Args(key_.text()), Shown(desk_.Library().GetBinData(key_.text())));
}

void DataBinsPage::BinExists() {
    Note("BinExists", Args(key_.text()), Shown(desk_.Library().BinExists(key_.text())));
}

void DataBinsPage::RemoveBin() {
    desk_.Library().RemoveBin(key_.text());
    Note("RemoveBin", Args(key_.text()));
}

void DataBinsPage::ClearAllBins() {
    desk_.Library().ClearAllBins();
    Note("ClearAllBins", {});
}

void DataBinsPage::Note(const QString& function, const QStringList& arguments,
                        const QString& result) {
    desk_.Calls().Add(function, arguments, result);
    if (!arguments.isEmpty() && !usedKeys_.contains(key_.text())) usedKeys_ << key_.text();
    Refresh();
}

void DataBinsPage::Play(Tour& tour) {
    const halvek::Utils& utils = desk_.Library();
    AddBin();
    data_.setText("03/08/2004|Room 3");
    AddBin();
    GetBinData();
    tour.Expect(utils.GetBinData(u"visit") == u"03/08/2004|Room 3", "a bin is replaced");
    key_.setText("VISIT");
    AddBin();
    BinExists();
    tour.Expect(!utils.BinExists(u"VISIT"), "a key of other letter case is refused");
    tour.Expect(desk_.Calls().Lines().filter("Error in Utils.AddBin ").size() == 1,
                "the refusal is logged");
    key_.setText("referral");
    data_.setText("REF|Dr. Example");
    AddBin();
    key_.setText("recall");
    RemoveBin();
    AddBin();
    RemoveBin();
    tour.Expect(!utils.BinExists(u"recall"), "a bin is removed");
}

}  // namespace frontdesk
