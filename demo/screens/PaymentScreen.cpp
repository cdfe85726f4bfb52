// SPDX-License-Identifier: MIT
#include "screens/PaymentScreen.h"

#include "Texts.h"
#include "widgets/Columns.h"
#include "widgets/FieldForm.h"
#include "widgets/Icons.h"
#include "widgets/List.h"
#include "widgets/RequiredColor.h"

#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QHBoxLayout>
#include <QToolButton>

#include <limits>

namespace frontdesk {

namespace {

constexpr char kTitle[] = "Payment";
constexpr int kLetters = 14;

QLineEdit* MakeLine(const QString& name) {
    auto* line = new QLineEdit;
    line->setAccessibleName(name);
    line->setObjectName(QString(name).toLower());
    line->setFixedWidth(line->fontMetrics().averageCharWidth() * kLetters);
    return line;
}

}  // namespace

PaymentScreen::PaymentScreen(Desk& desk)
    : Screen(desk),
      amount_(MakeLine("Amount")),
      adjustment_(MakeLine("Adjustment")),
      method_(new QComboBox),
      printer_(new QComboBox),
      after_(MakeNote()),
      post_(new PrimaryButton("&Post")),
      from_(MakeLine("From")),
      to_(MakeLine("To")),
      payments_(MakeList("Payments", {"Posted", "Amount", "Adjustment", "By", "Receipt"})) {
    desk.MakeAmount(amount_);
    desk.MakeSignedAmount(adjustment_);
    desk.MakeAmount(from_);
    halvek::CheckCurrencyRange(from_, to_, u"From", u"To");
    desk.Calls().Add("CheckCurrencyRange", {"From", "To"});
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addWidget(new Columns(MakeForm(), 2, MakePayments(), 3), 1);
    post_->setObjectName("post");
    post_->setShortcut(Qt::CTRL | Qt::Key_Return);
    post_->setToolTip("Ctrl+Enter");
    connect(post_, &QPushButton::clicked, this, [this] { Post(); });
    connect(amount_, &QLineEdit::textChanged, this, [this] { ShowBalanceAfter(); });
    connect(adjustment_, &QLineEdit::textChanged, this, [this] { ShowBalanceAfter(); });
    connect(from_, &QLineEdit::textChanged, this, [this] { ShowPayments(); });
    connect(to_, &QLineEdit::textChanged, this, [this] { ShowPayments(); });
    connect(&desk, &Desk::PrintersKnown, this, [this] { FillPrinters(); });
    connect(&desk, &Desk::PrefsChanged, this,
            [this] { ShowAsRequired(*amount_, TheDesk().Library()); });
    ShowAsRequired(*amount_, desk.Library());
    FillMethods();
}

Card* PaymentScreen::MakeForm() {
    auto* calculator = new QToolButton;
    calculator->setIcon(MakeIcon(Glyph::Calculator));
    calculator->setAccessibleName("Calculator");
    calculator->setToolTip("Calculator (Ctrl+K)");
    calculator->setShortcut(Qt::CTRL | Qt::Key_K);
    calculator->setFocusPolicy(Qt::StrongFocus);
    connect(calculator, &QToolButton::clicked, this, [this] { Calculate(); });
    method_->setAccessibleName("Paid by");
    printer_->setAccessibleName("Receipt");
    auto* form = new FieldForm(TheDesk());
    form->AddRow("&Amount", Beside(amount_, calculator));
    form->AddRow("Ad&justment", adjustment_);
    form->AddRow("Paid &by", method_);
    form->AddRow("&Receipt", printer_);
    auto* card = new Card("New payment");
    card->Content().addWidget(form);
    card->Content().addWidget(after_);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(post_);
    buttons->addStretch();
    card->Content().addLayout(buttons);
    card->Content().addStretch();
    return card;
}

Card* PaymentScreen::MakePayments() {
    auto* card = new Card("Payments of this account");
    auto* filter = new QHBoxLayout;
    filter->setSpacing(kGap);
    for (const auto& [caption, line] : {std::pair("Fro&m", from_), std::pair("&To", to_)}) {
        auto* label = new QLabel(caption);
        label->setBuddy(line);
        // The underline under the T keeps the o from moving below it.
        label->setMinimumWidth(label->sizeHint().width() + 4);
        filter->addWidget(label);
        filter->addWidget(line);
    }
    filter->addStretch();
    card->Content().addLayout(filter);
    card->Content().addWidget(payments_, 1);
    return card;
}

void PaymentScreen::FillMethods() {
    const QString list = halvek::FromServer(TheDesk().Server().List("PAY", false));
    QStringList methods;
    for (const QString& entry : list.split(':', Qt::SkipEmptyParts).mid(1)) {
        methods << halvek::ToQString(TheDesk().Library().SplitStr(entry, u"\t", 2));
    }
    TheDesk().Library().FillCombo(methods.join(':'), halvek::AsComboBox(method_));
    TheDesk().Calls().Add("FillCombo", {methods.join(':')});
    method_->setCurrentIndex(0);
}

void PaymentScreen::FillPrinters() {
    // All but the spool queue and files
    const auto printers = TheDesk().Library().GetPrintersCollectionFiltered(true, true);
    QStringList names;
    for (const auto& printer : printers) {
        names << halvek::ToQString(printer->PrinterDescription()).replace(':', ';');
    }
    TheDesk().Library().FillCombo(names.join(':'), halvek::AsComboBox(printer_));
    TheDesk().Calls().Add("FillCombo", {names.join(':')});
    const auto last =
        TheDesk().Library().FindInCombo(halvek::AsComboBox(printer_), TheDesk().ReceiptPrinter());
    printer_->setCurrentIndex(qMax(0, last));
}

void PaymentScreen::Refresh() {
    const auto& patient = TheDesk().Current();
    post_->setEnabled(patient && TheDesk().May("PAYMENTS", Right::Add));
    if (!patient) return;
    if (shown_ != patient->number) {
        shown_ = patient->number;
        for (QLineEdit* line : {adjustment_, from_, to_}) line->clear();
        const auto visit = TheDesk().VisitOfToday();
        const bool hasCopay = visit && visit->state == VisitState::CheckedIn;
        const qint64 copay = TheDesk().Server().CopayOf(patient->insurance);
        halvek::SetCurrencyCents(amount_, hasCopay ? copay : patient->balance);
    }
    ShowBalanceAfter();
    ShowPayments();
}

void PaymentScreen::ShowBalanceAfter() {
    const auto& patient = TheDesk().Current();
    if (!patient) return;
    const qint64 amount = halvek::CurrencyCents(amount_).value_or(0);
    const qint64 adjustment = halvek::CurrencyCents(adjustment_).value_or(0);
    after_->setText(
        QString("Balance %1, then %2")
            .arg(Money(patient->balance), Money(patient->balance - amount + adjustment)));
    post_->setText(amount == 0 ? QString("&Post") : "&Post " + Money(amount));
    post_->setShortcut(Qt::CTRL | Qt::Key_Return);  // a new text clears it
}

void PaymentScreen::ShowPayments() {
    payments_->setRowCount(0);
    const auto& patient = TheDesk().Current();
    if (!patient) return;
    const qint64 from = halvek::CurrencyCents(from_).value_or(0);
    const qint64 to = halvek::CurrencyCents(to_).value_or(std::numeric_limits<qint64>::max());
    for (const Payment& payment : TheDesk().Server().Payments(patient->number)) {
        if (payment.amount < from || payment.amount > to) continue;
        AddRow(*payments_,
               {DayText(payment.posted.date()) + ' ' + TimeText(payment.posted.time()),
                Money(payment.amount), payment.adjustment == 0 ? "" : Money(payment.adjustment),
                payment.method, payment.printer});
    }
}

void PaymentScreen::Calculate() {
    const QString result = TheDesk().Calculate(amount_->text());
    if (!result.isEmpty()) amount_->setText(result);
    amount_->setFocus();
}

void PaymentScreen::PostNow(qint64 cents) {
    halvek::SetCurrencyCents(amount_, cents);
    adjustment_->clear();
    Post();
}

void PaymentScreen::Post() {
    const auto& patient = TheDesk().Current();
    if (!patient || !halvek::LeaveCurrencyFields(this)) return;
    const qint64 amount = halvek::CurrencyCents(amount_).value_or(0);
    const qint64 adjustment = halvek::CurrencyCents(adjustment_).value_or(0);
    if (amount == 0 && adjustment == 0) {
        TheDesk().Ask("Enter an amount first.", halvek::mbOkOnly, halvek::mbExclamation, kTitle);
        return amount_->setFocus();
    }
    QString question = "Post " + Money(amount) + '?';
    if (adjustment != 0)
        question =
            QString("Post %1 with an adjustment of %2?").arg(Money(amount), Money(adjustment));
    question += "\r\n\r\n" + patient->Name() + ", #" + QString::number(patient->number);
    if (TheDesk().Ask(question, halvek::mbYesNo, halvek::mbQuestion, kTitle) != halvek::mbYes)
        return;
    const Payment payment = {0,
                             patient->number,
                             {},
                             amount,
                             adjustment,
                             method_->currentText(),
                             printer_->currentText()};
    if (!TheDesk().Server().Post(payment)) return;
    TheDesk().UseReceiptPrinter(printer_->currentText());
    const QString name = patient->Name();
    shown_ = 0;  // the form is filled anew
    TheDesk().NotePracticeChanged();
    emit Posted(QString("Posted %1 for %2, receipt: %3").arg(Money(amount), name, payment.printer));
}

}  // namespace frontdesk
