// SPDX-License-Identifier: MIT
#include "WindowsMenu.h"

#include "ClientWindow.h"

#include <halvekutils/qt/QtText.h>

namespace frontdesk {

namespace {

constexpr int kMaxMnemonics = 9;

}  // namespace

WindowsMenu::WindowsMenu(Desk& desk) : QMenu("Wi&ndows"), desk_(desk) {
    setObjectName("windows");
    connect(this, &QMenu::aboutToShow, this, [this] { Fill(); });
    Fill();
}

void WindowsMenu::Fill() {
    clear();
    const halvek::StringTable windows = desk_.Library().OpenWindows()->GetAll();
    for (std::int32_t index = 1; index < windows.Columns(); ++index) {
        const auto handle = halvek::ToQString(windows.At(kHandleRow, index)).toInt();
        const ClientWindow* window = ClientWindow::Find(handle);
        if (window == nullptr) continue;
        const QString mnemonic = index > kMaxMnemonics ? "" : QString("&%1  ").arg(index);
        addAction(mnemonic + window->windowTitle(), this, [handle] {
            if (ClientWindow* chosen = ClientWindow::Find(handle)) chosen->BringForward();
        });
    }
    if (isEmpty()) addAction("No windows are open")->setEnabled(false);
}

}  // namespace frontdesk
