// SPDX-License-Identifier: MIT
#include "PreferencesMenu.h"

#include "widgets/RequiredColor.h"

#include <QPixmap>

namespace frontdesk {

PreferencesMenu::PreferencesMenu(Desk& desk) : QMenu("&Preferences"), desk_(desk) {
    setEnabled(desk_.May("PREFERENCES", Right::Modify));
    connect(this, &QMenu::aboutToShow, this, [this] { Fill(); });
    Fill();
}

void PreferencesMenu::Fill() {
    clear();
    const auto prefs = desk_.Prefs();
    addSection("Colors of the forms");
    AddColor("&Header", prefs->FormTopColor(),
             [prefs](halvek::Color color) { prefs->FormTopColor(color); });
    AddColor("Header &text", prefs->FormTextColor(),
             [prefs](halvek::Color color) { prefs->FormTextColor(color); });
    AddColor("&Required fields", prefs->RequiredFieldBackColor(),
             [prefs](halvek::Color color) { prefs->RequiredFieldBackColor(color); });
    addSection("Colors of the schedule");
    for (const Reason& reason : desk_.Server().Reasons()) {
        AddColor(reason.description, reason.color, [this, reason](halvek::Color color) {
            desk_.Server().SetReasonColor(reason.code, color);
        });
    }
    addSeparator();
    QAction* paid = addAction("Show &visits that are paid");
    paid->setCheckable(true);
    paid->setChecked(desk_.ShowsPaidVisits());
    connect(paid, &QAction::toggled, this, [this](bool show) {
        desk_.ShowPaidVisits(show);
        desk_.SavePrefs();
    });
}

void PreferencesMenu::AddColor(const QString& name, halvek::Color color,
                               const std::function<void(halvek::Color color)>& store) {
    QPixmap swatch(32, 32);
    swatch.fill(ToQColor(color));
    addAction(swatch, name, this, [this, store] {
        const auto chosen = desk_.ChooseColor(parentWidget());
        if (!chosen) return;
        store(*chosen);
        desk_.SavePrefs();
    });
}

}  // namespace frontdesk
