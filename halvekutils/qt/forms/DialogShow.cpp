#include <halvekutils/qt/forms/DialogShow.h>
#include <halvekutils/qt/forms/ModalOwner.h>

#include <QGuiApplication>

#include <utility>

namespace halvek {

DialogShow::DialogShow(QDialog& dialog, std::function<void()> abandon)
    : dialog_(dialog), abandon_(std::move(abandon)) {}

DialogShow::~DialogShow() {
    RestorePointer();
}

void DialogShow::Modal(const Place& place) {
    QWidget* const owner = Owner();
    Open(owner, Qt::ApplicationModal, place);
    if (owner != nullptr) {
        QObject::connect(owner, &QObject::destroyed, &dialog_, [this] { abandon_(); });
    }
    if (!ended_) loop_.exec();
    abandon_();
}

void DialogShow::Modeless(const Place& place) {
    Open(Owner(), Qt::NonModal, place);
}

void DialogShow::End() {
    ended_ = true;
    RestorePointer();
    dialog_.hide();
    loop_.quit();
}

QWidget* DialogShow::Owner() const {
    QWidget* const current = CurrentOwner();
    return current == &dialog_ ? nullptr : current;
}

void DialogShow::Open(QWidget* owner, Qt::WindowModality modality, const Place& place) {
    dialog_.hide();
    dialog_.setWindowModality(modality);
    SetOwner(dialog_, owner);
    dialog_.move(place(owner));
    ShowArrowPointer();
    dialog_.show();
    dialog_.setAttribute(Qt::WA_KeyboardFocusChange);  // shows at once where the focus is
    dialog_.activateWindow();
}

void DialogShow::ShowArrowPointer() {
    // A busy cursor of the host's would show over the dialog.
    if (pointerSaved_ || QGuiApplication::overrideCursor() == nullptr) return;
    QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    pointerSaved_ = true;
}

void DialogShow::RestorePointer() {
    if (std::exchange(pointerSaved_, false)) QGuiApplication::restoreOverrideCursor();
}

}  // namespace halvek
