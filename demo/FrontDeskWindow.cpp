// SPDX-License-Identifier: MIT
#include "FrontDeskWindow.h"

#include "DataFolder.h"
#include "PatientBand.h"
#include "PreferencesMenu.h"
#include "Texts.h"
#include "screens/AccountScreen.h"
#include "widgets/Card.h"
#include "widgets/Icons.h"

#include <halvekutils/qt/QtText.h>

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include <utility>

namespace frontdesk {

namespace {

constexpr QSize kDefaultSize(1180, 760);
constexpr int kMessageTime = 8000;
constexpr int kMostDigits = 9;

QScrollArea* Scrollable(QWidget* screen) {
    auto* area = new QScrollArea;
    area->setWidget(screen);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    return area;
}

}  // namespace

FrontDeskWindow::FrontDeskWindow(Desk& desk)
    : desk_(desk),
      schedule_(new ScheduleScreen(desk)),
      checkIn_(new CheckInScreen(desk)),
      payment_(new PaymentScreen(desk)),
      screenActions_(this),
      find_(new FindPatient(desk)),
      calls_(new CallPane(desk.Calls())) {
    const QDate today = desk_.Server().Now().date();
    setWindowTitle(halvek::ToWindowTitle(desk_.Library().AppName()) +
                   Us().toString(today, " - dddd, MMMM d, yyyy"));
    MakeFileMenu();
    AddScreen("&Schedule", static_cast<int>(Glyph::Calendar), schedule_);
    AddScreen("&Account", static_cast<int>(Glyph::Person), new AccountScreen(desk));
    AddScreen("&Check-in", static_cast<int>(Glyph::Check), checkIn_);
    AddScreen("&Payment", static_cast<int>(Glyph::Card), payment_);
    MakeGoMenu();
    MakeWindowsMenu();
    MakeHelpMenu();
    MakeToolBar();
    MakeStatusLine();
    auto* whole = new QWidget;
    auto* column = new QVBoxLayout(whole);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(new PatientBand(desk));
    column->addWidget(&stack_, 1);
    setCentralWidget(whole);
    addDockWidget(Qt::BottomDockWidgetArea, calls_);
    calls_->hide();
    ConnectScreens();
    resize(kDefaultSize.boundedTo(screen()->availableSize() - QSize(12, 40)));
}

void FrontDeskWindow::AddScreen(const char* caption, int glyph, Screen* screen) {
    const int number = static_cast<int>(screens_.size());
    QAction* action = screenActions_.addAction(MakeIcon(static_cast<Glyph>(glyph)), caption);
    action->setCheckable(true);
    action->setShortcut(QString("Ctrl+%1").arg(number + 1));
    connect(action, &QAction::triggered, this,
            [this, number] { GoTo(static_cast<ScreenId>(number)); });
    screens_.push_back(screen);
    stack_.addWidget(Scrollable(screen));
}

void FrontDeskWindow::MakeToolBar() {
    auto* bar = new QToolBar("Screens");
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
    addToolBar(bar);
}

void FrontDeskWindow::MakeFileMenu() {
    QMenu* file = menuBar()->addMenu("&File");
    auto* preferences = new PreferencesMenu(desk_);
    preferences->setParent(menuBar(), preferences->windowFlags());
    file->addMenu(preferences);
    file->addSeparator();
    file->addAction("&Quit", QKeySequence::Quit, this, [this] { close(); });
}

void FrontDeskWindow::MakeGoMenu() {
    QMenu* go = menuBar()->addMenu("&Go");
    go->addActions(screenActions_.actions());
    go->addSeparator();
    go->addAction("&Find patient", QKeySequence("F4"), this, [this] {
        find_->setFocus();
        find_->selectAll();
    });
}

void FrontDeskWindow::MakeWindowsMenu() {
    windows_ = menuBar()->addMenu("&Windows");
    connect(windows_, &QMenu::aboutToShow, this, [this] { FillWindowsMenu(); });
    auto* close = new QAction("&Close account", this);
    close->setShortcut(QKeySequence("Ctrl+W"));
    connect(close, &QAction::triggered, &desk_, &Desk::CloseAccount);
    addAction(close);  // for its key, while the menu is closed
    FillWindowsMenu();
}

void FrontDeskWindow::FillWindowsMenu() {
    windows_->clear();
    int position = 0;
    for (const int number : desk_.Accounts().Numbers()) {
        const auto patient = desk_.Server().Find(number);
        if (!patient) continue;
        const QString digit =
            ++position <= kMostDigits ? QString("&%1  ").arg(position) : QString();
        QAction* action = windows_->addAction(
            digit + halvek::ToCaption(patient->Name()) + QString("  #%1").arg(number), this,
            [this, number] { desk_.OpenAccount(number, ScreenId::Account); });
        action->setCheckable(true);
        action->setChecked(desk_.Current() && desk_.Current()->number == number);
    }
    if (position == 0) windows_->addAction("No account is open")->setEnabled(false);
    windows_->addSeparator();
    windows_->addAction("&Close account\tCtrl+W", &desk_, &Desk::CloseAccount)
        ->setEnabled(position > 0);
    windows_->addAction("Close &all accounts", &desk_, &Desk::CloseAllAccounts)
        ->setEnabled(position > 0);
}

void FrontDeskWindow::MakeHelpMenu() {
    QMenu* help = menuBar()->addMenu("&Help");
    help->addAction("&Help for this screen", QKeySequence("F1"), this,
                    [this] { desk_.ShowHelp(CurrentScreen().HelpContext()); });
    QAction* calls = calls_->toggleViewAction();
    calls->setText("&Show the calls");
    calls->setShortcut(QKeySequence("Ctrl+L"));
    help->addAction(calls);
    help->addAction("&Error log", this, [this] { ShowErrorLog(); })
        ->setEnabled(desk_.May("ERRORLOG", Right::Read));
    if (desk_.Library().DBG()) {
        help->addAction("&Debug console", this,
                        [this] { desk_.Debug("Front Desk is in debug mode."); });
    }
    help->addSeparator();
    help->addAction("&About Front Desk", this, [this] { ShowAbout(); });
}

void FrontDeskWindow::MakeStatusLine() {
    auto* user = new QLabel(desk_.User());
    user->setToolTip("Signed in");
    clock_.setToolTip("The server's clock");
    printer_.setToolTip("Printer of receipts");
    for (QLabel* label : {user, &clock_, &printer_}) {
        label->setContentsMargins(8, 0, 8, 0);
        label->setTextFormat(Qt::PlainText);
        statusBar()->addPermanentWidget(label);
    }
    showCalls_.setDefaultAction(calls_->toggleViewAction());
    showCalls_.setAutoRaise(true);
    showCalls_.setToolButtonStyle(Qt::ToolButtonTextOnly);
    statusBar()->addPermanentWidget(&showCalls_);
    auto* tick = new QTimer(this);
    connect(tick, &QTimer::timeout, this, [this] { ShowClock(); });
    tick->start(1000);
    ShowClock();
}

void FrontDeskWindow::ConnectScreens() {
    connect(&desk_, &Desk::GoTo, this, [this](ScreenId id) { GoTo(id); });
    connect(&desk_, &Desk::PatientChanged, this, [this] { Refresh(); });
    connect(&desk_, &Desk::PrintersKnown, this, [this] {
        const auto printers = desk_.Library().GetPrintersCollectionFiltered(true, true);
        const QString last = desk_.ReceiptPrinter();
        const bool isKnown = !last.isEmpty() || printers->Count() == 0;
        printer_.setText(isKnown ? last
                                 : halvek::ToQString(printers->Item(1)->PrinterDescription()));
    });
    connect(&desk_, &Desk::PrefsChanged, this, [this] {
        if (!desk_.ReceiptPrinter().isEmpty()) printer_.setText(desk_.ReceiptPrinter());
    });
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* focused) { KeepInView(focused); });
    connect(schedule_, &ScheduleScreen::SearchStarted, find_, &FindPatient::StartWith);
    connect(checkIn_, &CheckInScreen::PostNow, this, [this] {
        const qint64 copay = desk_.Server().CopayOf(desk_.Current()->insurance);
        GoTo(copay == 0 ? ScreenId::Schedule : ScreenId::Payment);
        if (copay != 0) payment_->PostNow(copay);
    });
    connect(payment_, &PaymentScreen::Posted, this, [this](const QString& what) {
        statusBar()->showMessage(what, kMessageTime);
        GoTo(ScreenId::Schedule);
    });
}

