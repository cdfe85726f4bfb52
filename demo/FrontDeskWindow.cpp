// SPDX-License-Identifier: MIT
#include "FrontDeskWindow.h"

#include "FindPatient.h"
#include "PatientBand.h"
#include "PreferencesMenu.h"
#include "Texts.h"
#include "widgets/Buttons.h"

#include <halvekutils/qt/QtText.h>

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace frontdesk {

namespace {

constexpr QSize kDefaultSize(1180, 760);
constexpr int kMessageTime = 8000;
constexpr int kMostCalls = 5000;
constexpr int kCountdown = 30;  // seconds, or as long as the wait before it

}  // namespace

FrontDeskWindow::FrontDeskWindow(Desk& desk)
    : desk_(desk),
      screenActions_(this),
      find_(MakeFindPatient(desk)),
      windows_("&Windows"),
      closeAccount_("&Close account"),
      calls_("Calls of the library") {
    setWindowTitle(halvek::ToWindowTitle(desk_.Library().AppName()) +
                   Us().toString(desk_.Server().Now().date(), " - dddd, MMMM d, yyyy"));
    AddScreen("&Schedule", "calendar", MakeScheduleScreen(desk));
    AddScreen("&Account", "person", MakeAccountScreen(desk));
    AddScreen("&Check-in", "check", MakeCheckInScreen(desk));
    AddScreen("&Payment", "card", MakePaymentScreen(desk));
    MakeCallPane();
    MakeMenus();
    MakeHelpMenu();
    MakeToolBar();
    MakeStatusLine();
    auto* whole = new QWidget;
    auto* column = new QVBoxLayout(whole);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(MakePatientBand(desk));
    column->addWidget(&stack_, 1);
    setCentralWidget(whole);
    ConnectScreens();
    desk_.SelectDue();
    GoTo(ScreenId::Schedule);
    resize(kDefaultSize.boundedTo(screen()->availableSize() - QSize(12, 40)));
}

void FrontDeskWindow::AddScreen(const char* caption, const char* glyph, Screen* screen) {
    const auto number = static_cast<int>(screens_.size());
    QAction* action = screenActions_.addAction(MakeIcon(glyph), caption);
    action->setCheckable(true);
    action->setShortcut(QString("Ctrl+%1").arg(number + 1));
    connect(action, &QAction::triggered, this,
            [this, number] { GoTo(static_cast<ScreenId>(number)); });
    auto* area = new QScrollArea;
    area->setWidget(screen);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    screens_.push_back(screen);
    stack_.addWidget(area);
}

void FrontDeskWindow::MakeToolBar() {
    auto* bar = addToolBar("Screens");
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setIconSize({20, 20});
    bar->setStyleSheet("QToolBar { spacing: 6px; padding: 5px 12px; border: none; }");
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions(screenActions_.actions());
    auto* space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(space);
    bar->addWidget(find_);
}

void FrontDeskWindow::MakeCallPane() {
    auto* lines = new QPlainTextEdit(desk_.Calls().Lines().join('\n'));
    lines->setReadOnly(true);
    lines->setTabChangesFocus(true);
    lines->setAccessibleName(calls_.windowTitle());
    lines->setFrameShape(QFrame::NoFrame);
    lines->setMaximumBlockCount(kMostCalls);
    connect(&desk_.Calls(), &CallLog::Added, lines, &QPlainTextEdit::appendPlainText);
    connect(&calls_, &QDockWidget::visibilityChanged, lines,
            [lines] { lines->moveCursor(QTextCursor::End); });
    calls_.setFeatures(QDockWidget::DockWidgetClosable);
    calls_.setWidget(lines);
    calls_.hide();
    addDockWidget(Qt::BottomDockWidgetArea, &calls_);
    calls_.toggleViewAction()->setText("&Show the calls");
    calls_.toggleViewAction()->setShortcut(QKeySequence("Ctrl+L"));
}

void FrontDeskWindow::MakeMenus() {
    QMenu* file = menuBar()->addMenu("&File");
    file->addMenu(MakePreferencesMenu(desk_, menuBar()));
    file->addSeparator();
    file->addAction("&Quit", QKeySequence::Quit, this, &QWidget::close);
    QMenu* go = menuBar()->addMenu("&Go");
    go->addActions(screenActions_.actions());
    go->addSeparator();
    go->addAction("&Find patient", QKeySequence("F4"), this, [this] {
        find_->setFocus();
        find_->selectAll();
    });
    menuBar()->addMenu(&windows_);
    connect(&windows_, &QMenu::aboutToShow, this, &FrontDeskWindow::FillWindowsMenu);
    closeAccount_.setShortcut(QKeySequence("Ctrl+W"));
    connect(&closeAccount_, &QAction::triggered, &desk_, &Desk::CloseAccount);
    addAction(&closeAccount_);  // for its key, before the menu opens
}

void FrontDeskWindow::FillWindowsMenu() {
    windows_.clear();
    const QList<int> accounts = desk_.OpenAccounts();
    int position = 0;
    for (const int number : accounts) {
        const QString name = desk_.Server().Find(number).value_or(Patient{}).Name();
        const QString text = QString("&%1  %2  #%3")
                                 .arg(QString::number(++position), halvek::ToCaption(name))
                                 .arg(number);
        QAction* action = windows_.addAction(
            text, this, [this, number] { desk_.OpenAccount(number, ScreenId::Account); });
        action->setCheckable(true);
        action->setChecked(desk_.Current() && desk_.Current()->number == number);
    }
    if (accounts.isEmpty()) windows_.addAction("No account is open")->setEnabled(false);
    windows_.addSeparator();
    windows_.addAction(&closeAccount_);
    windows_.addAction("Close &all accounts", &desk_, &Desk::CloseAllAccounts)
        ->setEnabled(!accounts.isEmpty());
}

void FrontDeskWindow::MakeHelpMenu() {
    QMenu* help = menuBar()->addMenu("&Help");
    help->addAction("&Help for this screen", QKeySequence("F1"), this, [this] {
        const int context = CurrentScreen().HelpContext();
        const bool found = desk_.Library().ShowHelp(0, context);
        desk_.Calls().Add("ShowHelp", {0, context}, found);
    });
    help->addAction(calls_.toggleViewAction());
    help->addAction("&Error log", this, &FrontDeskWindow::ShowErrorLog)
        ->setEnabled(desk_.Rights("ERRORLOG")->AllowRead());
}

void FrontDeskWindow::MakeStatusLine() {
    auto* user = new QLabel(kUser);
    user->setToolTip("Signed in");
    clock_.setToolTip("The server's clock");
    printer_.setToolTip("Printer of receipts");
    for (QLabel* label : {user, &clock_, &printer_}) {
        label->setContentsMargins(8, 0, 8, 0);
        label->setTextFormat(Qt::PlainText);
        statusBar()->addPermanentWidget(label);
    }
    auto* showCalls = new QToolButton;
    showCalls->setDefaultAction(calls_.toggleViewAction());
    showCalls->setAutoRaise(true);
    statusBar()->addPermanentWidget(showCalls);
    auto* tick = new QTimer(this);
    connect(tick, &QTimer::timeout, this, &FrontDeskWindow::ShowClock);
    tick->start(1000);
    ShowClock();
}

void FrontDeskWindow::ConnectScreens() {
    connect(&desk_, &Desk::GoTo, this, &FrontDeskWindow::GoTo);
    connect(&desk_, &Desk::PatientChanged, this, &FrontDeskWindow::Refresh);
    connect(&desk_, &Desk::PrintersKnown, this, &FrontDeskWindow::ShowPrinter);
    connect(&desk_, &Desk::PrefsChanged, this, &FrontDeskWindow::ShowPrinter);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* focused) { KeepInView(focused); });
    connect(&desk_, &Desk::Told, statusBar(),
            [this](const QString& what) { statusBar()->showMessage(what, kMessageTime); });
}

