// SPDX-License-Identifier: MIT
#pragma once

#include "tests/TemporaryFolder.h"

#include <halvekutils/core/Utils.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

#undef NDEBUG
#include <cassert>

using namespace halvek;

/// The host of the pages' samples: a session, some widgets and a user who accepts everything.
class Host : public testing::Test {
  protected:
    void SetUp() override {
        utils->InitUtils((folder / "Log").u16string(), u"Samples", u"", false, u"");
        desktop.OnMessageBox([](MessageBox& box) { box.Press(0); });
        desktop.OnMessageBox([](MessageBox& box) { box.Press(1); });
        desktop.OnCalculator([](Calculator& rules) { rules.Press(Calculator::kReturn); });
        desktop.OnCalendar([](Calendar& rules) { rules.KeyDown(Calendar::Key::Enter); });
        desktop.OnColorPalette([](ColorPalette& rules) { rules.Click(1); });
        desktop.OnSelection([](SelectGrid& rules) { rules.Accept(); });
    }
    void TearDown() override {
        EXPECT_EQ(ReadFile(folder / "Log").find("Error in "), std::string::npos);
    }

    int argc = 1;
    char* name = const_cast<char*>("Host");
    QApplication app{argc, &name};
    TemporaryFolder folder;
    ScriptedPlatform desktop;
    std::shared_ptr<Utils> utils = Utils::Create();
    QWidget screen;
    QWidget* const window = &screen;
    QPushButton* const button = new QPushButton(window);
    QLineEdit* const visit = new QLineEdit(QStringLiteral("3/7/2024"), window);
    QLineEdit* const amount = new QLineEdit(QStringLiteral("$25.00"), window);
    QLineEdit* const from = new QLineEdit(window);
    QLineEdit* const to = new QLineEdit(window);
};
