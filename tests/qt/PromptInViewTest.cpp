// SPDX-License-Identifier: MIT
#include "tests/qt/FormTest.h"
#include "tests/qt/User.h"

#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/platform/Services.h>
#include <halvekutils/platform/Twips.h>
#include <halvekutils/qt/QtPlatform.h>
#include <halvekutils/qt/forms/frmMessageBox.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <QApplication>
#include <QTextEdit>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace halvek {
namespace {

/// The Qt desktop on a screen of a certain size.
class DeskOf : public QtPlatform {
  public:
    explicit DeskOf(QSize pixels)
        : size_{PixelsToTwips(pixels.width()), PixelsToTwips(pixels.height())} {}
    Size ScreenSize() const override { return size_; }
    Rect ScreenRect() const override { return {0, 0, size_.width, size_.height}; }

  private:
    Size size_;
};

const QSize kScreens[] = {{1024, 600}, {1366, 768}, {1920, 1080}};

/// A list of appointments, a question below it.
std::u16string Appointments(int count) {
    std::u16string text = u"These appointments overlap with the new one:\r\n";
    for (int i = 1; i < count; ++i) text += u"\r\n03/07/2004 10:30 AM  Garcia, Maria  Follow-up";
    return text + u"\r\nBook it all the same?";
}

/// Questions of a front desk's day.
std::vector<std::u16string> Prompts() {
    std::vector<std::u16string> prompts = {
        u"Go on?",
        u"Post $25.00 to the account of Garcia, Maria?",
        u"The payment of $1,250.00 is more than the balance of the visit, which is $980.00. What "
        u"is "
        u"left over becomes a credit that can be used for later visits or be refunded. Post it?",
        u"Another user, Front Desk 2, has changed this patient's address while you were editing "
        u"it. "
        u"Saving now replaces what was entered there, and nobody will be told about it; the other "
        u"user may still be working on the same record and save it once more after you.\r\n\r\n"
        u"Your changes are kept on this workstation until you close the window, so nothing is lost "
        u"when you look at the other entry first.\r\n\r\nReplace the address?",
    };
    for (const int count : {5, 12, 16, 19, 22, 40}) prompts.push_back(Appointments(count));
    return prompts;
}

class PromptInViewTest : public FormTest {
  protected:
    ~PromptInViewTest() override { QApplication::setFont(font_); }

    static void SetDesktopFont(int points) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
    }

    static std::unique_ptr<frmMessageBox> Open(const Desktop& desk, MessageBoxRequest request) {
        auto form = std::make_unique<frmMessageBox>(
            std::make_shared<MessageBox>(std::move(request), Services::Current(), desk));
        form->setAttribute(Qt::WA_DontShowOnScreen);
        form->show();
        return form;
    }

  private:
    QFont font_ = QApplication::font();
};

/// The height that a text can have on this screen, in pixels: the form grows up to a limit.
int RoomOf(const Desktop& desk, const frmMessageBox& form) {
    constexpr std::int32_t kMaxForm = 8850;
    const std::int32_t outer = std::min(kMaxForm, desk.ScreenSize().height);
    const std::int32_t around =
        desk.FrameSize().height + form.Box()->Layout().buttonFrame.height + 165;
    return TwipsToPixels(outer - around) - 1;
}

void ExpectInView(const Desktop& desk, const frmMessageBox& form) {
    const auto& text = Find<QTextEdit>(form, "lblText");
    QTextCursor end(text.document());
    end.movePosition(QTextCursor::End);
    const int bottom = text.cursorRect(end).bottom();
    const bool fits = text.document()->size().height() <= RoomOf(desk, form);
    if (fits) {
        EXPECT_LT(bottom, text.viewport()->height());
    } else {
        EXPECT_TRUE(Find(form, "cmdUpDn_0").isVisible() && Find(form, "cmdUpDn_0").isEnabled());
    }
    if (Find(form, "cmdUpDn_0").isVisible()) {
        EXPECT_LE(text.geometry().right(), Find(form, "cmdUpDn_0").x());
    }
}

TEST_F(PromptInViewTest, WhatTheScreenHasRoomForIsInViewAtOpening) {
    const auto prompts = Prompts();
    for (const QSize screen : kScreens) {
        const DeskOf desk(screen);
        for (const int desktopPoints : {9, 12, 16}) {
            SetDesktopFont(desktopPoints);
            for (int font = mb8; font <= mb14; ++font) {
                for (std::size_t i = 0; i < prompts.size(); ++i) {
                    SCOPED_TRACE(std::to_string(screen.width()) + " pixels, desktop in " +
                                 std::to_string(desktopPoints) + " points, font " +
                                 std::to_string(font) + ", prompt " + std::to_string(i));
                    const auto form = Open(desk, {prompts[i], mbYesNoCancel, mbQuestion, u"Visit",
                                                  mbWhite, static_cast<FontSizeChoice>(font)});
                    ExpectInView(desk, *form);
                }
            }
        }
    }
}

}  // namespace
}  // namespace halvek
