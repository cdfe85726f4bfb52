// SPDX-License-Identifier: MIT
#include "pages/RightsPage.h"

#include "Shown.h"
#include "tour/Tour.h"
#include "widgets/Fields.h"
#include "widgets/Table.h"

#include <halvekutils/qt/QtText.h>

#include <QHBoxLayout>

namespace frontdesk {

using halvek::SecurityItem;
using halvek::ToQString;

namespace {

constexpr int kKeyWidth = 180;
constexpr char16_t kFullAccess[] = u"***";
constexpr char kReportWords[] = "check security";

constexpr Column<SecurityItem> kColumns[] = {
    {"Key", 240, [](const SecurityItem& item) { return ToQString(item.ItemKey()); }},
    {"Read", 90, [](const SecurityItem& item) { return Tick(item.AllowRead()); }},
    {"Add", 90, [](const SecurityItem& item) { return Tick(item.AllowAdd()); }},
    {"Modify", 90, [](const SecurityItem& item) { return Tick(item.AllowModify()); }},
    {"Delete", 90, [](const SecurityItem& item) { return Tick(item.AllowDelete()); }},
};

QString RightsOf(const SecurityItem& item) {
    QStringList rights;
    if (item.AllowRead()) rights << "read";
    if (item.AllowAdd()) rights << "add";
    if (item.AllowModify()) rights << "modify";
    if (item.AllowDelete()) rights << "delete";
    return rights.isEmpty() ? QString("no rights") : rights.join(", ");
}

}  // namespace

RightsPage::RightsPage(Desk& desk)
    : Page("&Rights",
           "What the signed-in user may do, built from rights.txt. A key that the server did not "
           "send is added by its first look-up."),
      desk_(desk),
      table_(MakeTable("Rights", kColumns)),
      found_(MakeReadOnlyLine()),
      fullAccess_(MakeButton("Full &access", [this] { Build(fullAccess_->isChecked()); })) {
    fullAccess_->setCheckable(true);
    Body().addLayout(MakeLookUp());
    Body().addWidget(table_, 1);
    Body().addLayout(MakeStatus());
    Body().addWidget(logged_);
    Build(false);
}

QLayout* RightsPage::MakeLookUp() {
    auto* label = new QLabel("&Key");
    label->setBuddy(&key_);
    key_.setAccessibleName("Key");
    key_.setFixedWidth(kKeyWidth);
    key_.setText("PATIENTS");
    found_->setAccessibleName("Rights");
    reportMissing_.setText("Re&port missing keys");
    connect(&key_, &QLineEdit::returnPressed, this, [this] { LookUp(); });
    connect(&reportMissing_, &QCheckBox::toggled, this, [this](bool on) { ReportMissing(on); });
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(&key_);
    row->addWidget(MakeButton("&Look up", [this] { LookUp(); }));
    row->addWidget(found_, 1);
    row->addWidget(&reportMissing_);
    return row;
}

QLayout* RightsPage::MakeStatus() {
    auto* row = new QHBoxLayout;
    row->addWidget(&count_, 1);
    row->addWidget(fullAccess_);
    row->addWidget(MakeButton("&Build", [this] { Build(false); }));
    row->addWidget(MakeButton("Clea&r", [this] { Clear(); }));
    return row;
}

void RightsPage::Refresh() {
    const auto rights = desk_.Library().GetSecurityItemsCollection();
    FillTable(*table_, kColumns, rights);
    count_.setText(rights == nullptr ? QString("No collection")
                                     : QString("Items: %1").arg(rights->Count()));
}

void RightsPage::Build(bool fullAccess) {
    const halvek::TextIn rights = fullAccess ? halvek::TextIn(kFullAccess) : desk_.Data().Rights();
    fullAccess_->setChecked(fullAccess);
    desk_.Library().BuildSecurityCollection(rights);
    logged_->SetMessages(desk_.Calls().Add("BuildSecurityCollection", Args(rights)));
    Refresh();
}

void RightsPage::Clear() {
    desk_.Library().ClearSecurityCollection();
    logged_->SetMessages(desk_.Calls().Add("ClearSecurityCollection", {}));
    Refresh();
}

void RightsPage::LookUp() {
    const auto rights = desk_.Library().GetSecurityItemsCollection();
    if (rights == nullptr) return found_->setText("no collection");
    const auto before = rights->Count();
    const auto item = rights->Item(key_.text());
    const bool isNew = rights->Count() > before;
    found_->setText(RightsOf(*item) + (isNew ? " (a new item)" : ""));
    logged_->SetMessages(desk_.Calls().Add("rights->Item", Args(key_.text()), found_->text()));
    Refresh();
    const auto cells = table_->findItems(ToQString(item->ItemKey()), Qt::MatchFixedString);
    if (cells.isEmpty()) return;
    table_->setCurrentItem(cells.first());
    table_->scrollToItem(cells.first(), QAbstractItemView::PositionAtCenter);
}

void RightsPage::ReportMissing(bool report) {
    QString mode = ToQString(desk_.Library().SpecialMode()).remove(kReportWords);
    if (report) mode += kReportWords;
    desk_.Library().SpecialMode(mode);
    desk_.Calls().Add("SpecialMode", Args(mode));
}

QString RightsPage::Answer(const QString& key) {
    key_.setText(key);
    LookUp();
    return found_->text();
}

void RightsPage::Play(Tour& tour) {
    struct Case {
        const char* key;
        const char* rights;
    };
    constexpr Case kCases[] = {
        {"patients", "read, add, modify, delete"},
        {"CLAIMS", "read, add, modify"},
        {"USERS", "no rights"},
        {"PRINTERS", "no rights"},
        {"FAX", "no rights (a new item)"},
        {"fax", "no rights"},
    };
    Build(false);
    tour.Expect(logged_->toPlainText().contains("AddSecurity Item error: patients"),
                "the second of two keys is logged");
    for (const Case& each : kCases) {
        tour.ExpectResult("rights of " + QString(each.key), Answer(each.key), each.rights);
    }
    reportMissing_.setChecked(true);
    tour.ExpectResult("rights of a missing key", Answer("PAGER"), "no rights (a new item)");
    tour.ExpectResult("the log", logged_->toPlainText(), "PAGER security item was not found");
    tour.Picture(*window(), "page-rights-missing-key");
    reportMissing_.setChecked(false);
    fullAccess_->click();
    tour.ExpectResult("rights with full access", Answer("ANYTHING"),
                      "read, add, modify, delete (a new item)");
    tour.Picture(*window(), "page-rights-full-access");
    fullAccess_->click();
    tour.ExpectResult("rights after full access", Answer("ANYTHING"), "no rights (a new item)");
    Clear();
    tour.ExpectResult("rights without a collection", Answer("CLAIMS"), "no collection");
    Build(false);
    Answer("CLAIMS");
}

}  // namespace frontdesk
