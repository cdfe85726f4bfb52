// SPDX-License-Identifier: MIT
#include <halvekutils/qt/forms/EventGuard.h>
#include <halvekutils/qt/forms/Keys.h>
#include <halvekutils/qt/forms/Metrics.h>
#include <halvekutils/qt/forms/MonthView.h>
#include <halvekutils/qt/forms/frmCalendar.h>

#include <QCloseEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace halvek {

frmCalendar::frmCalendar(std::shared_ptr<Calendar> rules, const Desktop& desktop)
    : rules_(std::move(rules)),
      MonthView1_(new MonthView(*rules_, this)),
      Command1_(new QPushButton(tr("Close Calendar"), this)),
      show_(*this, [this] { CloseByUser(); }) {
    setObjectName(QLatin1String("frmCalendar"));
    setAccessibleName(tr("Calendar"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    // No title; an empty one would become the application's name.
    setWindowTitle(QStringLiteral(" "));
    Command1_->setFont(ToQFont({u"Tahoma", 8}));
    Command1_->setObjectName(QLatin1String("Command1"));
    Command1_->setAccessibleName(Command1_->text());
    Command1_->setAutoDefault(false);
    connect(Command1_, &QPushButton::clicked, this, &frmCalendar::CloseByUser);
    for (QWidget* const part : findChildren<QWidget*>()) {
        part->setMouseTracking(true);
        part->installEventFilter(this);
    }
    ApplyLayout(desktop);
    rules_->Changed = [this] { Sync(); };
}

frmCalendar::~frmCalendar() {
    rules_->Changed = nullptr;
    rules_->Close();
}

void frmCalendar::ApplyLayout(const Desktop& desktop) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(MonthView1_);
    column->addWidget(Command1_);
    setFixedSize(sizeHint());
    const Size frame = desktop.FrameSize();
    const Size outer = {PixelsToTwips(width()) + frame.width,
                        PixelsToTwips(height()) + frame.height};
    place_ = PlacePopup(rules_->Anchor(), outer, ScreenOf(rules_->Anchor(), desktop));
}

void frmCalendar::ShowModal() {
    show_.Modal([this](const QWidget*) {
        return QPoint(TwipsToPixels(place_.left), TwipsToPixels(place_.top));
    });
}

void frmCalendar::Sync() {
    MonthView1_->Refresh();
    if (!rules_->IsOpen()) show_.End();
}

bool frmCalendar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        const QPoint at = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
        // A calendar that opens under a resting pointer keeps the focus on its days.
        if (at != pointerRestsAt_) {
            pointerRestsAt_.reset();
            FollowPointer(*static_cast<QWidget*>(watched));
        }
    }
    return QDialog::eventFilter(watched, event);
}

void frmCalendar::FollowPointer(const QWidget& over) {
    if (&over == Command1_) {
        Command1_->setFocus(Qt::MouseFocusReason);
    } else {
        MonthView1_->TakeFocus();
    }
}

// Reached by keys that no control took. QDialog would press buttons on Enter.
void frmCalendar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape || (IsEnter(*event) && Command1_->hasFocus())) CloseByUser();
    event->accept();
}

void frmCalendar::CloseByUser() {
    GuardEvent(u"frmCalendar.Command1_Click", [this] { rules_->Close(); });
}

void frmCalendar::closeEvent(QCloseEvent* event) {
    CloseByUser();
    event->setAccepted(!rules_->IsOpen());
}

void frmCalendar::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    pointerRestsAt_ = QCursor::pos();
    MonthView1_->setFocus(Qt::OtherFocusReason);
}

void frmCalendar::reject() {
    CloseByUser();
}

}  // namespace halvek
