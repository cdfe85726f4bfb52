// SPDX-License-Identifier: MIT
#include <halvekutils/controls/ControlHelpers.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/forms/MonthView.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/Keys.h>
#include <halvekutils/qt/helpers/SpokenPicker.h>

#include <QAbstractItemView>
#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QProxyStyle>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTextCharFormat>
#include <QToolButton>

#include <algorithm>
#include <iterator>

namespace halvek {

namespace {

struct DayKey {
    int key;
    Qt::KeyboardModifiers commands;  ///< Ctrl, Alt and the like that must be down
    Calendar::Key action;
};

constexpr DayKey kKeys[] = {
    {Qt::Key_Return, Qt::NoModifier, Calendar::Key::Enter},
    {Qt::Key_Enter, Qt::NoModifier, Calendar::Key::Enter},
    {Qt::Key_Escape, Qt::NoModifier, Calendar::Key::Escape},
    {Qt::Key_Left, Qt::NoModifier, Calendar::Key::Left},
    {Qt::Key_Right, Qt::NoModifier, Calendar::Key::Right},
    {Qt::Key_Up, Qt::NoModifier, Calendar::Key::Up},
    {Qt::Key_Down, Qt::NoModifier, Calendar::Key::Down},
    {Qt::Key_PageUp, Qt::NoModifier, Calendar::Key::PageUp},
    {Qt::Key_PageDown, Qt::NoModifier, Calendar::Key::PageDown},
    {Qt::Key_PageUp, Qt::ControlModifier, Calendar::Key::CtrlPageUp},
    {Qt::Key_PageDown, Qt::ControlModifier, Calendar::Key::CtrlPageDown},
    {Qt::Key_Home, Qt::NoModifier, Calendar::Key::Home},
    {Qt::Key_End, Qt::NoModifier, Calendar::Key::End},
    {Qt::Key_T, Qt::NoModifier, Calendar::Key::Today},
};

constexpr char16_t kFont[] = u"Tahoma";
constexpr float kFontSize = 7;  // points

// What QCalendarWidget calls its parts.
constexpr char kBar[] = "qt_calendar_navigationbar";
constexpr char kPreviousMonth[] = "qt_calendar_prevmonth";
constexpr char kNextMonth[] = "qt_calendar_nextmonth";
constexpr char kMonthButton[] = "qt_calendar_monthbutton";

constexpr int kDaysInWeek = 7;
constexpr int kRows = 7;          // six weeks below the names of the days
constexpr int kRowHeight = 26;    // pixels
constexpr int kColumnWidth = 34;  // pixels

// In per cent of the text's colour.
constexpr int kWeekend = 75;
constexpr int kOtherMonth = 50;

const QDate kEpoch(1970, 1, 1);

QDate ToQDate(Calendar::Day day) {
    return kEpoch.addDays(day.time_since_epoch().count());
}
Calendar::Day ToDay(QDate date) {
    return Calendar::Day(std::chrono::days(kEpoch.daysTo(date)));
}

/// Makes arrows visible on the bar above the days.
QPalette WithArrowsOnBar(QPalette colors) {
    colors.setColor(QPalette::WindowText, colors.color(QPalette::HighlightedText));
    return colors;
}

/// Draws the mark of a button's menu in the middle of its right end and large enough to be seen.
class MenuMark : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* button) const override {
        if (element != PE_IndicatorArrowDown || button == nullptr) {
            QProxyStyle::drawPrimitive(element, option, painter, button);
            return;
        }
        const int size = std::max(button->fontMetrics().height() * 2 / 3, 7) | 1;
        const QPointF centre(button->width() - size, button->height() / 2.0);
        const QPointF corners[] = {centre + QPointF(-size / 2.0, -size / 4.0),
                                   centre + QPointF(size / 2.0, -size / 4.0),
                                   centre + QPointF(0, size / 4.0)};
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(button->palette().color(QPalette::WindowText));
        painter->drawPolygon(corners, 3);
        painter->restore();
    }
};

/// The key that acts: where text runs from right to left, so do the days.
int Mirrored(int key, bool rightToLeft) {
    if (!rightToLeft || (key != Qt::Key_Left && key != Qt::Key_Right)) return key;
    return key == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left;
}

}  // namespace

MonthView::MonthView(Calendar& rules, QWidget* parent)
    : QCalendarWidget(parent),
      rules_(rules),
      days_(findChild<QAbstractItemView*>(QLatin1String("qt_calendar_calendarview"))),
      spoken_(new SpokenPicker(*days_)),
      yearEdit_(findChild<QSpinBox*>(QLatin1String("qt_calendar_yearedit"))) {
    setObjectName(QLatin1String("MonthView1"));
    // In the language of the button below, with weeks from Sunday, whatever the desktop has
    setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    SetFontProperties(FontOf(this), kFont, kFontSize);
    setDateRange(ToQDate(Calendar::kFirstDay), ToQDate(Calendar::kLastDay));
    setDateEditEnabled(false);
    setVerticalHeaderFormat(NoVerticalHeader);
    for (QToolButton* const button : findChildren<QToolButton*>()) {
        button->setMinimumHeight(design::kMinTarget);
    }
    MakeDaysReadable();
    MakeArrow(kPreviousMonth, isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow);
    MakeArrow(kNextMonth, isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow);
    WidenMonthButton();
    NameParts();
    days_->installEventFilter(this);
    yearEdit_->installEventFilter(this);
    connect(this, &QCalendarWidget::clicked, this, [this](QDate date) {
        GuardEvent(u"frmCalendar.MonthView1_DateClick", [&] { rules_.ClickDay(ToDay(date)); });
    });
    connect(this, &QCalendarWidget::currentPageChanged, this, &MonthView::PageChanged);
    Refresh();
}

