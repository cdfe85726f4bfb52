// SPDX-License-Identifier: MIT
#include "Texts.h"
#include "screens/Screen.h"
#include "widgets/Buttons.h"
#include "widgets/Card.h"
#include "widgets/Fields.h"
#include "widgets/Tables.h"

#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include <limits>

namespace frontdesk {

using halvek::CurrencyCents;
using halvek::ToQString;

namespace {

constexpr char kTitle[] = "Payment";
constexpr int kLetters = 14;

QLineEdit* MakeLine(const QString& name) {
    auto* line = new QLineEdit;
    line->setAccessibleName(name);
    line->setFixedWidth(line->fontMetrics().averageCharWidth() * kLetters);
    return line;
}

/// Takes a payment, and shows those of the account between two amounts.
class PaymentScreen : public Screen {
  public:
    explicit PaymentScreen(Desk& desk);

    void Refresh() override;
    QWidget* FirstField() override { return amount_; }
    int HelpContext() const override { return 400; }

  private:
    QWidget* MakeForm();
    QWidget* MakePayments();
    void MakeCurrencyFields();
    void FillCombo(QComboBox* box, const QStringList& entries);
    void FillMethods();
    void FillPrinters();
    void ShowBalanceAfter();
    void ShowPayments();
    void Calculate();
    void PostNow(qint64 cents);
    void Post();

