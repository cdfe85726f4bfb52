// SPDX-License-Identifier: MIT
#include "pages/DatesPage.h"

#include "tour/Tour.h"
#include "widgets/Fields.h"

#include <halvekutils/base/DateText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QHBoxLayout>
#include <QScreen>

#include <utility>
#include <vector>

namespace frontdesk {

using namespace halvek;

namespace {

const char* const kBirthDefault = "1/1/1980";

CallBox* MakeConvertHDate(Desk& desk) {
    return new CallBox("The server's days and seconds", "&ConvertHDate",
                       {{"Days,seconds", "60000,43200"}}, [&desk](const QVariantList& arguments) {
                           const QString date = arguments[0].toString();
                           QString result = Shown(desk.Library().ConvertHDate(date));
                           desk.Calls().Add("ConvertHDate", Args(date), result);
                           return result;
                       });
}

CallBox* MakeConvertNumberToDate(Desk& desk) {
    return new CallBox(
        "A date as digits and back", "ConvertNumber&ToDate",
        {{"Date", "3/5/2024"}, {"From digits", false}}, [&desk](const QVariantList& arguments) {
            const QString date = arguments[0].toString();
            const bool convert = arguments[1].toBool();
            QString result = Shown(desk.Library().ConvertNumberToDate(date, convert));
            desk.Calls().Add("ConvertNumberToDate", Args(date, convert), result);
            return result;
        });
}

CallBox* MakeInitServerTime(Desk& desk) {
    return new CallBox("The server's clock", "&InitServerTime",
                       {{"Time from server", "11:59:30 PM"}},
                       [&desk](const QVariantList& arguments) {
                           const QString time = arguments[0].toString();
                           QString result;
                           try {
                               desk.Library().InitServerTime(time);
                           } catch (const RuntimeError& fault) {
                               result = ToQString(fault.Description());
                           }
                           desk.Calls().Add("InitServerTime", Args(time), result);
                           return result;
                       });
}

CallBox* MakeServerTime(Desk& desk) {
    return new CallBox("The server's clock now", "Se&rverTime", {}, [&desk](const QVariantList&) {
        QString result = Shown(DateTimeText(desk.Library().ServerTime()));
        desk.Calls().Add("ServerTime", {}, result);
        return result;
    });
}

QHBoxLayout* Row(QWidget* left, QWidget* right) {
    auto* row = new QHBoxLayout;
    row->addWidget(left, 1);
    row->addWidget(right, 1);
    return row;
}

}  // namespace

DatesPage::DatesPage(Desk& desk)
    : Page("D&ates",
           "Lets the user choose days from a calendar and converts the server's dates. The "
           "calendar opens beside its button; Enter in a field opens it too."),
      desk_(desk),
      birth_("Date of birth", [this](DateField& field) { return ChooseBirth(field); }),
      visit_("Visit", [this](DateField& field) { return ChooseVisit(field); }),
      nextVisit_("Next visit", [this](DateField& field) { return ChooseNextVisit(field); }),
      convertHDate_(MakeConvertHDate(desk)),
      convertNumberToDate_(MakeConvertNumberToDate(desk)),
      initServerTime_(MakeInitServerTime(desk)),
      serverTime_(MakeServerTime(desk)) {
    Body().addWidget(MakeVisit());
    Body().addLayout(Row(convertHDate_, convertNumberToDate_));
    Body().addLayout(Row(initServerTime_, serverTime_));
    Body().addStretch();
}

QGroupBox* DatesPage::MakeVisit() {
    auto* visit = new QGroupBox("Visit");
    auto* form = new QFormLayout(visit);
    AddRow(*form, "Date of &birth", &birth_);
    AddRow(*form, "&Visit", &visit_);
    AddRow(*form, "Ne&xt visit", &nextVisit_);
    visit_.SetDate("3/7/2004");
    return visit;
}

// The field may hold digits, 03071954; an empty one opens on a likelier year than the current one.
QString DatesPage::ChooseBirth(DateField& field) {
    QString day = ToQString(desk_.Library().ShowCalendarAndCalculateCoordinates(
        Beside(&field.Button()), field.Date(), QString(kBirthDefault), AsOwnerForm(this), true));
    desk_.Calls().Add("ShowCalendarAndCalculateCoordinates",
                      QStringList("the button") + Args(field.Date(), QString(kBirthDefault)) +
                          QStringList("the window") + Args(true),
                      Shown(day));
    return day;
}

QString DatesPage::ChooseVisit(DateField& field) {
    QString day = ToQString(
        desk_.Library().ShowCalendarAndCalculateCoordinates(Beside(&field.Button()), field.Date()));
    desk_.Calls().Add("ShowCalendarAndCalculateCoordinates",
                      QStringList("the button") + Args(field.Date()), Shown(day));
    return day;
}

// An empty field opens on the day of the visit.
QString DatesPage::ChooseNextVisit(DateField& field) {
    float left = 0;
    float up = 0;
    float down = 0;
    desk_.Library().CalculateCellCoordinates(Beside(&field.Button()), left, up, down);
    QString day =
        ToQString(desk_.Library().ShowCalendar(left, up, down, field.Date(), visit_.Date()));
    desk_.Calls().Add("ShowCalendar", Args(left, up, down, field.Date(), visit_.Date()),
                      Shown(day));
    return day;
}

void DatesPage::Play(Tour& tour) {
    PlayCalendars(tour);
    PlayCorners(tour);
    PlayServerDates(tour);
    birth_.SetDate("");
    visit_.SetDate("3/7/2004");
    nextVisit_.SetDate("");
}

void DatesPage::PlayCalendars(Tour& tour) {
    const char* const days = "qt_calendar_calendarview";
    const TourStep right = PressKey(days, Qt::Key_Right);
    const TourStep enter = PressKey(days, Qt::Key_Return);
    const struct {
        const char* name;
        DateField& field;
        const char* date;
        std::vector<TourStep> steps;
        const char* chosen;
    } calendars[] = {
        {"calendar", visit_, " 3/7/2004 ", {right, right, enter}, "03/09/2004"},
        {"calendar-next-visit",
         nextVisit_,
         "",
         {PressKey(days, Qt::Key_PageDown), enter},
         "04/09/2004"},
        {"calendar-birth", birth_, "", {enter}, "01/01/1980"},
        {"calendar-digits", birth_, "03071954", {enter}, "03/07/1954"},
        {"calendar-first-day", birth_, "1/1/1753", {enter}, "01/01/1753"},
        {"calendar-last-day", visit_, "12/31/9999", {right, enter}, "12/31/9999"},
        {"calendar-today", visit_, "", {PressKey(days, Qt::Key_Escape)}, ""},
        {"calendar-closed", visit_, "3/7/2004", {Click("Command1")}, ""},
    };
    for (const auto& each : calendars) {
        each.field.SetDate(each.date);
        std::vector<TourStep> steps = {tour.Snapshot(each.name)};
        steps.insert(steps.end(), each.steps.begin(), each.steps.end());
        QString chosen;
        tour.Answer(each.name, std::move(steps), [&] { chosen = each.field.PressButton(); });
        tour.ExpectResult(each.name, chosen, each.chosen);
    }
}

void DatesPage::PlayCorners(Tour& tour) {
    QWidget& target = visit_.Button();
    const QPoint before = window()->pos();
    const QRect screen = this->screen()->availableGeometry();
    for (const QPoint& corner :
         {screen.topLeft(), screen.topRight(), screen.bottomLeft(), screen.bottomRight()}) {
        window()->move(window()->pos() + corner - target.mapToGlobal(target.rect().center()));
        const auto isSeen = tour.Check("the calendar lies on the screen", [=](QWidget& dialog) {
            return screen.contains(dialog.frameGeometry());
        });
        tour.Answer("calendar-at-corner", {isSeen, CloseWindow()}, [&] { visit_.PressButton(); });
    }
    window()->move(before);
}

void DatesPage::PlayServerDates(Tour& tour) {
    const struct {
        CallBox* box;
        QVariantList arguments;
        const char* result;
    } calls[] = {
        {convertHDate_, {"1"}, R"("01/01/1841")"},
        {convertHDate_, {"60000,86400"}, R"("Error: time is incorrect")"},
        {convertHDate_, {"60000,43200"}, R"("04/10/2005 12:00:00 PM")"},
        {convertNumberToDate_, {"030524", true}, R"("03/05/2024")"},
        {convertNumberToDate_, {"3/5/2024", false}, R"("03052024")"},
        {initServerTime_, {"1/1/1800"}, "Overflow"},
        {initServerTime_, {"11:59:30 PM"}, ""},
    };
    for (const auto& [box, arguments, result] : calls) {
        tour.ExpectResult(box->MemberName(), box->CallWith(arguments), result);
    }
    tour.Expect(serverTime_->CallWith({}).contains(" 11:59:"), "the server's clock runs");
}

}  // namespace frontdesk
