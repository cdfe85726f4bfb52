// SPDX-License-Identifier: MIT
#include "PreferencesMenu.h"

#include "widgets/Card.h"

#include <QPixmap>

#include <functional>

namespace frontdesk {

namespace {

void AddColor(QMenu& menu, Desk& desk, const QString& name, halvek::Color color,
              const std::function<void(halvek::Color color)>& store) {
    QPixmap swatch(32, 32);
    swatch.fill(ToQColor(color));
    menu.addAction(swatch, name, &desk, [&menu, &desk, store] {
        const auto chosen = desk.ChooseColor(menu.parentWidget());
        if (!chosen) return;
        store(*chosen);
        desk.SavePrefs();
    });
}

void Fill(QMenu& menu, Desk& desk) {
    halvek::UserPrefs& prefs = desk.Prefs();
    menu.clear();
    menu.addSection("Colors of the forms");
    AddColor(menu, desk, "&Header", prefs.FormTopColor(),
             [&prefs](halvek::Color color) { prefs.FormTopColor(color); });
    AddColor(menu, desk, "Header &text", prefs.FormTextColor(),
             [&prefs](halvek::Color color) { prefs.FormTextColor(color); });
    AddColor(menu, desk, "&Required fields", prefs.RequiredFieldBackColor(),
             [&prefs](halvek::Color color) { prefs.RequiredFieldBackColor(color); });
    menu.addSection("Colors of the schedule");
    for (const Reason& reason : desk.Server().Reasons()) {
        AddColor(menu, desk, reason.description, reason.color,
                 [&desk, reason](halvek::Color color) {
                     desk.Server().SetReasonColor(reason.code, color);
                 });
    }
    menu.addSeparator();
    QAction* paid = menu.addAction("Show &visits that are paid");
    paid->setCheckable(true);
    paid->setChecked(prefs.ScheduleFormData().empty());
    QObject::connect(paid, &QAction::toggled, &desk, [&desk, &prefs](bool show) {
        prefs.ScheduleFormData(show ? u"" : u"hide paid");
        desk.SavePrefs();
    });
}

}  // namespace

QMenu* MakePreferencesMenu(Desk& desk, QWidget* parent) {
    auto* menu = new QMenu("&Preferences", parent);
    menu->setEnabled(desk.Rights("PREFERENCES")->AllowModify());
    QObject::connect(menu, &QMenu::aboutToShow, &desk, [menu, &desk] { Fill(*menu, desk); });
    Fill(*menu, desk);
    return menu;
}

}  // namespace frontdesk
