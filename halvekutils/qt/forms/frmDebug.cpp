// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/DebugTextView.h>
#include <halvekutils/qt/forms/frmDebug.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FindBar.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/StatusLabel.h>
#include <halvekutils/qt/helpers/WindowOpening.h>

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QThread>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace halvek {

namespace {

constexpr QSize kSize(640, 320);

/// Whether the program is about to end because its last window was closed. Showing a window then
/// would keep it alive.
bool ProgramIsLeaving(const QWindow* console) {
    const bool endsItself =
        QGuiApplication::quitOnLastWindowClosed() && QThread::currentThread()->loopLevel() > 0;
    return endsItself && std::ranges::none_of(QGuiApplication::topLevelWindows(),
                                              [console](const QWindow* window) {
                                                  return window != console && window->isVisible();
                                              });
}

}  // namespace

frmDebug::frmDebug(std::shared_ptr<DebugConsole> console, const Desktop& desktop)
    : console_(std::move(console)),
      txtDebug_(new DebugTextView(*console_, this)),
      findBar_(
          new FindBar(std::make_unique<FindInText<DebugTextView>>(*txtDebug_), tr("Find"), this)),
      lblStatus_(new StatusLabel("lblStatus", this)),
      chkNoLog_(MakeBox("chkNoLog", tr("STOP logging"), &DebugConsole::StopLogging)),
      chkToFile_(MakeBox("chkToFile", tr("All goes to file"), &DebugConsole::SendAllToFile)),
      Check1_(MakeBox("Check1", tr("Keep on top"), &DebugConsole::KeepOnTop)) {
    setObjectName(QLatin1String("frmDebug"));
    setWindowTitle(tr("DEBUG"));
    setAttribute(Qt::WA_QuitOnClose, false);
    lblStatus_->setWordWrap(true);
    lblStatus_->hide();
    BuildLayout();
    BuildShortcuts();
    PlaceInCorner(desktop);
    console_->Changed = [this] { Sync(); };
    Sync();
}

frmDebug::~frmDebug() {
    console_->Changed = nullptr;
}

QCheckBox* frmDebug::MakeBox(const char* name, const QString& caption,
                             void (DebugConsole::*set)(bool)) {
    auto* const box = new QCheckBox(caption);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(caption);
    box->setMinimumHeight(design::kMinTarget);
    connect(box, &QCheckBox::clicked, this, [this, set](bool checked) {
        GuardEvent(u"frmDebug.Check_Click", [&] { ((*console_).*set)(checked); });
    });
    return box;
}

template <class Act>
QPushButton* frmDebug::MakeButton(const char* name, const QString& caption, const Act& act) {
    QPushButton* const button = design::NewButton(name, caption);
    connect(button, &QPushButton::clicked, this,
            [act] { GuardEvent(u"frmDebug.Command_Click", act); });
    return button;
}

void frmDebug::BuildLayout() {
    auto* const boxes = new QHBoxLayout;
    boxes->setSpacing(design::Margin());
    for (QWidget* const box : {chkNoLog_, chkToFile_, Check1_}) boxes->addWidget(box);
    boxes->addStretch();
    auto* const rows = new QVBoxLayout(this);
    design::SpaceOut(*rows);
    rows->addLayout(boxes);
    rows->addWidget(txtDebug_, 1);
    rows->addWidget(findBar_);
    rows->addWidget(lblStatus_);
    rows->addLayout(MakeButtonRow());
    OutlineBoxes();
}

QLayout* frmDebug::MakeButtonRow() {
    QPushButton* const clear = MakeButton("cmdClear", tr("Clear"), [this] { console_->Clear(); });
    QPushButton* const save = MakeButton("Command1", tr("Save to File"), [this] {
        Tell(console_->SaveToFile(), tr("Saved to %1"));
    });
    QPushButton* const kill = MakeButton("Command2", tr("Kill log file"), [this] {
        Tell(console_->KillLogFile(), tr("Deleted %1"));
    });
    const QString file = ToQString(console_->LogFile());
    const auto explain = [](QPushButton* button, const QString& what) {
        button->setToolTip(ToToolTip(what));
        button->setAccessibleDescription(what);  // which would else be the tool tip's markup
    };
    clear->setToolTip(tr("Clear (F7)"));
    explain(save, tr("Adds the lines to %1").arg(file));
    explain(kill, tr("Deletes %1").arg(file));
    design::MakeAlike({clear, save, kill});
    auto* const row = new QHBoxLayout;
    row->setSpacing(design::Gap());
    row->addStretch();
    row->addWidget(clear);
    row->addWidget(save);
    row->addSpacing(3 * design::Margin());  // keeps it from being hit by mistake
    row->addWidget(kill);
    return row;
}

void frmDebug::Tell(bool done, const QString& what) {
    lblStatus_->setVisible(done);
    lblStatus_->Tell(done ? what.arg(ToQString(console_->LogFile())) : QString());
}

void frmDebug::OutlineBoxes() {
    const QPalette outlined = WithVisibleOutline(palette());
    for (QWidget* const box : {chkNoLog_, chkToFile_, Check1_}) box->setPalette(outlined);
}

void frmDebug::BuildShortcuts() {
    const auto add = [this](const QKeySequence& keys, const auto& act) {
        auto* const shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this,
                [act] { GuardEvent(u"frmDebug.Form_KeyDown", act); });
    };
    add(Qt::Key_F7, [this] { console_->Clear(); });
    add(QKeySequence::Find, [this] { findBar_->Open(); });
    add(Qt::Key_F3, [this] { findBar_->FindNext(false); });
    add(Qt::SHIFT | Qt::Key_F3, [this] { findBar_->FindNext(true); });
}

