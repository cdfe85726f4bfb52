// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"
#include "pages/SettingsFields.h"

#include <QTableWidget>

#include <memory>
#include <vector>

namespace frontdesk {

/// An editor for the user's preferences, beside the settings text that holds them, and a few of the
/// practice's.
class SettingsPage : public Page {
  public:
    explicit SettingsPage(Desk& desk);

    void Refresh() override;
    void Play(Tour& tour) override;

  private:
    QLayout* MakeEditor();
    QLayout* MakeText();
    QLayout* MakeSystem();

    /// The settings text in the list, and showing another.
    QString Text() const;
    void ShowText(const QString& text);

    void Load();
    void Store();
    void Populate();
    void GetString();
    void SetCurrent();
    void GetCurrent();
    void StoreSystem();

    Desk& desk_;
    halvek::UserPrefs prefs_;
    std::shared_ptr<halvek::SystemPrefs> system_ = std::make_shared<halvek::SystemPrefs>();
    std::vector<PropertyField<halvek::UserPrefs>> userFields_ = MakeUserFields();
    std::vector<PropertyField<halvek::SystemPrefs>> systemFields_ = MakeSystemFields();
    QTableWidget text_;
};

}  // namespace frontdesk
