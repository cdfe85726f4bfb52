// SPDX-License-Identifier: MIT
#include "pages/PaymentPage.h"

#include "Shown.h"
#include "tour/Tour.h"

#include <halvekutils/qt/CurrencyField.h>

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>

#include <utility>

namespace frontdesk {

using namespace halvek;

namespace {

constexpr int kFieldWidth = 160;
constexpr int kColumnWidth = 140;
constexpr int kSpacing = 12;

QLabel* MakeColumnHeading(const QString& text) {
    auto* heading = new QLabel(text);
    heading->setMinimumWidth(kColumnWidth);
    return heading;
}

/// Whether an event ends the typing: the focus goes to another field, or Tab or Enter is pressed.
bool EndsTyping(const QEvent& event) {
    if (event.type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
        return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
               reason != Qt::MenuBarFocusReason;
    }
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab ||
           key == Qt::Key_Backtab;
}

}  // namespace

PaymentPage::PaymentPage(Desk& desk)
    : Page("Pa&yment",
           "Ordinary text boxes as currency fields: a bare number while you type, an amount "
           "when you leave the field. The adjustment may be negative; \"To\" must not be below "
           "\"From\"."),
      desk_(desk) {
    MakeCurrencyField(&from_);
    MakeCurrencyField(&to_);
    CheckCurrencyRange(&from_, &to_, u"From", u"To");

    form_.setWindowFlags(Qt::Widget);
    auto* grid = new QGridLayout(&form_);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(kSpacing);
    grid->addWidget(MakeColumnHeading("Before leaving"), 0, 2);
    grid->addWidget(MakeColumnHeading("After leaving"), 0, 3);
    const char* const labels[] = {"&Amount", "A&djustment", "Posted amounts fro&m",
                                  "Posted amounts &to"};
    for (int i = 0; i < 4; ++i) AddEntry(*grid, labels[i], entries_[i]);

    post_.setText("&Post");
    connect(&post_, &QPushButton::clicked, this, [this] { Post(); });
    grid->addWidget(&post_, grid->rowCount(), 1, Qt::AlignLeft);
    post_.setAutoDefault(false);  // it stays the default button without the focus
    post_.setDefault(true);
    grid->setColumnStretch(grid->columnCount(), 1);
    // On the application, since the fields are left before their own filters see an event
    qApp->installEventFilter(this);
    Body().addWidget(&form_);
    Body().addStretch();
}

void PaymentPage::AddEntry(QGridLayout& grid, const QString& label, Entry& entry) {
    const int row = grid.rowCount();
    auto* caption = new QLabel(label);
    caption->setBuddy(entry.field);
    entry.field->setAccessibleName(QString(label).remove('&'));
    entry.field->setFixedWidth(kFieldWidth);
    grid.addWidget(caption, row, 0);
    grid.addWidget(entry.field, row, 1);
    grid.addWidget(entry.before, row, 2);
    grid.addWidget(entry.after, row, 3);
    connect(entry.field, &QLineEdit::textEdited, this, [&entry] { entry.isLeft = false; });
    connect(entry.field, &QLineEdit::editingFinished, this, [this, &entry] { NoteLeft(entry); });
}

bool PaymentPage::eventFilter(QObject* watched, QEvent* event) {
    for (Entry& entry : entries_) {
        if (entry.field == watched && EndsTyping(*event)) NoteLeaving(entry);
    }
    return Page::eventFilter(watched, event);
}

void PaymentPage::NoteLeaving(Entry& entry) {
    if (entry.isLeft) return;  // by Tab, before the focus goes
    entry.before->setText(entry.field->text());
    entry.after->clear();
    entry.isLeft = true;
}

void PaymentPage::NoteLeft(Entry& entry) {
    if (!std::exchange(entry.isLeft, false)) return;
    entry.after->setText(entry.field->text());
    desk_.Calls().Add(entry.handler, Args(entry.before->text()), Shown(entry.after->text()));
}

void PaymentPage::Post() {
    if (amount_.text().isEmpty()) return amount_.setFocus();
    QString prompt = "Post " + amount_.text();
    if (!adjustment_.text().isEmpty()) prompt += " with an adjustment of " + adjustment_.text();
    prompt += "?";
    const auto answer = desk_.Library().ShowMsgBox(prompt, mbYesNo, mbQuestion, Title());
    desk_.Calls().Add("ShowMsgBox", Args(prompt), answer == mbYes ? "mbYes" : "mbNo");
    if (answer != mbYes) return;
    amount_.clear();
    adjustment_.clear();
}

void PaymentPage::Type(QLineEdit& field, const QString& text) {
    window()->activateWindow();
    QCoreApplication::processEvents();
    field.setFocus(Qt::TabFocusReason);
    for (const QChar letter : text) {
        QKeyEvent press(QEvent::KeyPress, letter.unicode(), Qt::NoModifier, letter);
        QCoreApplication::sendEvent(&field, &press);
    }
}

void PaymentPage::PlayEntry(Tour& tour, Entry& entry, const QString& typed,
                            const QString& expected) {
    Type(*entry.field, typed);
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(entry.field, &tab);
    tour.ExpectResult(typed + " and Tab", entry.field->text(), expected);
}

void PaymentPage::Play(Tour& tour) {
    auto& [amount, adjustment, from, to] = entries_;
    PlayEntry(tour, amount, "9999999999.999", "$9,999,999.99");
    PlayEntry(tour, adjustment, "12.5-", "$-12.50");
    PlayEntry(tour, from, ".5", "$0.50");
    PlayEntry(tour, to, "1,234.567", "$1,234.56");
    tour.Picture(*window(), "payment-left");
    Type(amount_, "");
    tour.Expect(amount_.selectedText() == "9999999.99", "the focused amount is bare and selected");
    tour.Picture(*window(), "payment-focused");

    const auto below = [&] { PlayEntry(tour, entries_[3], "0.49", ""); };
    tour.Answer("payment-range",
                {tour.Snapshot("payment-range"), PressKey("arrCmd_0", Qt::Key_Escape)}, below);
    PlayEntry(tour, to, "0.50", "$0.50");
    tour.Answer("payment-post", {tour.Snapshot("payment-post"), Click("arrCmd_0")},
                [&] { post_.click(); });
    tour.ExpectResult("the amount after Post", amount_.text(), "");
    PlayEntry(tour, amount, "25", "$25.00");
}

}  // namespace frontdesk
