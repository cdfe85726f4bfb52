// SPDX-License-Identifier: MIT
#pragma once

#include "Record.h"
#include "StageWindow.h"

#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/qt/QtPlatform.h>
#include <halvekutils/qt/QtText.h>

#include <QApplication>

#include <algorithm>

/// A desktop that records its beeps, plain messages and debug lines. It shows the messages too; the
/// debug console, which would cover the desk, only on the stage.
class RecordingPlatform : public halvek::QtPlatform {
  public:
    void Beep() override { Record::Got("beep"); }

    void ShowStockMessage(halvek::TextIn text, halvek::StockIcon icon,
                          halvek::TextIn title) override {
        Record::Got("message", halvek::ToQString(text));
        QtPlatform::ShowStockMessage(text, icon, title);
    }

    using QtPlatform::Show;
    void Show(const std::shared_ptr<halvek::DebugConsole>& console) override {
        const auto isStage = [](const QWidget* window) {
            return dynamic_cast<const StageWindow*>(window) != nullptr;
        };
        if (std::ranges::any_of(QApplication::topLevelWidgets(), isStage))
            return QtPlatform::Show(console);
        console->Changed = [&shown = *console] {
            const QString text = halvek::ToQString(shown.Text());
            Record::Got("debug", text.section("\r\n", -1, -1, QString::SectionSkipEmpty));
        };
    }
};
