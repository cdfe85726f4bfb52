// SPDX-License-Identifier: MIT
#include "pages/CodesPage.h"

#include "Shown.h"
#include "tour/Tour.h"
#include "widgets/Fields.h"

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/qt/QtText.h>

#include <QHBoxLayout>
#include <QHeaderView>

namespace frontdesk {

using halvek::ToQString;

namespace {

constexpr int kLoggedHeight = 56;
constexpr int kKeyWidth = 120;
constexpr int kRowPadding = 8;
constexpr int kColumnWidths[] = {48, 270, 58, 64, 166, 146, 72, 58};

}  // namespace

CodesPage::CodesPage(Desk& desk)
    : Page("&Codes", "The code tables that the server describes, built from codes.txt."),
      desk_(desk),
      logged_(MakeReadOnlyText()) {
    MakeTable();
    Body().addLayout(MakeLookUp());
    Body().addWidget(&table_, 1);
    Body().addLayout(MakeStatus());
    logged_->setFixedHeight(kLoggedHeight);
    logged_->setAccessibleName("Logged by the last build");
    logged_->setPlaceholderText("The last build logged nothing.");
    Body().addWidget(logged_);
}

void CodesPage::MakeTable() {
    table_.setModel(&model_);
    table_.setAccessibleName("Code tables");
    table_.setSelectionBehavior(QAbstractItemView::SelectRows);
    table_.setSelectionMode(QAbstractItemView::SingleSelection);
    table_.setAlternatingRowColors(true);
    table_.setShowGrid(false);
    table_.setWordWrap(false);
    table_.setTabKeyNavigation(false);
    table_.verticalHeader()->hide();
    table_.verticalHeader()->setDefaultSectionSize(table_.fontMetrics().height() + kRowPadding);
    table_.horizontalHeader()->setHighlightSections(false);
    table_.horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    int column = 0;
    for (const int width : kColumnWidths) table_.setColumnWidth(column++, width);
}

QLayout* CodesPage::MakeLookUp() {
    auto* label = new QLabel("&Key");
    label->setBuddy(&key_);
    key_.setAccessibleName("Key");
    key_.setFixedWidth(kKeyWidth);
    key_.setText("INS");
    found_.setReadOnly(true);
    found_.setAccessibleName("Found");
    connect(&key_, &QLineEdit::returnPressed, this, [this] { LookUp(); });
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(&key_);
    row->addWidget(MakeButton("&Look up", [this] { LookUp(); }));
    row->addWidget(&found_, 1);
    return row;
}

QLayout* CodesPage::MakeStatus() {
    auto* row = new QHBoxLayout;
    row->addWidget(&count_, 1);
    row->addWidget(MakeButton("&Build", [this] { Build(); }));
    row->addWidget(MakeButton("Clea&r", [this] { Clear(); }));
    return row;
}

void CodesPage::Refresh() {
    const auto codes = desk_.Library().GetCodesCollection();
    model_.SetCodes(codes);
    logged_->setPlainText(desk_.LoggedByBuild().join('\n'));
    count_.setText(codes == nullptr ? QString("No collection")
                                    : QString("%1 code tables").arg(codes->Count()));
}

void CodesPage::Build() {
    desk_.BuildCodes();
    Refresh();
    desk_.Calls().Add("GetCodesCollection()->Count", {}, QString::number(model_.rowCount()));
}

void CodesPage::Clear() {
    desk_.Library().ClearCodesCollection();
    desk_.Calls().Add("ClearCodesCollection", {});
    Refresh();
    desk_.Calls().Add("GetCodesCollection", {},
                      desk_.Library().GetCodesCollection() == nullptr ? "null" : "a collection");
}

QString CodesPage::LookUp() {
    const auto codes = desk_.Library().GetCodesCollection();
    const bool exists = desk_.Library().ExistsInColl(codes, key_.text());
    desk_.Calls().Add("ExistsInColl", QStringList("codes") + Args(key_.text()), Shown(exists));
    QString result = Fetch(key_.text());
    found_.setText(result);
    found_.setCursorPosition(0);
    return result;
}

QString CodesPage::Fetch(const QString& key) {
    const auto codes = desk_.Library().GetCodesCollection();
    if (codes == nullptr) return "no collection";
    QString result;
    try {
        const auto code = codes->Item(key);
        table_.selectRow(model_.RowOf(code));
        result = ToQString(code->CodeDescription());
        desk_.Calls().Add("codes->Item", Args(key), Shown(result));
    } catch (const halvek::RuntimeError& fault) {
        table_.clearSelection();
        result = QString("fault %1, %2").arg(fault.Number()).arg(ToQString(fault.Description()));
        desk_.Calls().Add("codes->Item", Args(key), result);
    }
    return result;
}

void CodesPage::Play(Tour& tour) {
    struct Case {
        const char* key;
        QString found;
    };
    const Case cases[] = {
        {"INS", "Insurance Companies"},
        {"cns", QString::fromUtf8("Patient’s Consent Forms")},
        {"NONE", "fault 5, Invalid argument: NONE"},
        {"lng", QString::fromUtf8("Languages (English, Español, Français)")},
    };
    Clear();
    tour.Picture(*window(), "page-codes-cleared");
    Build();
    tour.Expect(model_.rowCount() == 56, "56 of the 57 records become code tables");
    tour.Expect(logged_->toPlainText().contains("duplicate"), "the duplicate key is logged");
    for (const Case& each : cases) {
        key_.setText(each.key);
        tour.ExpectResult("look-up of " + QString(each.key), LookUp(), each.found);
    }
}

}  // namespace frontdesk
