#include "tests/qt/FormTest.h"

#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QToolButton>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace halvek {
namespace {

/// The calendar as its user sees it.
struct Seen {
    QDialog& dialog;
    QCalendarWidget& month = Find<QCalendarWidget>(dialog, "MonthView1");
    QAbstractItemView& days = Find<QAbstractItemView>(dialog, "qt_calendar_calendarview");
    QPushButton& close = Find<QPushButton>(dialog, "Command1");

    void Press(QKeyCombination key) const { PressKey(dialog, key); }
    void Type(const char* text) const {
        for (; *text != 0; ++text) QTest::keyClick(dialog.windowHandle(), *text);
    }
    /// The middle of a row and column of the month: row 0 are the names of the days.
    QPoint PlaceOf(int row, int column) const {
        const QRect cell = days.visualRect(days.model()->index(row, column));
        return days.viewport()->mapTo(&dialog, cell.center());
    }
    void ClickAt(QPoint place, Qt::MouseButton button = Qt::LeftButton) const {
        QTest::mouseClick(dialog.windowHandle(), button, {}, place);
    }
    QWidget& Part(const char* name) const { return Find(dialog, name); }
    void MoveTo(const QWidget& part) const {
        QTest::mouseMove(dialog.windowHandle(), part.mapTo(&dialog, part.rect().center()));
    }
};

/// On 3/5/2024; weeks start on Sunday.
class CalendarFormTest : public FormTest {
  protected:
    CalendarFormTest() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    ~CalendarFormTest() override { QLocale::setDefault(QLocale::system()); }

    using Acts = std::function<void(const Seen&)>;

