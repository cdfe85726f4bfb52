// SPDX-License-Identifier: MIT
#include "pages/DebugPage.h"

#include "Shown.h"
#include "tour/Tour.h"
#include "widgets/Fields.h"

#include <halvekutils/qt/QtText.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>

#include <stdexcept>

namespace frontdesk {

using halvek::ToQString;
using halvek::Utils;

namespace {

constexpr int kManyLines = 1000;

/// A part of the library's debug console.
template <class Part>
Part& PartOfConsole(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() != "frmDebug") continue;
        if (auto* part = window->findChild<Part*>(name)) return *part;
    }
    throw std::logic_error(("the debug console has no " + name).toStdString());
}

QString ConsoleText() {
    return PartOfConsole<QPlainTextEdit>("txtDebug").toPlainText();
}

}  // namespace

DebugPage::DebugPage(Desk& desk)
    : Page("Debu&g console",
           "In debug mode lines show in a window of their own, which never takes the keyboard "
           "away. Outside debug mode they are dropped."),
      desk_(desk) {
    debugMode_.setText("&Debug mode");
    debugMode_.setAccessibleName("Debug mode");
    connect(&debugMode_, &QCheckBox::clicked, this, &DebugPage::SwitchDebugMode);
    Body().addWidget(&debugMode_);
    Body().addLayout(MakeLine());
    Body().addLayout(MakeButtons());
    Body().addStretch();
}

QLayout* DebugPage::MakeLine() {
    auto* label = new QLabel("&Line");
    label->setBuddy(&line_);
    line_.setAccessibleName("Line");
    line_.setText("Read 28 insurance types");
    connect(&line_, &QLineEdit::returnPressed, this, &DebugPage::ShowInDebug);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(&line_, 1);
    row->addWidget(MakeButton("Show&InDebug", [this] { ShowInDebug(); }));
    return row;
}

QLayout* DebugPage::MakeButtons() {
    auto* row = new QHBoxLayout;
    row->addWidget(MakeButton("A &thousand lines", [this] { ShowAThousand(); }));
    row->addWidget(MakeButton("&ClearDebug", [this] { ClearDebug(); }));
    row->addStretch();
    return row;
}

void DebugPage::Refresh() {
    debugMode_.setChecked(desk_.Library().DBG());
}

void DebugPage::SwitchDebugMode(bool on) {
    const Utils& library = desk_.Library();
    desk_.InitUtils({desk_.ErrorLog().Path(), ToQString(library.AppName()),
                     ToQString(library.AppType()), on, ToQString(library.ExeFileStamp())});
    Refresh();
}

void DebugPage::ShowInDebug() {
    desk_.Library().ShowInDebug(line_.text());
    desk_.Calls().Add("ShowInDebug", Args(line_.text()));
    line_.selectAll();
}

void DebugPage::ShowAThousand() {
    for (int i = 1; i <= kManyLines; ++i) {
        desk_.Library().ShowInDebug(QString("Line %1 of %2").arg(i).arg(kManyLines));
    }
    desk_.Calls().Add("ShowInDebug", Args(QString("Line 1 to %1").arg(kManyLines)));
}

void DebugPage::ClearDebug() {
    desk_.Library().ClearDebug();
    desk_.Calls().Add("ClearDebug", {});
}

void DebugPage::PlayBesideADialog(Tour& tour) {
    tour.Answer("debug-beside-a-dialog",
                {tour.Check("the console shows lines beside a dialog",
                            [this](QWidget&) {
                                ShowInDebug();
                                return ConsoleText().contains(line_.text());
                            }),
                 Click("arrCmd_0")},
                [this] {
                    desk_.Library().ShowMsgBox(u"Look at the debug console.", halvek::mbOkOnly,
                                               halvek::mbInformation, window()->windowTitle());
                });
}

void DebugPage::Play(Tour& tour) {
    SwitchDebugMode(true);
    ShowInDebug();
    tour.Picture(*PartOfConsole<QWidget>("txtDebug").window(), "debug-one-line");
    ShowAThousand();
    tour.Picture(*PartOfConsole<QWidget>("txtDebug").window(), "debug-thousand-lines");
    ClearDebug();
    PlayBesideADialog(tour);
    auto& stop = PartOfConsole<QCheckBox>("chkNoLog");
    stop.click();
    line_.setText("dropped");
    ShowInDebug();
    stop.click();
    tour.Picture(*stop.window(), "debug-stopped-and-started");
    tour.Expect(!ConsoleText().contains("dropped"), "lines are dropped while logging is stopped");
    PartOfConsole<QPushButton>("cmdClear").click();
    stop.window()->close();
    SwitchDebugMode(false);
    ShowInDebug();
    tour.Expect(!stop.window()->isVisible(), "no console shows outside debug mode");
    line_.setText("Read 28 insurance types");
}

}  // namespace frontdesk
