// SPDX-License-Identifier: MIT
// Checks a patient in: the account's reminder, the day of the visit and its reasons.
#include "CheckIn.h"

#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtPlatform.h>
#include <halvekutils/qt/QtText.h>

#include <QApplication>
#include <QFile>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

using namespace halvek;

namespace {

/// A text from a file in the server's bytes; empty without one.
QString ServerText(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? FromServer(file.readAll()) : QString();
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QtPlatform desktop;
    auto utils = Utils::Create();
    utils->InitUtils(u"FrontDesk.log", u"Front Desk", u"desk", false, u"1.0");

    CheckIn checkIn(utils);
    checkIn.Open(u"4711", ServerText(QStringLiteral("reminder.txt")));
    const QString reasons = ServerText(QStringLiteral("reasons.txt"));

    QWidget window;
    window.setWindowTitle(QStringLiteral("Check-in"));
    auto* const reminder = new QLabel(ToQString(checkIn.Reminder()));
    reminder->setTextFormat(Qt::PlainText);
    auto* const day = new QPushButton(QStringLiteral("&Day..."));
    auto* const reason = new QPushButton(QStringLiteral("&Reasons..."));
    auto* const chosen = new QLabel;
    auto* const done = new QPushButton(QStringLiteral("&Check in"));
    auto* const form = new QFormLayout(&window);
    for (QWidget* const row :
         std::initializer_list<QWidget*>{reminder, day, reason, chosen, done}) {
        form->addRow(row);
    }
    const auto show = [&] {
        chosen->setText(ToQString(checkIn.Day() + u"  " + checkIn.Reasons()));
    };
    QObject::connect(day, &QPushButton::clicked, [&] {
        checkIn.ChooseDay(Beside(day));
        show();
    });
    QObject::connect(reason, &QPushButton::clicked, [&] {
        checkIn.ChooseReasons(reasons, Beside(reason));
        show();
    });
    QObject::connect(done, &QPushButton::clicked, [&] {
        if (checkIn.Confirm()) window.close();
    });
    window.show();
    return QApplication::exec();
}