    /// What the user's acts choose; a calendar that they leave open is closed.
    QString Chosen(const QString& date, const Acts& acts,
                   const std::shared_ptr<PopupTarget>& target = nullptr) {
        const User user([&](QDialog& dialog) {
            acts({dialog});
            if (dialog.isVisible()) CloseRequest(dialog);
        });
        const auto chosen = utils_->ShowCalendarAndCalculateCoordinates(target, date);
        EXPECT_TRUE(user.HasActed());
        return ToQString(chosen);
    }
};

TEST_F(CalendarFormTest, OnlyEnterAndAClickOnADayChoose) {
    const auto keys = [](std::vector<QKeyCombination> pressed) {
        return [=](const Seen& seen) { Keys(pressed)(seen.dialog); };
    };
    const auto click = [](const char* part) {
        return [=](const Seen& seen) { Click(seen.dialog, seen.Part(part)); };
    };
    const std::pair<Acts, const char*> cases[] = {
        {keys({Qt::Key_Return}), "03/07/2004"},
        {keys({Qt::Key_Right, Qt::Key_Down, Qt::Key_Enter}), "03/15/2004"},
        {keys({Qt::Key_1, Qt::Key_5, Qt::Key_Space, Qt::ALT | Qt::Key_T, Qt::CTRL | Qt::Key_T,
               Qt::ALT | Qt::Key_Left, Qt::Key_Return}),
         "03/07/2004"},
        {keys({Qt::SHIFT | Qt::Key_T, Qt::Key_Return}), "03/05/2024"},
        {keys({Qt::CTRL | Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Return}), "02/07/2005"},
        {keys({Qt::Key_Escape, Qt::Key_Return}), ""},
        {keys({Qt::Key_Tab, Qt::Key_Return}), ""},
        {keys({Qt::Key_Tab, Qt::Key_Space}), ""},
        {keys({Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return}), "03/07/2004"},
        {click("Command1"), ""},
        {[](const Seen& seen) { CloseRequest(seen.dialog); }, ""},
        {[](const Seen& seen) { seen.ClickAt(seen.PlaceOf(2, 2)); }, "03/09/2004"},
        {[](const Seen& seen) { seen.ClickAt(seen.PlaceOf(1, 0)); }, "02/29/2004"},
        {[](const Seen& seen) { seen.ClickAt(seen.PlaceOf(0, 2)); }, ""},
        {[](const Seen& seen) { seen.ClickAt(seen.PlaceOf(2, 2), Qt::RightButton); }, ""},
        {[](const Seen& seen) { seen.ClickAt({40, 12}); }, ""},  // beside the month's name
        {click("qt_calendar_yearbutton"), ""},
        {click("qt_calendar_nextmonth"), ""},
    };
    int row = 0;
    for (const auto& [acts, day] : cases) EXPECT_EQ(Chosen("3/7/2004", acts), day) << row++;
}

TEST_F(CalendarFormTest, TheMarkedDayFollowsTheMonthThatIsShownAndIsToldInFull) {
    Chosen("1/31/2024", [](const Seen& seen) {
        const auto expect = [&](QDate day, const char* told) {
            EXPECT_EQ(seen.month.selectedDate(), day);
            EXPECT_EQ(QDate(seen.month.yearShown(), seen.month.monthShown(), 1),
                      QDate(day.year(), day.month(), 1));
            EXPECT_EQ(seen.days.accessibleName(), told);
            EXPECT_TRUE(seen.days.hasFocus());
        };
        Click(seen.dialog, seen.Part("qt_calendar_nextmonth"));
        expect({2024, 2, 29}, "Thursday, February 29, 2024");
        Click(seen.dialog, seen.Part("qt_calendar_yearbutton"));
        seen.Type("1999");
        seen.Press(Qt::Key_Return);
        expect({1999, 2, 28}, "Sunday, February 28, 1999");
        Click(seen.dialog, seen.Part("qt_calendar_yearbutton"));
        seen.Type("20");
        seen.Press(Qt::Key_Escape);
        expect({1999, 2, 28}, "Sunday, February 28, 1999");
        const QPointF at(seen.PlaceOf(3, 3));
        QWheelEvent wheel(at, at, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(seen.days.viewport(), &wheel);
        expect({1999, 3, 28}, "Sunday, March 28, 1999");
        seen.Press(Qt::Key_T);
        expect({2024, 3, 5}, "Tuesday, March 5, 2024, today");
        EXPECT_TRUE(seen.dialog.isVisible());
    });
}

TEST_F(CalendarFormTest, TheFocusFollowsThePointerOnceItMoves) {
    const auto move = [](const Seen& seen) {
        EXPECT_TRUE(seen.days.hasFocus());
        for (const char* const part : {"qt_calendar_monthbutton", "qt_scrollarea_viewport"}) {
            seen.MoveTo(seen.close);
            EXPECT_TRUE(Soon([&] { return seen.close.hasFocus(); }));
            seen.MoveTo(seen.Part(part));
            EXPECT_TRUE(Soon([&] { return seen.days.hasFocus(); })) << part;
        }
        // The pointer on its way does not take the year from who types it.
        Click(seen.dialog, seen.Part("qt_calendar_yearbutton"));
        seen.MoveTo(*seen.days.viewport());
        QTest::qWait(1);
        EXPECT_TRUE(seen.Part("qt_calendar_yearedit").hasFocus());
    };
    Chosen("", move);
}

TEST_F(CalendarFormTest, HoldsItsPartsExactlyAndLiesOnTheScreen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const QPoint corner : {screen.topLeft(), screen.topRight(), screen.bottomRight()}) {
        QWidget button;
        button.setGeometry(QRect(corner - QPoint(9, 9), QSize(20, 20)));
        const auto look = [&](const Seen& seen) {
            EXPECT_EQ(seen.month.geometry() | seen.close.geometry(), seen.dialog.rect());
            EXPECT_FALSE(seen.month.geometry().intersects(seen.close.geometry()));
            EXPECT_TRUE(screen.contains(seen.dialog.frameGeometry()));
        };
        Chosen("5/1/2024", look, Beside(&button));
    }
}

TEST_F(CalendarFormTest, EndsWithItsOwner) {
    auto window = OpenHostWindow({100, 100, 300, 200});
    EXPECT_EQ(Chosen("", [&](const Seen&) { window.reset(); }), "");
}

}  // namespace
}  // namespace halvek
