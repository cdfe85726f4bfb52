// SPDX-License-Identifier: MIT
#include "pages/MessageBoxPlay.h"

#include "Shown.h"
#include "pages/MessageBoxPage.h"
#include "pages/MessageBoxSamples.h"
#include "tour/Tour.h"

#include <QClipboard>
#include <QGuiApplication>

#include <cstddef>
#include <utility>
#include <vector>

namespace frontdesk {

using namespace halvek;

namespace {

bool ClipboardHoldsText() {
    return QGuiApplication::clipboard()->text().contains("This cannot be undone.");
}

class MessageBoxPlay {
  public:
    MessageBoxPlay(MessageBoxPage& page, Tour& tour) : page_(page), tour_(tour) {}

    void ButtonSets();
    void Icons();
    void Backgrounds();
    void FontSizes();
    void Texts();
    void Countdowns();
    void Endings();

  private:
    void Show(const QString& name, const BoxArguments& box, std::vector<TourStep> steps,
              MbMsgBoxResult expected);

    /// Takes a picture and clicks the first button.
    std::vector<TourStep> PictureAndClick(const QString& name) const {
        return {tour_.Snapshot(name), Click("arrCmd_0")};
    }

    MessageBoxPage& page_;
    Tour& tour_;
    const std::vector<BoxSample> special_ = SpecialSamples();
};

void MessageBoxPlay::Show(const QString& name, const BoxArguments& box, std::vector<TourStep> steps,
                          MbMsgBoxResult expected) {
    MbMsgBoxResult result = kNotAnswered;
    tour_.Answer(name, std::move(steps), [&] { result = page_.ShowWith(box); });
    tour_.ExpectResult(name, NameOf(kResultNames, result), NameOf(kResultNames, expected));
}

void MessageBoxPlay::ButtonSets() {
    // Key 0 stands for a click; the empty widget for the box itself.
    const struct {
        ButtonsChoice buttons;
        const char* widget;
        int key;
        MbMsgBoxResult result;
    } answers[] = {
        {mbOkOnly, "arrCmd_0", 0, mbOK},
        {mbOkCancel, "arrCmd_1", 0, mbCancel},
        {mbAbortRetryIgnore, "arrCmd_0", Qt::Key_R, mbRetry},
        {mbYesNoCancel, "arrCmd_0", Qt::Key_Escape, mbCancel},
        {mbYesNo, "arrCmd_0", Qt::Key_Y, mbYes},
        {mbRetryCancel, "arrCmd_0", Qt::Key_Space, mbRetry},
        {mbSaveDontSave, "arrCmd_0", Qt::Key_D, mbDontSave},
        {mbNoButtons, "", Qt::Key_Escape, mbOK},
        {mbYesHelp, "arrCmd_1", 0, mbHelp},
        {mbYesNoHelp, "arrCmd_2", Qt::Key_N, mbNo},
        {mbOkHelp, "arrCmd_1", Qt::Key_O, mbOK},
    };
    const std::vector<BoxSample> samples = ButtonSetSamples();
    for (const auto& answer : answers) {
        const QString name = "message-box-" + NameOf(kButtonsNames, answer.buttons);
        const TourStep step = answer.key == 0
                                  ? Click(answer.widget)
                                  : PressKey(answer.widget, static_cast<Qt::Key>(answer.key));
        Show(name, samples[static_cast<std::size_t>(answer.buttons)].arguments,
             {tour_.Snapshot(name), step}, answer.result);
    }
}

void MessageBoxPlay::Icons() {
    for (const auto& icon : kIconNames) {
        const QString name = QString("message-box-icon-") + icon.name;
        Show(name, {QString("This is ") + icon.name + '.', mbOkOnly, icon.value, "Icons"},
             PictureAndClick(name), mbOK);
    }
}

void MessageBoxPlay::Backgrounds() {
    for (const auto& background : kBackgroundNames) {
        const QString name = QString("message-box-background-") + background.name;
        const QString prompt = QString("The background is ") + background.name +
                               ".\r\n\r\nThe buttons and the text go with it.";
        Show(name, {prompt, mbYesNoCancel, mbQuestion, "Backgrounds", background.value},
             PictureAndClick(name), mbYes);
    }
}

void MessageBoxPlay::FontSizes() {
    for (const auto& fontSize : kFontSizeNames) {
        const QString name = QString("message-box-font-") + fontSize.name;
        const QString prompt = QString("This is ") + fontSize.name + ".\r\nIts lines stand evenly.";
        Show(name, {prompt, mbOkCancel, mbInformation, "Fonts", mbWhite, fontSize.value},
             PictureAndClick(name), mbOK);
    }
}

void MessageBoxPlay::Texts() {
    Show("message-box-long", special_[kLongText].arguments,
         {tour_.Snapshot("message-box-long-start"), Click("cmdUpDn_0", 5),
          tour_.Snapshot("message-box-long-scrolled"), Click("cmdUpDn_0", 200),
          tour_.Snapshot("message-box-long-end"), Click("cmdUpDn_1", 3), Click("arrCmd_0")},
         mbOK);
    const std::pair<SpecialSample, const char*> plain[] = {
        {kWideText, "message-box-wide"},
        {kColumns, "message-box-columns"},
        {kBold, "message-box-bold"},
        {kLiteral, "message-box-markup-as-typed"},
    };
    for (const auto& [sample, name] : plain) {
        Show(name, special_[sample].arguments, PictureAndClick(name), mbOK);
    }
    Show("message-box-100000-characters", special_[kHugeText].arguments,
         {tour_.Snapshot("message-box-100000-characters"), PressKey("arrCmd_0", Qt::Key_N)}, mbNo);
}

void MessageBoxPlay::Countdowns() {
    BoxArguments box = special_[kCountdown].arguments;
    Show("message-box-countdown", box,
         {WaitForTitle("00:00:01 / 00:00:30"), tour_.Snapshot("message-box-countdown"),
          Click("arrCmd_1")},
         mbCancel);
    // A key that presses no button stops the countdown.
    box.closeAfterNSec = 1;
    Show("message-box-countdown-stopped", box,
         {PressKey("arrCmd_0", Qt::Key_X), tour_.Snapshot("message-box-countdown-stopped"),
          Click("arrCmd_0")},
         mbOK);
    Show("message-box-countdown-ends", box, {tour_.Snapshot("message-box-countdown-ends")},
         kClosedByCountdown);
}

void MessageBoxPlay::Endings() {
    const std::vector<BoxSample> samples = ButtonSetSamples();
    Show("message-box-close-box", samples[mbYesHelp].arguments, {CloseWindow()}, mbYes);
    // Without a close box the request is refused, and Escape does nothing.
    Show("message-box-no-close-box", samples[mbYesNo].arguments,
         {CloseWindow(), PressKey("arrCmd_0", Qt::Key_Escape),
          tour_.Check("the box stays open", [](QWidget& box) { return box.isVisible(); }),
          Click("arrCmd_1")},
         mbNo);
    Show("message-box-copied", samples[mbYesNo].arguments,
         {PressKey("arrCmd_0", Qt::Key_C, Qt::ControlModifier),
          tour_.Check("Ctrl+C copies the text", [](QWidget&) { return ClipboardHoldsText(); }),
          PressKey("arrCmd_0", Qt::Key_N)},
         mbNo);
    BoxArguments unknown = samples[mbYesNo].arguments;
    unknown.buttons = static_cast<ButtonsChoice>(99);
    unknown.icon = static_cast<IconChoice>(99);
    unknown.background = static_cast<ColorChoice>(99);
    unknown.fontSize = static_cast<FontSizeChoice>(99);
    Show("message-box-unknown-values", unknown, PictureAndClick("message-box-unknown-values"),
         mbOK);
}

}  // namespace

void PlayMessageBoxes(MessageBoxPage& page, Tour& tour) {
    MessageBoxPlay play(page, tour);
    play.ButtonSets();
    play.Icons();
    play.Backgrounds();
    play.FontSizes();
    play.Texts();
    play.Countdowns();
    play.Endings();
}

}  // namespace frontdesk
