// SPDX-License-Identifier: MIT
#include "pages/ErrorLogPage.h"

#include "Shown.h"
#include "tour/Tour.h"
#include "widgets/Fields.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QScrollBar>

namespace frontdesk {

namespace {

constexpr int kTailLines = 200;

}  // namespace

ErrorLogPage::ErrorLogPage(Desk& desk)
    : Page("&Error log",
           "One line for every fault, with date, time and login name. At one mebibyte "
           "the log becomes an archive."),
      desk_(desk),
      tail_(MakeReadOnlyText()) {
    tail_->setAccessibleName("End of the error log");
    Body().addLayout(MakeMessage());
    Body().addSpacing(8);
    Body().addLayout(MakeTailHeading());
    Body().addWidget(tail_, 1);
}

QLayout* ErrorLogPage::MakeMessage() {
    auto* label = new QLabel("&Message");
    label->setBuddy(&message_);
    message_.setAccessibleName("Message");
    message_.setText("The label printer is out of paper");
    connect(&message_, &QLineEdit::returnPressed, this, [this] { LogError(); });
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(&message_, 1);
    row->addWidget(MakeButton("&LogError", [this] { LogError(); }));
    return row;
}

QLayout* ErrorLogPage::MakeTailHeading() {
    tailLabel_.setBuddy(tail_);
    auto* row = new QHBoxLayout;
    row->addWidget(&tailLabel_, 1);
    row->addWidget(MakeButton("&Refresh", [this] { Refresh(); }));
    return row;
}

void ErrorLogPage::Refresh() {
    const QString path = desk_.ErrorLog().Path();
    tailLabel_.setText("En&d of " + QFileInfo(path).fileName());
    tailLabel_.setToolTip(path);
    tail_->setPlainText(desk_.ErrorLog().Tail(kTailLines));
    tail_->verticalScrollBar()->setValue(tail_->verticalScrollBar()->maximum());
}

void ErrorLogPage::LogError() {
    desk_.Library().LogError(message_.text());
    desk_.Calls().Add("LogError", Args(message_.text()));
    Refresh();
}

void ErrorLogPage::Play(Tour& tour) {
    // The last has a character that the log's code page lacks.
    const struct {
        QString message, logged;
    } lines[] = {
        {"The label printer is out of paper", "The label printer is out of paper"},
        {QString::fromUtf8("Café Müller – 5 €"), QString::fromUtf8("Café Müller – 5 €")},
        {QString::fromUtf8("Blood pressure ≥ 140"), "Blood pressure ? 140"},
    };
    for (const auto& line : lines) {
        message_.setText(line.message);
        LogError();
        tour.Expect(tail_->toPlainText().endsWith('\t' + line.logged), "logged: " + line.logged);
    }
}

}  // namespace frontdesk