void frmDebug::ShowInBackground() {
    if (isVisible() || ProgramIsLeaving(windowHandle())) return;
    winId();  // creates the window handle
    windowHandle()->setTransientParent(nullptr);
    WindowOpening::ShowInBackground(*this);
}

// Out of the way of the windows that people work in.
void frmDebug::PlaceInCorner(const Desktop& desktop) {
    const Size added = desktop.FrameSize();
    const QSize frame(TwipsToPixels(added.width), TwipsToPixels(added.height));
    const QRect usable = ToQRect(desktop.ScreenRect());
    // Large letters ask for more, and the find bar may open.
    const int findBar = findBar_->minimumSizeHint().width() + 2 * design::Margin();
    const QSize inner = kSize.expandedTo(minimumSizeHint()).expandedTo(QSize(findBar, 0));
    const QSize outer = (inner + frame).boundedTo(usable.size());
    resize(outer - frame);
    move(usable.right() + 1 - outer.width(), usable.bottom() + 1 - outer.height());
}

bool frmDebug::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) KeepUsable();
    if (event->type() == QEvent::PaletteChange) OutlineBoxes();
    return QWidget::event(event);
}

// People read the console beside a modal dialog, too. A modal dialog does not block windows that
// belong to it. When it is gone, the one below it blocks the console, and Qt tells nobody.
void frmDebug::KeepUsable() {
    constexpr int kOnceLater = Qt::QueuedConnection | Qt::UniqueConnection;
    QWindow* const dialog = QGuiApplication::modalWindow();
    if (dialog == nullptr || windowHandle() == nullptr) return;
    windowHandle()->setTransientParent(dialog);
    connect(dialog, &QObject::destroyed, this, &frmDebug::KeepUsable,
            static_cast<Qt::ConnectionType>(kOnceLater));
}

void frmDebug::Sync() {
    chkNoLog_->setChecked(console_->LoggingStopped());
    chkToFile_->setChecked(console_->AllGoesToFile());
    Check1_->setChecked(console_->KeptOnTop());
    SyncOnTop();
    txtDebug_->Refresh();
}

// Through the window's handle: the widget's own call would make a new window.
void frmDebug::SyncOnTop() {
    const bool keep = console_->KeptOnTop();
    if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) == keep) return;
    overrideWindowFlags(windowFlags().setFlag(Qt::WindowStaysOnTopHint, keep));
    if (windowHandle() != nullptr) windowHandle()->setFlag(Qt::WindowStaysOnTopHint, keep);
}

}  // namespace halvek