void FrontDeskWindow::WatchIdle(int seconds) {
    connect(&idle_, &QTimer::timeout, this, &FrontDeskWindow::WarnIdle);
    idle_.start(seconds * 1000);
    qApp->installEventFilter(this);
}

bool FrontDeskWindow::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseMove ||
        event->type() == QEvent::MouseButtonPress) {
        idle_.start();
    }
    return false;
}

// An open dialog is left alone: it may hold an answer that somebody is about to give.
void FrontDeskWindow::WarnIdle() {
    if (desk_.OpenAccounts().isEmpty() || QApplication::activeModalWidget() != nullptr) return;
    const auto answer = desk_.Ask(
        "Nobody has used this desk for a while.\r\n\r\nThe open accounts close now, unless you "
        "press OK.",
        halvek::mbOkOnly, halvek::mbReminder, "Front Desk",
        qMin(kCountdown, idle_.interval() / 1000));
    if (answer == halvek::kClosedByCountdown) desk_.CloseAllAccounts();
    idle_.start();
}

Screen& FrontDeskWindow::CurrentScreen() {
    return *screens_[static_cast<std::size_t>(stack_.currentIndex())];
}

void FrontDeskWindow::GoTo(ScreenId id) {
    const auto number = static_cast<int>(id);
    if (id != ScreenId::Schedule && desk_.Current()) desk_.NoteOpen(desk_.Current()->number);
    stack_.setCurrentIndex(number);
    screenActions_.actions().at(number)->setChecked(true);
    Refresh();
    CurrentScreen().FirstField()->setFocus(Qt::ShortcutFocusReason);
}