    QLineEdit* amount_;
    QLineEdit* adjustment_;
    QComboBox* method_;
    QComboBox* printer_;
    QLabel* after_;
    QPushButton* post_;
    QLineEdit* from_;
    QLineEdit* to_;
    QTableWidget* payments_;
    int shown_ = 0;  ///< the account
};

PaymentScreen::PaymentScreen(Desk& desk)
    : Screen(desk),
      amount_(MakeLine("Amount")),
      adjustment_(MakeLine("Adjustment")),
      method_(new QComboBox),
      printer_(new QComboBox),
      after_(MakeNote()),
      post_(MakePrimaryButton("Post")),
      from_(MakeLine("From")),
      to_(MakeLine("To")),
      payments_(MakeList("Payments", {"Posted", "Amount", "Adjustment", "By", "Receipt"})) {
    MakeCurrencyFields();
    ShowAsRequired(*amount_, desk);
    FillMethods();
    column_->addWidget(new Columns(MakeForm(), 2, MakePayments(), 3), 1);
    connect(post_, &QPushButton::clicked, this, &PaymentScreen::Post);
    for (const QLineEdit* line : {amount_, adjustment_}) {
        connect(line, &QLineEdit::textChanged, this, &PaymentScreen::ShowBalanceAfter);
    }
    for (const QLineEdit* line : {from_, to_}) {
        connect(line, &QLineEdit::textChanged, this, &PaymentScreen::ShowPayments);
    }
    connect(&desk, &Desk::PrintersKnown, this, &PaymentScreen::FillPrinters);
    connect(&desk, &Desk::PostNow, this, &PaymentScreen::PostNow);
}

void PaymentScreen::MakeCurrencyFields() {
    halvek::MakeCurrencyField(amount_);
    desk_.Calls().Add("MakeCurrencyField", {"Amount"});
    halvek::MakeSignedCurrencyField(adjustment_);
    desk_.Calls().Add("MakeSignedCurrencyField", {"Adjustment"});
    halvek::MakeCurrencyField(from_);
    desk_.Calls().Add("MakeCurrencyField", {"From"});
    halvek::CheckCurrencyRange(from_, to_, u"From", u"To");
    desk_.Calls().Add("CheckCurrencyRange", {"From", "To"});
}

QWidget* PaymentScreen::MakeForm() {
    auto* calculator = MakeToolButton("Calculator", Qt::CTRL | Qt::Key_K);
    calculator->setIcon(MakeIcon("calculator"));
    connect(calculator, &QToolButton::clicked, this, &PaymentScreen::Calculate);
    method_->setAccessibleName("Paid by");
    printer_->setAccessibleName("Receipt");
    printer_->setSizeAdjustPolicy(QComboBox::AdjustToContents);  // it is filled later
    auto* form = new FieldForm(desk_);
    form->AddRow("&Amount", amount_, calculator);
    form->AddRow("Ad&justment", adjustment_);
    form->AddRow("Paid &by", method_);
    form->AddRow("&Receipt", printer_);
    auto* card = new Card("New payment");
    card->Content().addWidget(form);
    card->Content().addWidget(after_);
    card->Content().addWidget(post_, 0, Qt::AlignLeft);
    card->Content().addStretch();
    return card;
}

QWidget* PaymentScreen::MakePayments() {
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
    auto* card = new Card("Payments of this account");
    card->Content().addLayout(filter);
    card->Content().addWidget(payments_, 1);
    return card;
}

void PaymentScreen::FillCombo(QComboBox* box, const QStringList& entries) {
    desk_.Library().FillCombo(entries.join(':'), halvek::AsComboBox(box));
    desk_.Calls().Add("FillCombo", {entries.join(':')});
}

void PaymentScreen::FillMethods() {
    const QString list = halvek::FromServer(desk_.Server().List("PAY", false));
    QStringList methods;
    for (const QString& entry : list.split(':', Qt::SkipEmptyParts).mid(1)) {
        methods << ToQString(desk_.Library().SplitStr(entry, u"\t", 2));
    }
    FillCombo(method_, methods);
    method_->setCurrentIndex(0);
}

// All but the spool queue and files
void PaymentScreen::FillPrinters() {
    const auto printers = desk_.Library().GetPrintersCollectionFiltered(true, true);
    QStringList names;
    for (const auto& printer : printers) {
        names << ToQString(printer->PrinterDescription()).replace(':', ';');
    }
    FillCombo(printer_, names);
    const auto box = halvek::AsComboBox(printer_);
    printer_->setCurrentIndex(qMax(0, desk_.Library().FindInCombo(box, desk_.ReceiptPrinter())));
}

void PaymentScreen::Refresh() {
    const auto& patient = desk_.Current();
    post_->setEnabled(patient && desk_.Rights("PAYMENTS")->AllowAdd());
    // Locked, not disabled: what is typed after Alt+J must not reach the amount.
    const bool mayAdjust = desk_.Rights("ADJUSTMENTS")->AllowAdd();
    adjustment_->setReadOnly(!mayAdjust);
    adjustment_->setPlaceholderText(mayAdjust ? "" : "locked");
    adjustment_->setToolTip(mayAdjust ? "" : "Your rights do not include adjustments");
    if (!patient) return;
    if (shown_ != patient->number) {
        shown_ = patient->number;
        for (QLineEdit* line : {adjustment_, from_, to_}) line->clear();
        const auto visit = desk_.VisitOfToday();
        const bool hasCopay = visit && visit->state == VisitState::CheckedIn;
        const qint64 copay = desk_.Server().CopayOf(patient->insurance);
        halvek::SetCurrencyCents(amount_, hasCopay ? copay : patient->balance);
    }
    ShowBalanceAfter();
    ShowPayments();
}

void PaymentScreen::ShowBalanceAfter() {
    const auto& patient = desk_.Current();
    if (!patient) return;
    const qint64 amount = CurrencyCents(amount_).value_or(0);
    const qint64 then = patient->balance - amount + CurrencyCents(adjustment_).value_or(0);
    after_->setText(QString("Balance %1, then %2").arg(Money(patient->balance), Money(then)));
    SetText(*post_, amount == 0 ? "Post" : "Post " + Money(amount));
}

void PaymentScreen::ShowPayments() {
    payments_->setRowCount(0);
    const auto& patient = desk_.Current();
    if (!patient) return;
    const qint64 from = CurrencyCents(from_).value_or(0);
    const qint64 to = CurrencyCents(to_).value_or(std::numeric_limits<qint64>::max());
    for (const Payment& payment : desk_.Server().Payments(patient->number)) {
        if (payment.amount < from || payment.amount > to) continue;
        AddRow(*payments_, {DayText(payment.posted.date()) + ' ' + TimeText(payment.posted.time()),
                            Money(payment.amount), AdjustmentText(payment.adjustment),
                            payment.method, payment.printer});
    }
}

void PaymentScreen::Calculate() {
    const QString shown = amount_->text();
    const QString result = ToQString(desk_.Library().Calculate(shown));
    desk_.Calls().Add("Calculate", {shown}, result);
    if (!result.isEmpty()) amount_->setText(result);
    amount_->setFocus();
}

void PaymentScreen::PostNow(qint64 cents) {
    halvek::SetCurrencyCents(amount_, cents);
    adjustment_->clear();
    Post();
}

void PaymentScreen::Post() {
    const bool mayPost = desk_.Current() && desk_.Rights("PAYMENTS")->AllowAdd();
    if (!mayPost || !halvek::LeaveCurrencyFields(this)) return;
    const Patient patient = *desk_.Current();
    const QString printer = printer_->currentText();
    const qint64 amount = CurrencyCents(amount_).value_or(0);
    const qint64 adjustment = CurrencyCents(adjustment_).value_or(0);
    if (amount == 0 && adjustment == 0) {
        desk_.Ask("Enter an amount first.", halvek::mbOkOnly, halvek::mbExclamation, kTitle);
        return amount_->setFocus();
    }
    const QString with = " with an adjustment of " + Money(adjustment);
    const QString question = QString("Post %1%2?\r\n\r\n%3, #%4")
                                 .arg(Money(amount), adjustment == 0 ? "" : with, patient.Name())
                                 .arg(patient.number);
    if (desk_.Ask(question, halvek::mbYesNo, halvek::mbQuestion, kTitle) != halvek::mbYes) return;
    if (!desk_.Server().Post(
            {patient.number, {}, amount, adjustment, method_->currentText(), printer}))
        return;
    desk_.UseReceiptPrinter(printer);
    shown_ = 0;  // the form is filled anew
    desk_.NotePracticeChanged();
    emit desk_.Told(
        QString("Posted %1 for %2, receipt: %3").arg(Money(amount), patient.Name(), printer));
    emit desk_.GoTo(ScreenId::Schedule);
}

}  // namespace

Screen* MakePaymentScreen(Desk& desk) {
    return new PaymentScreen(desk);
}

}  // namespace frontdesk
