// SPDX-License-Identifier: MIT
// Takes a payment: what it is for, the day of the visit and an amount, posted after a question.
#include <halvekutils/core/Utils.h>
#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtPlatform.h>
#include <halvekutils/qt/QtText.h>

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

using namespace halvek;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QtPlatform desktop;
    auto utils = Utils::Create();
    utils->InitUtils(u"FrontDesk.log", u"Front Desk", u"demo", false, u"1.0");

    QFile server(QStringLiteral("codes.txt"));  // what the practice's server answered
    if (server.open(QIODevice::ReadOnly)) {
        utils->BuildCodesCollection(FromServer(server.readAll()));
    } else {
        utils->LogError(QStringLiteral("codes.txt cannot be read: ") + server.errorString());
    }

    QWidget window;
    window.setWindowTitle(QStringLiteral("Payment"));
    auto* const kind = new QComboBox;
    for (const auto& code : utils->GetCodesCollection()) {
        kind->addItem(ToQString(code->CodeDescription()));
    }
    auto* const visit = new QLineEdit(QStringLiteral("03/07/2024"));
    auto* const choose = new QPushButton(QStringLiteral("&Choose..."));
    auto* const amount = new QLineEdit;
    auto* const post = new QPushButton(QStringLiteral("&Post"));
    auto* const form = new QFormLayout(&window);
    form->addRow(QStringLiteral("&Kind"), kind);
    form->addRow(QStringLiteral("&Day of the visit"), visit);
    form->addRow(QString(), choose);
    form->addRow(QStringLiteral("&Amount"), amount);
    form->addRow(QString(), post);
    MakeCurrencyField(amount);  // an ordinary QLineEdit until now

    QObject::connect(choose, &QPushButton::clicked, [&] {
        const auto day = utils->ShowCalendarAndCalculateCoordinates(Beside(choose), visit->text());
        if (!day.empty()) visit->setText(ToQString(day));
    });
    QObject::connect(post, &QPushButton::clicked, [&] {
        const auto cents = CurrencyCents(amount);
        if (!cents) return;
        const QString question =
            QStringLiteral("Post %1 for %2?").arg(amount->text(), kind->currentText());
        if (utils->ShowMsgBox(question, mbYesNo, mbQuestion, window.windowTitle()) != mbYes) return;
        const QString payment =
            QStringLiteral("%1|%2|%3\n")
                .arg(kind->currentText(), visit->text(), QString::number(*cents));
        QFile posted(QStringLiteral("posted.txt"));  // what goes to the server
        if (posted.open(QIODevice::Append) && posted.write(ToServer(payment)) > 0 &&
            posted.flush()) {
            amount->clear();
        } else {
            utils->ShowMsgBox(QStringLiteral("Not posted: ") + posted.errorString(), mbOkOnly,
                              mbCritical, window.windowTitle());
        }
    });
    window.show();
    return QApplication::exec();
}