void MonthView::MakeDaysReadable() {
    QPalette colors = palette();
    const auto faded = [&](int share) {
        return design::Blended(colors.color(QPalette::Text), colors.color(QPalette::Base), share);
    };
    // Red weekends would be hard to read on a dark desktop, as would pale days of other months.
    QTextCharFormat weekend;
    weekend.setForeground(faded(kWeekend));
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) setWeekdayTextFormat(day, weekend);
    colors.setColor(QPalette::Disabled, QPalette::Text, faded(kOtherMonth));
    days_->setPalette(colors);
    // In so small a font they would also be hard to hit.
    const int bar = findChild<QWidget*>(QLatin1String(kBar))->sizeHint().height();
    const int frame = 2 * static_cast<QFrame*>(days_)->frameWidth();
    setMinimumSize(kDaysInWeek * std::max(kColumnWidth, fontMetrics().height() * 2),
                   kRows * std::max(kRowHeight, fontMetrics().height()) + frame + bar);
}

void MonthView::MakeArrow(const char* part, Qt::ArrowType arrow) {
    auto* const button = findChild<QToolButton*>(QLatin1String(part));
    button->setArrowType(arrow);
    button->setPalette(WithArrowsOnBar(palette()));
}

// The menu's mark is in a corner of the button and would touch the month's name.
void MonthView::WidenMonthButton() {
    auto* const button = findChild<QToolButton*>(QLatin1String(kMonthButton));
    int widest = 0;
    for (const QAction* const month : button->menu()->actions()) {
        widest = std::max(widest, button->fontMetrics().horizontalAdvance(month->text()));
    }
    auto* const mark = new MenuMark;
    mark->setParent(button);
    button->setStyle(mark);
    button->setMinimumWidth(widest + 2 * button->fontMetrics().height());
    button->setPalette(WithArrowsOnBar(palette()));
}

void MonthView::NameParts() {
    setAccessibleName(tr("Calendar"));
    days_->setAccessibleName(tr("Days"));
    yearEdit_->setAccessibleName(tr("Year"));
    const struct {
        const char* part;
        QString name;
    } buttons[] = {
        {kPreviousMonth, tr("Previous month (Page Up)")},
        {kNextMonth, tr("Next month (Page Down)")},
        {kMonthButton, tr("Choose the month")},
        {"qt_calendar_yearbutton", tr("Choose the year (Ctrl+Page Up, Ctrl+Page Down)")},
    };
    for (const auto& [part, name] : buttons) {
        auto* const button = findChild<QToolButton*>(QLatin1String(part));
        button->setToolTip(name);
        if (button->text().isEmpty()) button->setAccessibleName(name);
        button->setAccessibleDescription(name);
    }
}

void MonthView::Refresh() {
    const QSignalBlocker ownChange(this);
    const QDate marked = ToQDate(rules_.MarkedDay());
    Speak();
    setSelectedDate(marked);
    setCurrentPage(marked.year(), marked.month());
}

void MonthView::Speak() {
    const QDate marked = ToQDate(rules_.MarkedDay());
    const QString day = locale().toString(marked, QLocale::LongFormat);
    const bool isToday = rules_.MarkedDay() == rules_.Today();
    spoken_->Tell(
        {.number = marked.toJulianDay(), .name = isToday ? tr("%1, today").arg(day) : day});
}

void MonthView::TakeFocus() {
    if (!isAncestorOf(window()->focusWidget())) days_->setFocus(Qt::MouseFocusReason);
}

// The month or year was chosen in the bar above the days, or by the wheel.
void MonthView::PageChanged(int year, int month) {
    const QDate selected = selectedDate();
    if (selected.year() == year && selected.month() == month) return;
    GuardEvent(u"frmCalendar.MonthView1_SelChange",
               [&] { rules_.ShowMonth(year, static_cast<unsigned>(month)); });
}

bool MonthView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == days_ && event->type() == QEvent::KeyPress) {
        const auto& press = *static_cast<QKeyEvent*>(event);
        if (press.key() == Qt::Key_Tab || press.key() == Qt::Key_Backtab) return false;
        KeyDown(press);
        return true;
    }
    // From the year the focus goes back to the days, not on to the button.
    if (watched == yearEdit_ && event->type() == QEvent::Hide && yearEdit_->hasFocus()) {
        days_->setFocus(Qt::OtherFocusReason);
    }
    return QCalendarWidget::eventFilter(watched, event);
}

void MonthView::KeyDown(const QKeyEvent& event) {
    GuardEvent(u"frmCalendar.MonthView1_KeyDown", [&] {
        const int key = Mirrored(event.key(), isRightToLeft());
        const Qt::KeyboardModifiers commands = event.modifiers() & kCommands;
        const auto* const known = std::ranges::find_if(
            kKeys, [&](const DayKey& row) { return row.key == key && row.commands == commands; });
        if (known != std::end(kKeys)) rules_.KeyDown(known->action);
    });
}

// Gets the keys that the year box ignores, above all its own Enter, which must not reach the form.
void MonthView::keyPressEvent(QKeyEvent* event) {
    QCalendarWidget::keyPressEvent(event);
    event->accept();
}

void MonthView::paintCell(QPainter* painter, const QRect& rect, QDate date) const {
    QCalendarWidget::paintCell(painter, rect, date);
    if (ToDay(date) != rules_.Today()) return;
    const bool isMarked = date == selectedDate();
    painter->save();
    painter->setPen(palette().color(isMarked ? QPalette::HighlightedText : QPalette::Highlight));
    painter->drawRect(rect.adjusted(1, 1, -2, -2));
    painter->restore();
}

}  // namespace halvek
