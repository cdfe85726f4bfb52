// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/help/HelpSearchPane.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FieldOutline.h>
#include <halvekutils/qt/helpers/StatusLabel.h>

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimerEvent>
#include <QVBoxLayout>

#include <utility>

namespace halvek {

namespace {

constexpr int kPathRole = Qt::UserRole;
constexpr int kMaxWordsLength = 200;
constexpr qint64 kTurn = 30;  // milliseconds of searching between two looks at the user's keys

}  // namespace

HelpSearchPane::HelpSearchPane()
    : txtSearch_(new QLineEdit),
      cmdSearch_(design::NewButton("cmdSearch", tr("Search"))),
      lstFound_(new QListWidget),
      lblSearch_(new StatusLabel("lblSearch")) {
    txtSearch_->setObjectName(QLatin1String("txtSearch"));
    txtSearch_->setAccessibleName(tr("Words to search for in all pages"));
    txtSearch_->setPlaceholderText(tr("Words in all pages"));
    txtSearch_->setMaxLength(kMaxWordsLength);
    txtSearch_->setClearButtonEnabled(true);
    lstFound_->setObjectName(QLatin1String("lstFound"));
    lstFound_->setAccessibleName(tr("Pages found"));
    lstFound_->setWordWrap(true);
    lstFound_->setSpacing(2);
    lstFound_->setTextElideMode(Qt::ElideNone);
    lstFound_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstFound_->setResizeMode(QListView::Adjust);
    lblSearch_->setWordWrap(true);
    new FieldOutline(*txtSearch_);
    new FieldOutline(*lstFound_);
    auto* const row = new QHBoxLayout;
    row->setSpacing(design::Gap());
    row->addWidget(txtSearch_, 1);
    row->addWidget(cmdSearch_);
    auto* const column = new QVBoxLayout(this);
    design::SpaceOut(*column);
    column->addLayout(row);
    column->addWidget(lblSearch_);
    column->addWidget(lstFound_, 1);
    connect(txtSearch_, &QLineEdit::returnPressed, this,
            [this] { GuardEvent(u"HelpViewer.txtSearch_Enter", [this] { Start(); }); });
    connect(cmdSearch_, &QPushButton::clicked, this, [this] {
        GuardEvent(u"HelpViewer.cmdSearch_Click", [this] {
            if (!Stop()) Start();
        });
    });
    const auto choose = [this](const QListWidgetItem* item) {
        GuardEvent(u"HelpViewer.Found_Click", [&] { Choose(item); });
    };
    connect(lstFound_, &QListWidget::itemClicked, this, choose);
    connect(lstFound_, &QListWidget::itemActivated, this, choose);
}

HelpSearchPane::~HelpSearchPane() = default;

void HelpSearchPane::SetHelp(std::shared_ptr<CompiledHelp> help) {
    Stop();
    help_ = std::move(help);
    search_ = nullptr;
    lstFound_->clear();
    lblSearch_->Tell({});
    setEnabled(help_ != nullptr);
}

void HelpSearchPane::TakeKeyboard() {
    txtSearch_->setFocus(Qt::ShortcutFocusReason);
    txtSearch_->selectAll();
}

void HelpSearchPane::Start() {
    if (help_ == nullptr) return;
    lstFound_->clear();
    search_ = std::make_unique<HelpSearch>(help_, txtSearch_->text());
    isStopped_ = false;
    if (search_->Words().empty()) {
        search_ = nullptr;
        lblSearch_->Tell({});
        return;
    }
    cmdSearch_->setText(tr("Stop"));
    timer_.start(0, this);
}

bool HelpSearchPane::Stop() {
    if (!timer_.isActive()) return false;
    timer_.stop();
    isStopped_ = true;
    ShowProgress();
    return true;
}

void HelpSearchPane::timerEvent(QTimerEvent* event) {
    if (event->timerId() != timer_.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    GuardEvent(u"HelpViewer.Search", [this] {
        try {
            Search();
        } catch (...) {
            Stop();
            throw;
        }
    });
}

void HelpSearchPane::Search() {
    QElapsedTimer turn;
    turn.start();
    while (!search_->AtEnd() && turn.elapsed() < kTurn) search_->Step();
    if (search_->AtEnd()) timer_.stop();
    ListFound();
    ShowProgress();
}

void HelpSearchPane::ListFound() {
    const auto& found = search_->Found();
    for (auto i = static_cast<std::size_t>(lstFound_->count()); i < found.size(); ++i) {
        const HelpFind& find = found[i];
        const QString title = tr("%1 (%2)").arg(ToQString(find.title)).arg(find.places);
        auto* const item = new QListWidgetItem(
            QStringLiteral("%1\n%2").arg(title, ToQString(find.excerpt)), lstFound_);
        item->setData(kPathRole, ToQString(find.path));
    }
}

void HelpSearchPane::ShowProgress() {
    const auto pages = [](std::size_t count) {
        return count == 1 ? tr("1 page") : tr("%1 pages").arg(count);
    };
    const std::size_t count = search_->Found().size();
    const bool isRunning = timer_.isActive();
    QString told = count == 0 && !isRunning ? tr("Not found") : tr("Found in %1").arg(pages(count));
    if (isRunning) told = tr("%1 %: %2").arg(search_->Percent()).arg(told);
    if (isStopped_) told = tr("Stopped. %1").arg(told);
    if (count >= 1000) told = tr("%1; there are more").arg(told);
    if (!isRunning && search_->Unreadable() > 0) {
        told = tr("%1; %2 cannot be read").arg(told, pages(search_->Unreadable()));
    }
    lblSearch_->Tell(told);
    cmdSearch_->setText(isRunning ? tr("Stop") : tr("Search"));
}

void HelpSearchPane::Choose(const QListWidgetItem* item) {
    const QString word = ToQString(search_->Words().front());
    emit Chosen(item->data(kPathRole).toString(), word);
}

}  // namespace halvek
