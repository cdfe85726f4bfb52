// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "ClientWindow.h"
#include "Shown.h"
#include "WindowsMenu.h"
#include "pages/Pages.h"
#include "tour/Tour.h"
#include "widgets/Fields.h"

#include <halvekutils/qt/QtText.h>

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>

#include <cstddef>

namespace frontdesk {

namespace {

constexpr QSize kDefaultSize(1100, 760);
constexpr int kListWidth = 170;
constexpr int kCallPaneHeight = 150;
constexpr int kMargin = 8;
constexpr int kItemPadding = 12;
constexpr int kMaxShortcuts = 9;

QScrollArea* Scrollable(QWidget* page) {
    auto* area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    return area;
}

}  // namespace

MainWindow::MainWindow(Desk& desk) : desk_(desk), calls_(MakeReadOnlyText()) {
    setWindowTitle(halvek::ToWindowTitle(desk_.Library().AppName()));
    MakeMenus();
    list_.setAccessibleName("Services");
    connect(&list_, &QListWidget::currentRowChanged, this, [this](int row) { ShowPage(row); });
    auto* upper = new QSplitter;
    upper->addWidget(&list_);
    upper->addWidget(&stack_);
    upper->setStretchFactor(1, 1);
    upper->setSizes({kListWidth, kDefaultSize.width() - kListWidth});
    auto* whole = new QSplitter(Qt::Vertical);
    whole->addWidget(upper);
    whole->addWidget(MakeCallPane());
    whole->setStretchFactor(0, 1);
    whole->setSizes({kDefaultSize.height() - kCallPaneHeight, kCallPaneHeight});
    whole->setChildrenCollapsible(false);
    whole->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    setCentralWidget(whole);
    list_.setCurrentRow(0);
    resize(kDefaultSize);
}

void MainWindow::MakeMenus() {
    QMenu* file = menuBar()->addMenu("&File");
    file->addAction("&Quit", QKeySequence::Quit, this, [this] { close(); });
    QMenu* services = menuBar()->addMenu("&Services");
    for (auto& page : MakePages(desk_)) AddPage(page.release(), *services);
    auto* windows = new WindowsMenu(desk_);
    windows->setParent(menuBar(), windows->windowFlags());
    menuBar()->addMenu(windows);
    QMenu* help = menuBar()->addMenu("&Help");
    help->addAction("&Help for this page", QKeySequence::HelpContents, this,
                    [this] { ShowHelp(); });
    help->addAction("&About Front Desk", this, [this] { ShowAbout(); });
}

void MainWindow::AddPage(Page* page, QMenu& menu) {
    const int index = static_cast<int>(pages_.size());
    QAction* action = menu.addAction(page->TitleWithMnemonic(), this, [this, index] {
        list_.setCurrentRow(index);
        list_.setFocus();  // Tab goes on to the page
    });
    if (index < kMaxShortcuts) action->setShortcut(QString("Ctrl+%1").arg(index + 1));
    auto* item = new QListWidgetItem(page->Title(), &list_);
    item->setSizeHint({0, list_.fontMetrics().height() + kItemPadding});
    stack_.addWidget(Scrollable(page));
    pages_.push_back(page);
}

QWidget* MainWindow::MakeCallPane() {
    calls_->setAccessibleName("What the library returned");
    calls_->setPlainText(desk_.Calls().Lines().join('\n'));
    desk_.Calls().Listen([this](const QString& line) { ShowCall(line); });
    auto* pane = new QWidget;
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(MakeCallPaneHeading());
    column->addWidget(calls_);
    return pane;
}

void MainWindow::ShowCall(const QString& line) {
    calls_->appendPlainText(line);
    calls_->verticalScrollBar()->setValue(calls_->verticalScrollBar()->maximum());
}

QLayout* MainWindow::MakeCallPaneHeading() {
    auto* label = new QLabel("What the library ret&urned");
    label->setBuddy(calls_);
    auto* row = new QHBoxLayout;
    row->addWidget(label, 1);
    row->addWidget(MakeButton("Empt&y", [this] { calls_->clear(); }));
    return row;
}

void MainWindow::ShowPage(int index) {
    pages_[static_cast<std::size_t>(index)]->Refresh();
    stack_.setCurrentIndex(index);
}

void MainWindow::ShowHelp() {
    desk_.ShowHelp(pages_[static_cast<std::size_t>(list_.currentRow())]->HelpContext());
}

void MainWindow::ShowAbout() {
    const QString prompt =
        "Front Desk shows the services of HalvekUtils, one on each page.\r\n\r\n"
        "Version " +
        QApplication::applicationVersion();
    desk_.Library().ShowMsgBox(prompt, halvek::mbOkOnly, halvek::mbInformation, windowTitle());
}

void MainWindow::closeEvent(QCloseEvent* event) {
    ClientWindow::CloseAll();
    QMainWindow::closeEvent(event);
}

void MainWindow::Play(Tour& tour) {
    tour.Picture(*this, "window");
    tour.Answer("about", {tour.Snapshot("about"), Click("arrCmd_0")}, [this] { ShowAbout(); });
    int row = 0;
    for (Page* page : pages_) {
        tour.Begin(page->Title());
        list_.setCurrentRow(row++);
        page->Play(tour);
        tour.Picture(*this, "page-" + page->Title().toLower().replace(' ', '-'));
    }
}

}  // namespace frontdesk
