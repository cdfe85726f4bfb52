// SPDX-License-Identifier: MIT
#include "pages/ColoursPage.h"

#include "Shown.h"
#include "tour/Tour.h"
#include "widgets/ColorButton.h"
#include "widgets/Fields.h"
#include "widgets/Table.h"

#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QHBoxLayout>
#include <QLabel>

#include <utility>
#include <vector>

namespace frontdesk {

using halvek::AsOwnerForm;
using halvek::Beside;
using halvek::StringArray;
using halvek::ToQString;
using halvek::Utils;

namespace {

enum Column { kType, kColour, kIndex };

const char* const kTypes[] = {"New patient", "Follow-up", "Vaccination", "Laboratory",
                              "Procedure",   "Telephone", "Blocked time"};
constexpr int kTypeWidth = 220;

/// A list of that many colours and the two that are never shown.
StringArray Colours(int count) {
    constexpr int kStep = 7919 * 31;
    StringArray colours(1, count + 2);
    for (int i = 1; i <= count + 2; ++i) {
        colours[i] = QString::number(qint64{i} * kStep & 0xFFFFFF).toStdU16String();
    }
    return colours;
}

}  // namespace

ColoursPage::ColoursPage(Desk& desk)
    : Page("C&olours",
           "Lets the user choose one of the practice's colours. The client colours its types of "
           "visit with them."),
      desk_(desk),
      table_(0, kIndex + 1),
      choose_(MakeButton("Beside the &button", [this] { Choose(Opening::BesideButton); })),
      returned_(MakeReadOnlyLine()) {
    StyleAsList(table_);
    table_.setAccessibleName("Types of visit");
    table_.setHorizontalHeaderLabels({"Type of visit", "Colour", "Index"});
    table_.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table_.setColumnWidth(kType, kTypeWidth);
    for (const char* type : kTypes) AddTableRow(table_, {type, {}, {}});
    table_.setSelectionBehavior(QAbstractItemView::SelectItems);  // a row's mark would hide colours
    table_.setCurrentCell(0, kType);
    connect(&table_, &QTableWidget::cellActivated, this, [this] { Choose(Opening::BesideCell); });
    Body().addLayout(MakeButtons());
    Body().addWidget(&table_, 1);
}

QLayout* ColoursPage::MakeButtons() {
    returned_->setAccessibleName("Returned");
    returned_->setPlaceholderText("Result");
    auto* row = new QHBoxLayout;
    row->addWidget(choose_);
    row->addWidget(MakeButton("Beside the &cell", [this] { Choose(Opening::BesideCell); }));
    row->addWidget(MakeButton("In the &middle", [this] { Choose(Opening::Centred); }));
    row->addWidget(returned_, 1);
    return row;
}

QString ColoursPage::Choose(Opening opening) {
    QString chosen = Open(opening);
    returned_->setText(Shown(chosen));
    if (!chosen.isEmpty()) Colour(table_.currentRow(), chosen);
    return chosen;
}

QString ColoursPage::Open(Opening opening) {
    Utils& library = desk_.Library();
    const auto form = AsOwnerForm(this);
    if (opening == Opening::Centred) {
        QString chosen = ToQString(library.ShowColor(-1, -1, -1, form));
        desk_.Calls().Add("ShowColor", Args(-1, -1, -1) << "the window", Shown(chosen));
        return chosen;
    }
    const bool isCell = opening == Opening::BesideCell;
    const QModelIndex cell = table_.model()->index(table_.currentRow(), kColour);
    const auto target = isCell ? Beside(&table_, cell) : Beside(choose_);
    QString chosen = ToQString(library.ShowColorAndCalculateCoordinates(target, form));
    desk_.Calls().Add("ShowColorAndCalculateCoordinates",
                      {isCell ? "the cell" : "the button", "the window"}, Shown(chosen));
    return chosen;
}

void ColoursPage::Colour(int row, const QString& chosen) {
    const halvek::Color colour = chosen.section('\t', 0, 0).toInt();
    QTableWidgetItem* cell = table_.item(row, kColour);
    cell->setText(chosen.section('\t', 0, 0));
    cell->setBackground(ToQColor(colour));
    cell->setForeground(halvek::IsDark(colour) ? Qt::white : Qt::black);
    table_.item(row, kIndex)->setText(chosen.section('\t', 1));
}

void ColoursPage::PlayLists(Tour& tour) {
    StringArray special = Colours(9);
    const char16_t* const entries[] = {u"-1", u"16777215", u"x", u"15724527", u"99999999999", u"0"};
    for (int i = 0; i < 6; ++i) special[i + 1] = entries[i];
    Preferences preferences = desk_.Data().StartPreferences();
    const auto open = [&](const QString& name, const StringArray& colours,
                          std::vector<TourStep> steps, const QString& expected) {
        preferences.colors = colours;
        desk_.InitPrefs(preferences);
        QString chosen;
        steps.insert(steps.begin(), tour.Snapshot(name));
        tour.Answer(name, std::move(steps), [&] { chosen = Open(Opening::Centred); });
        tour.ExpectResult(name, Shown(chosen), Shown(expected));
    };
    open("palette-one-colour", Colours(1), {Click("txtPalette_1")}, "245489\t1");
    open("palette-special-entries", special, {Click("txtPalette_3")}, "0\t3");
    open("palette-10000-colours", Colours(10'000),
         {PressKey("txtPalette_1", Qt::Key_End), tour.Snapshot("palette-10000-colours-end"),
          PressKey("txtPalette_10000", Qt::Key_Return)},
         ToQString(Colours(10'000)[10'000]) + "\t10000");
    desk_.InitPrefs(desk_.Data().StartPreferences());
}

void ColoursPage::Play(Tour& tour) {
    const struct {
        const char* name;
        Opening opening;
        std::vector<TourStep> steps;
        QString expected;
    } choices[] = {
        {"palette-beside-button",
         Opening::BesideButton,
         {PressKey("txtPalette_1", Qt::Key_Down), PressKey("txtPalette_7", Qt::Key_Right),
          tour.Snapshot("palette-beside-button"), PressKey("txtPalette_8", Qt::Key_Space)},
         "11842808\t8"},
        {"palette-beside-cell", Opening::BesideCell, {Click("txtPalette_27")}, "16509916\t28"},
        {"palette-centred", Opening::Centred, {Click("txtPalette_6")}, "0\t6"},
        {"palette-escape", Opening::BesideCell, {PressKey("txtPalette_1", Qt::Key_Escape)}, ""},
        {"palette-closed", Opening::BesideCell, {CloseWindow()}, ""},
    };
    int row = 0;
    for (const auto& each : choices) {
        table_.setCurrentCell(row++, kType);
        QString chosen;
        std::vector<TourStep> steps = each.steps;
        tour.Answer(each.name, std::move(steps), [&] { chosen = Choose(each.opening); });
        tour.ExpectResult(each.name, Shown(chosen), Shown(each.expected));
    }
    PlayLists(tour);
}

}  // namespace frontdesk
