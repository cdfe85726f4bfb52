// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/help/HelpBrowser.h>
#include <halvekutils/qt/help/HelpEntryTree.h>
#include <halvekutils/qt/help/HelpIcons.h>
#include <halvekutils/qt/help/HelpIndexPane.h>
#include <halvekutils/qt/help/HelpPrint.h>
#include <halvekutils/qt/help/HelpSearchPane.h>
#include <halvekutils/qt/help/HelpViewer.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FieldOutline.h>
#include <halvekutils/qt/helpers/FindBar.h>
#include <halvekutils/qt/helpers/FocusRing.h>
#include <halvekutils/qt/helpers/WindowOpening.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QSplitter>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <array>
#include <exception>
#include <iterator>
#include <vector>

namespace halvek {

namespace {

constexpr QSize kOrdinarySize(920, 640);
constexpr int kContentsWidth = 260;
constexpr std::array kZooms = {50, 67, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300};

QToolButton* ButtonOf(QAction* action) {
    auto* const button = new QToolButton;
    button->setObjectName(QLatin1String("cmd") + action->objectName().mid(3));
    button->setDefaultAction(action);
    button->setAccessibleName(action->text());
    button->setFocusPolicy(Qt::StrongFocus);
    new FocusRing(*button);
    button->setToolButtonStyle(action->icon().isNull() ? Qt::ToolButtonTextOnly
                                                       : Qt::ToolButtonTextBesideIcon);
    button->setMinimumHeight(std::max(button->sizeHint().height(), design::kMinTarget));
    return button;
}

/// A window, its owner and so on, each once: Qt allows windows that own each other.
std::vector<QWindow*> OwnersFrom(QWindow* window) {
    std::vector<QWindow*> owners;
    while (window != nullptr && std::ranges::find(owners, window) == owners.end()) {
        owners.push_back(window);
        window = window->transientParent();
    }
    return owners;
}

bool IsAmong(const std::vector<QWindow*>& windows, const QWindow* window) {
    return std::ranges::find(windows, window) != windows.end();
}

/// If `lower` owns `window` or one of its owners, removes `lower` from that chain.
void TakeOut(QWindow& lower, QWindow* window) {
    for (QWindow* const owned : OwnersFrom(window)) {
        if (owned->transientParent() != &lower) continue;
        QWindow* const below = lower.transientParent();
        owned->setTransientParent(IsAmong(OwnersFrom(below), owned) ? nullptr : below);
    }
}

}  // namespace

HelpViewer::HelpViewer()
    : browser_(new HelpBrowser),
      columns_(new QSplitter),
      panes_(new QTabWidget),
      contents_(new HelpEntryTree("trvContents", tr("Contents"))),
      index_(new HelpIndexPane),
      search_(new HelpSearchPane),
      find_(new FindBar(std::make_unique<FindInText<HelpBrowser>>(*browser_),
                        tr("Find in this page"))) {
    notice_ = MakeNotice();
    setObjectName(QLatin1String("HelpViewer"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(tr("Help"));
    browser_->setObjectName(QLatin1String("txtPage"));
    MakePanes();
    new FieldOutline(*browser_);
    auto* const page = new QWidget;
    auto* const pageColumn = new QVBoxLayout(page);
    pageColumn->setContentsMargins(0, 0, 0, 0);
    pageColumn->setSpacing(design::Gap());
    pageColumn->addWidget(browser_);
    pageColumn->addWidget(notice_);
    columns_->addWidget(panes_);
    columns_->addWidget(page);
    columns_->setStretchFactor(1, 1);
    columns_->setChildrenCollapsible(false);
    setContextMenuPolicy(Qt::NoContextMenu);  // would hide the tools
    MakeTools();
    auto* const body = new QWidget;
    auto* const rows = new QVBoxLayout(body);
    const int margin = design::Margin();
    rows->setContentsMargins(margin, 0, margin, margin);
    rows->setSpacing(design::Gap());
    rows->addWidget(columns_);
    rows->addWidget(find_);  // beside the panes, large letters would leave it no room
    setCentralWidget(body);
    setTabOrder(panes_, browser_);
    connect(browser_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        GuardEvent(u"HelpViewer.Link_Click", [&] { Follow(link); });
    });
    connect(browser_, &HelpBrowser::PageShown, this, [this] {
        GuardEvent(u"HelpViewer.PageShown", [this] {
            notice_->hide();
            contents_->Mark(Shown());
            ShowTitle();
        });
    });
    connect(browser_, &HelpBrowser::ZoomAsked, this,
            [this](int step) { GuardEvent(u"HelpViewer.Wheel", [&] { ChangeZoom(step); }); });
    ConnectPanes();
}

// The owner may hide while the viewer's parts go.
HelpViewer::~HelpViewer() {
    disconnect(ownerHides_);
}

QAction* HelpViewer::MakeAction(const char* name, const QString& caption, const QString& keys,
                                const std::function<void()>& run) {
    auto* const action = new QAction(caption, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(QKeySequence::listFromString(keys));
    action->setToolTip(
        QStringLiteral("%1 (%2)").arg(caption, keys.section(QLatin1String("; "), 0, 0)));
    connect(action, &QAction::triggered, this,
            [run] { GuardEvent(u"HelpViewer.Tool_Click", run); });
    addAction(action);
    return action;
}

void HelpViewer::MakeTools() {
    QAction* const back =
        MakeAction("actBack", tr("Back"), QStringLiteral("Alt+Left; Backspace; Back"),
                   [this] { browser_->backward(); });
    QAction* const forward =
        MakeAction("actForward", tr("Forward"), QStringLiteral("Alt+Right; Forward"),
                   [this] { browser_->forward(); });
    home_ = MakeAction("actHome", tr("Home"), QStringLiteral("Alt+Home"), [this] { GoHome(); });
    showContents_ = MakeAction("actContents", tr("Contents"), QStringLiteral("F9"),
                               [this] { panes_->setVisible(showContents_->isChecked()); });
    showContents_->setCheckable(true);
    QAction* const find =
        MakeAction("actFind", tr("Find"), QStringLiteral("Ctrl+F"), [this] { find_->Open(); });
    QAction* const print =
        MakeAction("actPrint", tr("Print"), QStringLiteral("Ctrl+P"), [this] { Print(); });
    MakeAction("actIndex", tr("Index"), QStringLiteral("Ctrl+I"), [this] { TurnTo(index_); });
    MakeAction("actSearch", tr("Search"), QStringLiteral("Ctrl+Shift+F"),
               [this] { TurnTo(search_); });
    MakeAction("actFindNext", tr("Find next"), QStringLiteral("F3; Ctrl+G"),
               [this] { find_->FindNext(false); });
    MakeAction("actFindPrevious", tr("Find previous"), QStringLiteral("Shift+F3; Ctrl+Shift+G"),
               [this] { find_->FindNext(true); });
    MakeAction("actClose", tr("Close"), QStringLiteral("Ctrl+W"), [this] { close(); });
    back->setIcon(HelpIcon(HelpPicture::Back));
    forward->setIcon(HelpIcon(HelpPicture::Forward));
    home_->setIcon(HelpIcon(HelpPicture::Home));
    showContents_->setIcon(HelpIcon(HelpPicture::Contents));
    find->setIcon(HelpIcon(HelpPicture::Find));
    print->setIcon(HelpIcon(HelpPicture::Print));
    for (QAction* const action : {back, forward}) action->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);

    QAction* const smaller = MakeAction("actSmaller", tr("Smaller"), QStringLiteral("Ctrl+-"),
                                        [this] { ChangeZoom(-1); });
    QAction* const larger = MakeAction("actLarger", tr("Larger"), QStringLiteral("Ctrl++; Ctrl+="),
                                       [this] { ChangeZoom(1); });
    ordinarySize_ = MakeAction("actOrdinarySize", tr("100%"), QStringLiteral("Ctrl+0"),
                               [this] { ChangeZoom(0); });
    ordinarySize_->setToolTip(tr("Ordinary size (Ctrl+0)"));

    smaller->setIcon(HelpIcon(HelpPicture::Smaller));
    larger->setIcon(HelpIcon(HelpPicture::Larger));

    tools_ = new QWidget;
    auto* const row = new QHBoxLayout(tools_);
    const int margin = design::Margin();
    row->setContentsMargins(margin, margin, margin, design::Gap());
    row->setSpacing(design::Gap());
    for (QAction* const action : {back, forward, home_, showContents_, find, print}) {
        row->addWidget(ButtonOf(action));
    }
    row->addStretch();
    for (QAction* const action : {smaller, ordinarySize_, larger}) {
        row->addWidget(ButtonOf(action));
    }
    setMenuWidget(tools_);
}

/// In a window that is too narrow for their words, the tools that have icons show only these.
void HelpViewer::FitTools() {
    const auto show = [this](Qt::ToolButtonStyle style) {
        for (QToolButton* const tool : tools_->findChildren<QToolButton*>()) {
            if (!tool->icon().isNull()) tool->setToolButtonStyle(style);
        }
    };
    show(Qt::ToolButtonTextBesideIcon);
    if (tools_->layout()->minimumSize().width() > width()) show(Qt::ToolButtonIconOnly);
}

void HelpViewer::resizeEvent(QResizeEvent* event) {
    FitTools();
    QMainWindow::resizeEvent(event);
}

QWidget* HelpViewer::MakeNotice() {
    auto* const notice = new QFrame;
    notice->setFrameShape(QFrame::StyledPanel);
    lblOutside_ = new QLabel;
    lblOutside_->setObjectName(QLatin1String("lblOutside"));
    lblOutside_->setTextFormat(Qt::PlainText);
    lblOutside_->setWordWrap(true);
    lblOutside_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* const copy = new QToolButton;
    copy->setObjectName(QLatin1String("cmdCopyAddress"));
    copy->setText(tr("Copy address"));
    copy->setAccessibleName(copy->text());
    copy->setMinimumHeight(design::kMinTarget);
    copy->setFocusPolicy(Qt::StrongFocus);
    new FocusRing(*copy);
    connect(copy, &QToolButton::clicked, this, [this] {
        GuardEvent(u"HelpViewer.cmdCopyAddress_Click", [this] {
            QGuiApplication::clipboard()->setText(notice_->property("address").toString());
        });
    });
    auto* const row = new QHBoxLayout(notice);
    row->addWidget(lblOutside_, 1);
    row->addWidget(copy);
    notice->hide();
    return notice;
}

void HelpViewer::ShowContext(const std::filesystem::path& file, std::int32_t contextId) {
    Open(file);
    const auto topic = help_->TopicOfContext(contextId);
    if (topic) {
        ShowPage(*topic);
        return;
    }
    browser_->ShowMissingContext(contextId);
    BringForward();
    throw RuntimeError(Fault::FileNotFound, FromUtf8(file.native()) + u": context number " +
                                                QString::number(contextId).toStdU16String());
}

void HelpViewer::ShowTopic(const std::filesystem::path& file, TextIn topic) {
    Open(file);
    HelpTopic asked = help_->TopicOf(topic);
    if (asked.path.empty()) asked.path = help_->DefaultTopic().path;
    ShowPage(asked);
}

void HelpViewer::Open(const std::filesystem::path& file) {
    if (help_ != nullptr && help_->File() == file) return;
    help_ = nullptr;
    std::exception_ptr fault;
    std::u16string description;
    try {
        help_ = std::make_shared<CompiledHelp>(file, DecodedHelpText);
    } catch (const std::exception& caught) {
        fault = std::current_exception();
        description = AsRuntimeError(caught).Description();
    }
    browser_->SetHelp(help_, description);
    ShowTitle();
    home_->setEnabled(help_ != nullptr);
    FillPanes();
    if (fault == nullptr) return;
    BringForward();
    std::rethrow_exception(fault);
}

/// The page's heading, then the file's.
void HelpViewer::ShowTitle() {
    const QString file = help_ == nullptr ? tr("Help") : ToQString(help_->Title());
    const QString page = browser_->documentTitle();
    const bool isTold = page.isEmpty() || page == file;
    setWindowTitle(ToWindowTitle(isTold ? file : tr("%1 - %2").arg(page, file)));
}

void HelpViewer::ShowPage(const HelpTopic& topic) {
    browser_->ShowTopic(topic);
    BringForward();
    if (help_->Has(topic.path)) return;
    throw RuntimeError(Fault::FileNotFound, FromUtf8(help_->File().native()) + u"::" + topic.path);
}

void HelpViewer::BringForward() {
    WindowOpening& opening = WindowOpening::OfApplication();
    if (!isVisible() && !testAttribute(Qt::WA_Moved)) {
        const QRect usable = WindowOpening::UsableArea(opening.Screen());
        resize(kOrdinarySize.boundedTo(usable.size() * 9 / 10));
        const QSize outer = size() + WindowOpening::FrameSize();
        move(opening.Centred(outer, opening.Owner()).topLeft());
        ShareWidth();
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    winId();  // creates the window handle
    StayAboveDialogs();
    opening.Show(*this);
    browser_->setFocus(Qt::OtherFocusReason);
}

/// A modal dialog blocks every window that does not belong to it, so the viewer belongs to the one
/// that is open, even when that was opened while the viewer was active.
void HelpViewer::StayAboveDialogs() {
    const QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || windowHandle() == nullptr || IsPreviewing()) return;
    QWindow* const above = dialog->window()->windowHandle();
    if (above == nullptr || above == windowHandle() || !above->isVisible()) return;
    TakeOut(*windowHandle(), above);
    BelongTo(above);
}

/// Its own preview blocks the viewer, whatever else is open.
bool HelpViewer::IsPreviewing() const {
    return std::ranges::any_of(findChildren<QDialog*>(), &QDialog::isVisible);
}

/// Until the owner hides: if it opens again, perhaps from the viewer, neither may own the other.
void HelpViewer::BelongTo(QWindow* owner) {
    disconnect(ownerHides_);
    if (owner != nullptr) {
        ownerHides_ = connect(owner, &QWindow::visibleChanged, this, [this, owner](bool visible) {
            if (visible) return;
            QWindow* const below = owner->transientParent();
            const bool isOpen = below != nullptr && below->isModal() && below->isVisible();
            BelongTo(isOpen && !IsAmong(OwnersFrom(below), windowHandle()) ? below : nullptr);
        });
    }
    windowHandle()->setTransientParent(owner);
}

bool HelpViewer::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) {
        GuardEvent(u"HelpViewer.Blocked", [this] { StayAboveDialogs(); });
    } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
        for (QDialog* const preview : findChildren<QDialog*>()) preview->close();
    }
    return QMainWindow::event(event);
}

