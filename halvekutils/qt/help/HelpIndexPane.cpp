// SPDX-License-Identifier: MIT
#include <halvekutils/qt/help/HelpIndexPane.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FieldOutline.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

namespace halvek {

HelpIndexPane::HelpIndexPane()
    : txtIndex_(new QLineEdit), trvIndex_(new HelpEntryTree("trvIndex", tr("Index"))) {
    txtIndex_->setObjectName(QLatin1String("txtIndex"));
    txtIndex_->setAccessibleName(tr("Keyword"));
    txtIndex_->setPlaceholderText(tr("Keyword"));
    txtIndex_->setClearButtonEnabled(true);
    txtIndex_->installEventFilter(this);
    new FieldOutline(*txtIndex_);
    trvIndex_->setIndentation(trvIndex_->indentation() * 3 / 4);
    auto* const column = new QVBoxLayout(this);
    design::SpaceOut(*column);
    column->addWidget(txtIndex_);
    column->addWidget(trvIndex_);
    connect(txtIndex_, &QLineEdit::textEdited, this, [this](const QString& typed) {
        GuardEvent(u"HelpViewer.txtIndex_Change", [&] { trvIndex_->GoToStart(typed); });
    });
    connect(trvIndex_, &HelpEntryTree::Chosen, this, &HelpIndexPane::Chosen);
}

void HelpIndexPane::Fill(const std::vector<HelpEntry>& entries) {
    txtIndex_->clear();
    trvIndex_->Fill(entries);
}

void HelpIndexPane::TakeKeyboard() {
    txtIndex_->setFocus(Qt::ShortcutFocusReason);
    txtIndex_->selectAll();
}

/// Arrows, Page keys and Enter in the box are meant for the list.
bool HelpIndexPane::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
            case Qt::Key_Up:
            case Qt::Key_Down:
            case Qt::Key_PageUp:
            case Qt::Key_PageDown:
            case Qt::Key_Return:
            case Qt::Key_Enter:
                return QCoreApplication::sendEvent(trvIndex_, event);
            default:
                break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace halvek
