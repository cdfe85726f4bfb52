// SPDX-License-Identifier: MIT
#include "pages/OpenWindowsPage.h"

#include "Shown.h"
#include "WindowsMenu.h"
#include "tour/Tour.h"
#include "widgets/Fields.h"
#include "widgets/Table.h"

#include <halvekutils/qt/QtText.h>

#include <QHBoxLayout>
#include <QMainWindow>
#include <QMenuBar>

#include <iterator>

namespace frontdesk {

using halvek::ToQString;

namespace {

enum Column { kType, kHandle, kTitle, kColumns };

constexpr const char* kHeadings[kColumns] = {"Type", "Handle", "Title"};
constexpr int kColumnWidths[kColumns] = {120, 120, 320};

struct Kind {
    const char* type;
    const char* caption;
    const char* title;
};

constexpr Kind kKinds[] = {
    {"PATIENT", "New &patient", "Patient %1"},
    {"REPORT", "New &report", "Report %1: day close"},
    {"SCHEDULE", "New s&chedule", "Schedule %1: North Clinic"},
};

}  // namespace

OpenWindowsPage::OpenWindowsPage(Desk& desk)
    : Page("Open &windows",
           "The client's open windows by type and handle. The Windows menu lists them too and "
           "brings them forward."),
      desk_(desk),
      table_(0, kColumns) {
    StyleAsList(table_);
    table_.setAccessibleName("Open windows");
    for (int column = 0; column < kColumns; ++column) {
        table_.setHorizontalHeaderItem(column, new QTableWidgetItem(kHeadings[column]));
        table_.horizontalHeaderItem(column)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        table_.setColumnWidth(column, kColumnWidths[column]);
    }
    Body().addLayout(MakeOpeners());
    Body().addWidget(&table_, 1);
    Body().addLayout(MakeStatus());
}

QLayout* OpenWindowsPage::MakeOpeners() {
    auto* row = new QHBoxLayout;
    for (std::size_t kind = 0; kind < std::size(kKinds); ++kind) {
        row->addWidget(MakeButton(kKinds[kind].caption, [this, kind] { Open(kind); }));
    }
    row->addStretch();
    return row;
}

QLayout* OpenWindowsPage::MakeStatus() {
    auto* row = new QHBoxLayout;
    row->addWidget(&count_, 1);
    row->addWidget(MakeButton("&GetItem", [this] { GetItem(); }));
    row->addWidget(MakeButton("&Bring forward", [this] { BringForward(); }));
    row->addWidget(MakeButton("C&lose", [this] { Close(); }));
    return row;
}

void OpenWindowsPage::Refresh() {
    table_.setRowCount(0);
    const halvek::StringTable windows = desk_.Library().OpenWindows()->GetAll();
    for (std::int32_t index = 1; index < windows.Columns(); ++index) {
        const QString handle = ToQString(windows.At(kHandleRow, index));
        const ClientWindow* window = ClientWindow::Find(handle.toInt());
        AddTableRow(table_, {ToQString(windows.At(kTypeRow, index)), handle,
                             window == nullptr ? QString() : window->windowTitle()});
    }
    count_.setText(QString("%1 open").arg(table_.rowCount()));
}

ClientWindow& OpenWindowsPage::Open(std::size_t kind) {
    const QString title = QString(kKinds[kind].title).arg(++opened_);
    auto* opened = new ClientWindow(desk_, kKinds[kind].type, title);
    connect(opened, &QObject::destroyed, this, [this] { Refresh(); });
    opened->show();
    Refresh();
    return *opened;
}

ClientWindow* OpenWindowsPage::Chosen() const {
    const QTableWidgetItem* handle = table_.item(table_.currentRow(), kHandle);
    return handle == nullptr ? nullptr : ClientWindow::Find(handle->text().toInt());
}

void OpenWindowsPage::BringForward() {
    if (ClientWindow* chosen = Chosen()) chosen->BringForward();
}

void OpenWindowsPage::Close() {
    if (ClientWindow* chosen = Chosen()) chosen->close();
}

void OpenWindowsPage::GetItem() {
    const std::int32_t index = table_.currentRow() + 1;
    desk_.Calls().Add("OpenWindows()->GetItem", Args(index),
                      Shown(desk_.Library().OpenWindows()->GetItem(index)));
}

void OpenWindowsPage::Play(Tour& tour) {
    auto* menu = dynamic_cast<WindowsMenu*>(window()->findChild<QMenu*>("windows"));
    const auto listed = [menu] {
        QStringList titles;
        menu->Fill();
        for (const QAction* action : menu->actions()) titles << action->text().section("  ", 1);
        return titles.join("; ");
    };
    Open(0);
    tour.Picture(Open(1), "client-window");
    ClientWindow& patient = Open(0);
    Open(2);
    table_.selectRow(1);
    GetItem();
    tour.ExpectResult("the Windows menu", listed(),
                      "Patient 1; Report 2: day close; Patient 3; Schedule 4: North Clinic");
    menu->popup(window()->mapToGlobal(QPoint(0, 0)));
    tour.Picture(*menu, "menu-windows");
    menu->close();
    menu->actions().at(2)->trigger();
    tour.Picture(*window(), "page-open-windows-four");
    tour.Expect(patient.isActiveWindow(), "the chosen window comes forward");
    Close();
    tour.ExpectResult("the Windows menu", listed(),
                      "Patient 1; Patient 3; Schedule 4: North Clinic");
    ClientWindow::CloseAll();
    tour.Expect(desk_.Library().OpenWindows()->Count() == 0, "closed windows leave the registry");
}

}  // namespace frontdesk
