// SPDX-License-Identifier: MIT
// The form's test: a script answers its dialogs, so it needs neither a person nor a display.
#include "CheckIn.h"

#include <halvekutils/base/CodePage.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

#include <gtest/gtest.h>

#include <chrono>

using namespace halvek;

class CheckInTest : public testing::Test {
  protected:
    CheckInTest() { utils->InitUtils(u"/dev/null/none", u"Front Desk", u"test", false, u""); }
    ~CheckInTest() override {
        EXPECT_EQ(desktop.AnswersLeft(), 0u);
        for (const TextIn dialog : desktop.Unanswered()) {
            ADD_FAILURE() << "nobody answered the " << testing::PrintToString(dialog);
        }
    }

    ScriptedPlatform desktop;
    std::shared_ptr<Utils> utils = Utils::Create();
    CheckIn checkIn{utils};
};

TEST_F(CheckInTest, ChecksAPatientInOnceADayIsChosen) {
    checkIn.Open(u"4711", u"");
    desktop.OnMessageBox([](MessageBox& box) {
        EXPECT_EQ(box.Prompt(), u"Choose the day of the visit first.");
        box.Press(mbOK);
    });
    EXPECT_FALSE(checkIn.Confirm());

    desktop.OnCalendar([](Calendar& calendar) {
        calendar.ClickDay(std::chrono::floor<std::chrono::days>(MakeDateTime(2024, 3, 7)));
        calendar.KeyDown(Calendar::Key::Enter);
    });
    checkIn.ChooseDay();
    desktop.OnMessageBox([](MessageBox& box) {
        EXPECT_EQ(box.Prompt(), u"Check in account 4711 for 03/07/2024?");
        box.Press(mbYes);
    });
    EXPECT_TRUE(checkIn.Confirm());
}

TEST_F(CheckInTest, KeepsTheReasonsThatTheUserTyped) {
    checkIn.Open(u"4711", u"");
    desktop.OnSelection([](SelectGrid& grid) {
        grid.EditBox(u"VAC,CHK", 7);  // typed, with the caret at the end
        grid.Accept();
    });
    checkIn.ChooseReasons(u"Code\tReason\t0:CHK\tCheck-up\t0:VAC\tVaccination\t0");
    EXPECT_EQ(checkIn.Reasons(), u"VAC,CHK");
}

TEST_F(CheckInTest, ShowsEachLineOfAReminderUnderItsTitle) {
    // In the server's bytes: quotes, an accent, and a tab without a title
    checkIn.Open(u"4711",
                 FromCodePage("Allergies\xE6\x93P\xE9nicilline\x94\xE7\xE6lost\xE7Recall\xE6May"));
    EXPECT_EQ(checkIn.Reminder(),
              u"Allergies\n    \u201CP\u00E9nicilline\u201D\nRecall\n    May\n");
}
