// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"
#include "widgets/ColorButton.h"
#include "widgets/ColorStrip.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QSpinBox>

#include <vector>

namespace frontdesk {

/// The values of InitUtils, InitPrefs, InitOtherSettings and the text properties, to see and to
/// change.
class SessionPage : public Page {
  public:
    explicit SessionPage(Desk& desk);

    void Refresh() override;
    void Play(Tour& tour) override;

  private:
    QGroupBox* MakeIdentity();
    QGroupBox* MakePreferences();
    QGroupBox* MakeOtherSettings();
    QGroupBox* MakeTexts();

    void ApplyIdentity();
    void ApplyPreferences();
    void ApplyOtherSettings();
    void StoreTexts();
    void ReadAll();

    Desk& desk_;

    QLineEdit errFileName_;
    QLineEdit appName_;
    QLineEdit appType_;
    QLineEdit exeFileStamp_;
    QCheckBox debugMode_;

    ColorButton formSkin_;
    ColorButton formText_;
    ColorButton formTop_;
    ColorButton requiredFieldBack_;
    ColorStrip colors_;

    ColorButton highlightBack_;
    ColorButton highlightFore_;
    QLineEdit codeDelimiter_;
    QDoubleSpinBox columnAdjust_;
    QSpinBox scrollBarWidth_;

    std::vector<QLineEdit*> texts_;
};

}  // namespace frontdesk