void FrontDeskWindow::Refresh() {
    const bool hasPatient = desk_.Current().has_value();
    for (QAction* action : screenActions_.actions().mid(1)) action->setEnabled(hasPatient);
    CurrentScreen().Refresh();
}

void FrontDeskWindow::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    if (!std::exchange(isPainted_, true)) QTimer::singleShot(0, &desk_, &Desk::ReadPrinters);
}

// A scroll area follows the Tab key by itself, but no key that leads straight to a field.
void FrontDeskWindow::KeepInView(const QWidget* focused) {
    if (focused == nullptr) return;  // also while the window is destroyed
    auto* area = static_cast<QScrollArea*>(stack_.currentWidget());
    if (area->isAncestorOf(focused)) area->ensureWidgetVisible(const_cast<QWidget*>(focused));
}

void FrontDeskWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QMainWindow::keyPressEvent(event);
    GoTo(ScreenId::Schedule);
}

/// The end of the error log, in the fixed font of a message box.
void FrontDeskWindow::ShowErrorLog() {
    constexpr qint64 kMostBytes = 1500;
    QFile file(ErrorLogFile());
    QString text = "Nothing was logged.";
    if (file.open(QIODevice::ReadOnly) && file.size() > 0) {
        file.seek(qMax<qint64>(0, file.size() - kMostBytes));
        text = halvek::FromServer(file.readAll()).trimmed().replace('\t', "  ");
    }
    desk_.Library().ShowMsgBox(text, halvek::mbOkOnly, halvek::mbNoIcon, u"Error log",
                               halvek::mbGray, halvek::mb5);
    desk_.Calls().Add("ShowMsgBox", {text});
}

void FrontDeskWindow::ShowClock() {
    const auto now = halvek::PartsOf(desk_.Library().ServerTime());
    clock_.setText("server " +
                   Us().toString(QTime(now.hour, now.minute, now.second), "h:mm:ss AP"));
}

// The one used last, or else the first that receipts may go to
void FrontDeskWindow::ShowPrinter() {
    const QString last = desk_.ReceiptPrinter();
    const auto printers = desk_.Library().GetPrintersCollectionFiltered(true, true);
    printer_.setText(last.isEmpty() && printers->Count() > 0
                         ? halvek::ToQString(printers->Item(1)->PrinterDescription())
                         : last);
}

}  // namespace frontdesk
