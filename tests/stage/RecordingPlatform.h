// SPDX-License-Identifier: MIT
#pragma once

#include "Record.h"

#include <halvekutils/qt/QtPlatform.h>
#include <halvekutils/qt/QtText.h>

/// A desktop that records its beeps and the plain messages that it shows.
class RecordingPlatform : public halvek::QtPlatform {
  public:
    void Beep() override { Record::Got("beep"); }

    void ShowStockMessage(halvek::TextIn text, halvek::StockIcon icon,
                          halvek::TextIn title) override {
        Record::Got("message", halvek::ToQString(text));
        QtPlatform::ShowStockMessage(text, icon, title);
    }
};