void HelpViewer::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) {
        QMainWindow::keyPressEvent(event);
    } else if (search_->Stop()) {
        return;
    } else if (find_->isVisible()) {
        find_->Close();
    } else {
        notice_->hide();
    }
}

void HelpViewer::MakePanes() {
    // Not without a parent while they are in no tab
    for (QWidget* const pane : {static_cast<QWidget*>(contents_), static_cast<QWidget*>(index_)}) {
        pane->setParent(panes_);
        pane->hide();
    }
    panes_->setObjectName(QLatin1String("tabPanes"));
    panes_->tabBar()->setObjectName(QLatin1String("tabsPanes"));
    panes_->addTab(search_, tr("Search"));
    panes_->setDocumentMode(true);
    panes_->setUsesScrollButtons(false);
    panes_->setElideMode(Qt::ElideRight);
}

/// The panes get what their tabs need, the page the larger part of a small window.
void HelpViewer::ShareWidth() {
    const int wanted = std::max(kContentsWidth, panes_->tabBar()->sizeHint().width());
    const int panes = std::min(wanted, width() * 2 / 5);
    columns_->setSizes({panes, width() - panes});
}

void HelpViewer::ConnectPanes() {
    const auto go = [this](const HelpEntry& entry) {
        GuardEvent(u"HelpViewer.Contents_Click", [&] { GoTo(entry); });
    };
    connect(contents_, &HelpEntryTree::Chosen, this, go);
    connect(index_, &HelpIndexPane::Chosen, this, go);
    connect(search_, &HelpSearchPane::Chosen, this,
            [this](const QString& path, const QString& word) {
                GuardEvent(u"HelpViewer.Found_Click", [&] { GoToFound(path, word); });
            });
}

