// SPDX-License-Identifier: MIT
#include "ClientWindow.h"

#include "Shown.h"

#include <halvekutils/qt/QtText.h>

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace frontdesk {

using halvek::ToQString;

namespace {

constexpr QSize kSize(360, 180);

template <class Use>
void ForEachOpen(const Use& use) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = dynamic_cast<ClientWindow*>(widget);
        if (window != nullptr && window->isVisible()) use(*window);
    }
}

/// The place of a handle in the registry; 0 when it is not there.
std::int32_t IndexOf(const halvek::OpenWindows& registry, std::int32_t handle) {
    const halvek::StringTable windows = registry.GetAll();
    std::int32_t index = registry.Count();
    while (index > 0 && ToQString(windows.At(kHandleRow, index)).toInt() != handle) --index;
    return index;
}

}  // namespace

ClientWindow::ClientWindow(Desk& desk, const QString& type, const QString& title) : desk_(desk) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(title);
    resize(kSize);
    auto* text = new QLabel(title);
    text->setAlignment(Qt::AlignCenter);
    (new QVBoxLayout(this))->addWidget(text);
    const bool added = desk_.Library().OpenWindows()->AddItem(type, Handle());
    desk_.Calls().Add("OpenWindows()->AddItem", Args(type, Handle()), Shown(added));
}

ClientWindow* ClientWindow::Find(std::int32_t handle) {
    ClientWindow* found = nullptr;
    ForEachOpen([&](ClientWindow& window) {
        if (window.Handle() == handle) found = &window;
    });
    return found;
}

void ClientWindow::CloseAll() {
    ForEachOpen([](ClientWindow& window) { window.close(); });
}

void ClientWindow::BringForward() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void ClientWindow::closeEvent(QCloseEvent* event) {
    const auto registry = desk_.Library().OpenWindows();
    const std::int32_t index = IndexOf(*registry, Handle());
    const bool removed = registry->RemoveItem(index);
    desk_.Calls().Add("OpenWindows()->RemoveItem", Args(index), Shown(removed));
    event->accept();
}

}  // namespace frontdesk
