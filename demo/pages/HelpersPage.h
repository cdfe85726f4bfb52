// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"
#include "widgets/CallBox.h"
#include "widgets/SkinnedFrame.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTimer>

#include <array>

namespace frontdesk {

/// Helpers for a host's screens: highlighted captions, fonts, combo boxes, the keys that are held
/// down, look-up keys and a window without a close button.
class HelpersPage : public Page {
  public:
    explicit HelpersPage(Desk& desk);

    void Refresh() override;
    void Play(Tour& tour) override;

  protected:
    void hideEvent(QHideEvent* event) override;

  private:
    QWidget* MakeHeadings();
    QWidget* MakeKeys();
    QWidget* MakeGrid();
    QWidget* MakeCombo();
    QWidget* MakeFontCall();
    QWidget* MakeCalls();

    /// What is highlighted, with a text box, which no highlight changes.
    std::array<QWidget*, 4> Captions();
    void Highlight();
    void Unhighlight();
    void SetGridFont(const QString& code);
    void ReadKeys();
    void OpenWithoutCloseButton();

    void PlayCaptions(Tour& tour);
    void PlayFonts(Tour& tour);
    void PlayManyItems(Tour& tour);
    void PlayCalls(Tour& tour);

    Desk& desk_;
    SkinnedFrame headings_;
    QLabel provider_{"Provider"};
    QCheckBox interpreter_{"Interpreter needed"};
    QRadioButton byLetter_{"Reminder by letter"};
    QLineEdit providerText_{"Dr. Adams"};
    QCheckBox border_{"With a &border"};
    QCheckBox useBlack_{"Bl&ack text"};
    SkinnedFrame keys_;
    std::array<QLabel, 3> keyNames_;
    std::array<bool, 3> held_{};
    QTimer readKeys_;
    QTableWidget* grid_;
    QComboBox combo_;
    CallBox* fill_;
    CallBox* find_;
    QLabel sample_{"Text in this font"};
    CallBox* font_;
    CallBox* lookup_;
    CallBox* sleep_;
};

}  // namespace frontdesk
