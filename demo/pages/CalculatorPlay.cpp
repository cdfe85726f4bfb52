// SPDX-License-Identifier: MIT
#include "pages/CalculatorPlay.h"

#include "Shown.h"
#include "pages/CalculatorPage.h"
#include "tour/Tour.h"

#include <QColor>
#include <QLineEdit>
#include <QPalette>
#include <QPushButton>

#include <algorithm>
#include <utility>
#include <vector>

namespace frontdesk {

namespace {

const char* const kBox = "txtOutput";
const char* const kChangeSign = "arrCmd_10";
const char* const kClear = "arrCmd_17";
const char* const kReturn = "arrCmd_18";

class CalculatorPlay {
  public:
    CalculatorPlay(CalculatorPage& page, Tour& tour) : page_(page), tour_(tour) {}

    void Amounts();
    void Limits();
    void Ends();

  private:
    void Calculate(const QString& name, const QString& amount, std::vector<TourStep> steps,
                   const QString& expected);
    TourStep Shows(const QString& text);
    TourStep Snapshot(const QString& name) { return tour_.Snapshot("calculator-" + name); }

    CalculatorPage& page_;
    Tour& tour_;
};

/// Typed keys reach the calculator through any of its buttons.
TourStep Type(const QString& keys) {
    return TypeText(kReturn, keys);
}

TourStep Accept() {
    return Click(kReturn);
}

/// A button that was pressed is white for a moment.
TourStep WaitForFlashes() {
    return {[](QWidget& dialog) {
        return std::ranges::none_of(
            dialog.findChildren<QPushButton*>(), [](const QPushButton* button) {
                return button->palette().color(QPalette::Button) == Qt::white;
            });
    }};
}

TourStep CalculatorPlay::Shows(const QString& text) {
    return tour_.Check("the display shows " + text, [=](QWidget& dialog) {
        return dialog.findChild<QLineEdit*>(kBox)->text() == text;
    });
}

void CalculatorPlay::Calculate(const QString& name, const QString& amount,
                               std::vector<TourStep> steps, const QString& expected) {
    QString result;
    tour_.Answer("calculator " + name, std::move(steps),
                 [&] { result = page_.CalculateFrom(amount); });
    tour_.ExpectResult("calculator " + name, Shown(result), Shown(expected));
}

void CalculatorPlay::Amounts() {
    Calculate("typical", "$1,234.50",
              {Snapshot("typical"), Shows("1234.5"), Type("/12"), Snapshot("flash"),
               WaitForFlashes(), Snapshot("operands"), Type("="), Shows("102.88"), WaitForFlashes(),
               Snapshot("result"), Accept()},
              "102.88");
    Calculate("clicks", "",
              {Click("arrCmd_2"), Click("arrCmd_5"), Click(kChangeSign), Shows("-25"),
               Click("arrCmd_13"), Click("arrCmd_4"), Click("arrCmd_16"), Shows("-100"), Accept()},
              "-100");
    Calculate("unrounded", "10", {Type("/3*3="), Shows("10"), Accept()}, "10");
    Calculate("cleared", "5", {Type("+3"), Click(kClear), Shows(""), Type("2+2="), Accept()}, "4");
}

void CalculatorPlay::Limits() {
    Calculate("error", "5",
              {Type("/0="), Shows("ERROR"), WaitForFlashes(), Snapshot("error"), Accept()},
              "ERROR");
    Calculate("full", "",
              {PressKey(kReturn, Qt::Key_Tab), TypeText(kBox, "1234567890123.456"),
               Shows("1234567890123.4"), Snapshot("full"), Accept()},
              "1234567890123.4");
    const QString nines(15, '9');
    Calculate("long", "",
              {Type(nines + '*' + nines + "=*"), Click(kChangeSign), Shows("-9.99999999999998E+29"),
               WaitForFlashes(), Snapshot("long"), Accept()},
              "-9.99999999999998E+29");
    Calculate("overflow", "9E+307", {Type("*10="), Shows("ERROR"), Accept()}, "ERROR");
    Calculate("400 digits", QString(400, '7'), {Shows(""), Type("8"), Accept()}, "8");
}

void CalculatorPlay::Ends() {
    Calculate("escape", "25", {Type("+1="), PressKey(kReturn, Qt::Key_Escape)}, "");
    Calculate("closed", "25", {Type("+1="), CloseWindow()}, "");
    Calculate("text", "to be billed", {Shows(""), Accept()}, "");
    Calculate("enter", "25", {PressKey(kReturn, Qt::Key_Return)}, "25");
}

}  // namespace

void PlayCalculations(CalculatorPage& page, Tour& tour) {
    CalculatorPlay play(page, tour);
    play.Amounts();
    play.Limits();
    play.Ends();
}

}  // namespace frontdesk