/// A file without contents or index has no tab for them, and without either opens without panes.
void HelpViewer::FillPanes() {
    static const std::vector<HelpEntry> none;
    const auto& contents = help_ == nullptr ? none : help_->Contents();
    const auto& index = help_ == nullptr ? none : help_->Index();
    contents_->Fill(contents);
    index_->Fill(index);
    search_->SetHelp(help_);
    panes_->clear();
    if (!contents.empty()) panes_->addTab(contents_, tr("Contents"));
    if (!index.empty()) panes_->addTab(index_, tr("Index"));
    panes_->addTab(search_, tr("Search"));
    showContents_->setEnabled(help_ != nullptr);
    showContents_->setChecked(!contents.empty() || !index.empty());
    panes_->setVisible(showContents_->isChecked());
}

void HelpViewer::TurnTo(QWidget* pane) {
    if (help_ == nullptr || panes_->indexOf(pane) < 0) return;
    showContents_->setChecked(true);
    panes_->show();
    panes_->setCurrentWidget(pane);
    if (pane == index_) index_->TakeKeyboard();
    if (pane == search_) search_->TakeKeyboard();
}

HelpTopic HelpViewer::Shown() const {
    const QUrl shown = browser_->source();
    return {shown.path(QUrl::FullyDecoded).toStdU16String(),
            shown.fragment(QUrl::FullyDecoded).toStdU16String()};
}