void FrontDeskWindow::Start() {
    schedule_->GoToDue();
    GoTo(ScreenId::Schedule);
}

Screen& FrontDeskWindow::CurrentScreen() {
    return *screens_[static_cast<std::size_t>(stack_.currentIndex())];
}

void FrontDeskWindow::GoTo(ScreenId id) {
    const auto number = static_cast<int>(id);
    if (id != ScreenId::Schedule && desk_.Current()) desk_.Accounts().Add(desk_.Current()->number);
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
    if (!std::exchange(isPainted_, true)) QTimer::singleShot(0, this, &FrontDeskWindow::Painted);
}

// A scroll area follows the Tab key by itself, but no key that leads straight to a field.
void FrontDeskWindow::KeepInView(const QWidget* focused) {
    auto* area = static_cast<QScrollArea*>(stack_.currentWidget());
    if (focused == nullptr || !area->isAncestorOf(focused)) return;
    area->ensureWidgetVisible(const_cast<QWidget*>(focused));
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
}

void FrontDeskWindow::ShowAbout() {
    desk_.Ask(
        "Front Desk is a small client of a practice that does not exist. It shows what "
        "HalvekUtils does for such clients.\r\n\r\nVersion " +
            QApplication::applicationVersion(),
        halvek::mbOkOnly, halvek::mbInformation, "About Front Desk");
}

void FrontDeskWindow::ShowClock() {
    const auto now = halvek::PartsOf(desk_.Library().ServerTime());
    clock_.setText("server " +
                   Us().toString(QTime(now.hour, now.minute, now.second), "h:mm:ss AP"));
}

}  // namespace frontdesk