void HelpViewer::Follow(const QUrl& link) {
    const QUrl address = browser_->source().resolved(link);
    if (browser_->IsInside(address)) {
        browser_->setSource(address);
    } else {
        OpenOutside(link.toString());
    }
}

void HelpViewer::OpenOutside(const QString& address) {
    if (openOutside_ && openOutside_(address)) return;
    notice_->setProperty("address", address);
    lblOutside_->setText(tr("This address is outside of the help and is not opened: %1")
                             .arg(ToQString(TextIn(address).substr(0, 500))));
    notice_->show();
}

void HelpViewer::GoTo(const HelpEntry& entry) {
    if (!entry.outside.empty()) {
        OpenOutside(ToQString(entry.outside));
    } else {
        browser_->setSource(browser_->AddressOf(entry.topic));
    }
}

/// Shows the first place of the word; F3 goes to the next.
void HelpViewer::GoToFound(const QString& path, const QString& word) {
    browser_->setSource(browser_->AddressOf({path.toStdU16String(), {}}));
    find_->FindFirst(word);
}

void HelpViewer::Print() {
    const QString title = browser_->documentTitle();
    ShowPrintPreview(this, *browser_->document(), title.isEmpty() ? windowTitle() : title);
}

void HelpViewer::GoHome() {
    if (help_ != nullptr) browser_->setSource(browser_->AddressOf(help_->DefaultTopic()));
}

void HelpViewer::ChangeZoom(int step) {
    const auto at = std::ranges::lower_bound(kZooms, browser_->Zoom()) - kZooms.begin();
    const auto last = static_cast<std::ptrdiff_t>(kZooms.size()) - 1;
    const auto next = std::clamp<std::ptrdiff_t>(at + step, 0, last);
    browser_->SetZoom(step == 0 ? 100 : kZooms[static_cast<std::size_t>(next)]);
    ordinarySize_->setText(QStringLiteral("%1%").arg(browser_->Zoom()));
}

}  // namespace halvek
