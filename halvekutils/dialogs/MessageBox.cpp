// SPDX-License-Identifier: MIT
#include <halvekutils/base/NumericText.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/dialogs/MessageBoxButtons.h>
#include <halvekutils/platform/Services.h>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace halvek {

namespace {

constexpr int kEnter = 13;
constexpr int kEscape = 27;
constexpr std::int32_t kScrollStep = 200;
constexpr std::int32_t kMaxCountdownSeconds = 2'147'483'640;
constexpr std::u16string_view kFixedFace = u"Courier New";
// Laying out text without blanks costs time in the square of its length.
constexpr std::size_t kLongestPrompt = 65'535;

struct FontRow {
    FontSizeChoice choice;
    std::int32_t points;
    std::u16string_view face;
};

constexpr FontRow kFonts[] = {
    {mb8, 8, u""},        {mb9, 9, u""}, {mb10, 10, u""}, {mb11, 11, u""}, {mb12, 12, u""},
    {mb5, 9, kFixedFace}, {mb6, 6, u""}, {mb7, 7, u""},   {mb14, 14, u""},
};

FontSpec FontOf(FontSizeChoice choice, bool bold) {
    FontSpec font;
    const auto row = std::ranges::find(kFonts, NormalizedFontSize(choice), &FontRow::choice);
    if (row != std::end(kFonts)) {
        font.points = row->points;
        font.face = row->face;
    }
    font.bold = bold;
    return font;
}

// The letters that can press a button.
constexpr std::u16string_view kAcceleratorLetters = u"ACINORYSDH";

char16_t AcceleratorLetter(int keyCode) {
    const bool known =
        keyCode > 0 && keyCode < 128 &&
        kAcceleratorLetters.find(static_cast<char16_t>(keyCode)) != std::u16string_view::npos;
    return known ? static_cast<char16_t>(keyCode) : u'\0';
}

/// A prompt that a window can show at once; a note ends one that is cut.
std::u16string Shown(std::u16string prompt) {
    if (prompt.size() <= kLongestPrompt) return prompt;
    const auto cut = static_cast<double>(prompt.size() - kLongestPrompt);
    prompt.resize(kLongestPrompt);
    return prompt + u"\r\n... (" + NumberText(cut) + u" more characters)";
}

/// Hours, minutes and seconds in two digits each.
std::u16string ClockText(std::int32_t seconds) {
    char text[32];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60,
                  seconds % 60);
    return FromUtf8(text);
}

std::u16string WithoutAmpersand(std::u16string_view caption) {
    std::u16string text(caption);
    std::erase(text, u'&');
    return text;
}

}  // namespace

FontSizeChoice NormalizedFontSize(FontSizeChoice fontSize) {
    return fontSize == 0 || fontSize > mb14 ? mb9 : fontSize;
}

ColorChoice NormalizedBackground(ColorChoice background) {
    return background < mbWhite || background > mbSkinColor ? mbWhite : background;
}

MessageBox::MessageBox(MessageBoxRequest request, const Services& session, const Desktop& desktop)
    : request_(std::move(request)),
      set_(&ButtonSetOf(request_.buttons)),
      font_(FontOf(request_.fontSize, request_.fontBold)),
      skinColor_(session.FormSkinColor()),
      skinTextColor_(session.FormTextColor()),
      title_(request_.title.empty() ? session.AppName() : request_.title),
      caption_(title_) {
    request_.prompt = Shown(std::move(request_.prompt));
    layout_ = LayOutMessageBox({request_.prompt, font_, set_->choice, Picture() != 0}, desktop,
                               desktop.ScreenSize(), desktop.FrameSize());
    if (request_.closeAfterNSec >= 1) {
        countdownTotal_ = std::min(request_.closeAfterNSec, kMaxCountdownSeconds);
        countdownRunning_ = true;
    }
}

MessageBox::~MessageBox() = default;

TextIn MessageBox::ButtonCaption(int index) const {
    if (index < 0 || index > 2) return {};
    return CaptionOf(set_->results[static_cast<std::size_t>(index)]);
}

ButtonsChoice MessageBox::Buttons() const {
    return set_->choice;
}

bool MessageBox::HasCloseBox() const {
    return set_->hasCloseBox;
}

int MessageBox::Picture() const {
    const IconChoice icon = request_.icon;
    return icon < mbNoIcon || icon > mbExclamationCritical ? mbNoIcon : icon;
}

MessageBoxColors MessageBox::Colors() const {
    switch (NormalizedBackground(request_.background)) {
        case mbGray:
            return {kButtonFace, std::nullopt, kButtonFace};
        case mbSkinColor:
            return {skinColor_, skinTextColor_, std::nullopt};
        default:
            return {kWhite, kBlack, Rgb(0xC0, 0xC0, 0xC0)};
    }
}

std::optional<MessageBox::Position> MessageBox::CentredOnOwner() const {
    const auto& owner = request_.owner;
    if (owner == nullptr || !owner->Exists()) return std::nullopt;
    return Position{owner->Left() + owner->Width() / 2 - layout_.form.width / 2,
                    owner->Top() + owner->Height() / 2 - layout_.form.height / 2};
}

std::u16string MessageBox::CopyText() const {
    std::u16string text = title_ + u"\r\n\r\n" + request_.prompt + u"\r\n";
    for (int i = 0; i < ButtonCount(set_->choice); ++i) {
        text += (i == 0 ? u"\r\n" : u"   ") + WithoutAmpersand(ButtonCaption(i));
    }
    return text;
}

void MessageBox::Press(MbMsgBoxResult button) {
    const auto found = std::ranges::find(set_->results, button);
    if (button == kNotAnswered || found == set_->results.end()) {
        throw RuntimeError(Fault::InvalidArgument,
                           u"no such button in the message box: " + IntegerText(button));
    }
    Press(static_cast<int>(found - set_->results.begin()));
}

void MessageBox::Press(int index) {
    if (ButtonCaption(index).empty()) throw RuntimeError(Fault::SubscriptOutOfRange, u"button");
    if (!IsOpen()) return;
    End(IntegerText(set_->results[static_cast<std::size_t>(index)]));
}

MessageBox::KeyAction MessageBox::KeyDown(int keyCode, unsigned modifiers) {
    if (!IsOpen()) return KeyAction::None;
    if (keyCode == 'C' && modifiers == kControl) {
        countdownRunning_ = false;
        return KeyAction::Copy;
    }
    if (const char16_t letter = AcceleratorLetter(keyCode); letter != 0) {
        for (int i = 0; i < 3; ++i) {
            const std::u16string_view caption = ButtonCaption(i);
            if (!caption.empty() && caption[1] == letter) {
                Press(i);
                return KeyAction::Handled;
            }
        }
    }
    countdownRunning_ = false;
    if (keyCode != kEscape || !set_->escapeCloses) return KeyAction::None;
    Close();
    return KeyAction::Handled;
}

void MessageBox::FormKeyPress(int keyAscii) {
    const bool closes = keyAscii == kEnter || keyAscii == kEscape;
    // A visible button has the focus, so no key reaches the form itself.
    if (IsOpen() && closes && ButtonCount(set_->choice) == 0) CloseWith({});
}

void MessageBox::OnClose() {
    if (set_->hasCloseBox) CloseWith(set_->closeResult);
}

void MessageBox::OnAbandon() {
    CloseWith(set_->hasCloseBox ? set_->closeResult : IntegerText(kNotAnswered));
}

void MessageBox::Tick() {
    if (!CountdownRunning()) return;
    caption_ =
        title_ + u"          " + ClockText(countdownElapsed_) + u" / " + ClockText(countdownTotal_);
    ++countdownElapsed_;
    if (countdownElapsed_ == countdownTotal_) {
        End(IntegerText(kClosedByCountdown));
    } else {
        NotifyChanged();
    }
}

void MessageBox::PressScroll(int index) {
    ScrollBy(index == 0 ? kScrollStep : -kScrollStep);
}

void MessageBox::ScrollBy(std::int32_t twips) {
    const std::int64_t wanted = std::int64_t{scrollOffset_} - twips;
    const std::int32_t offset =
        static_cast<std::int32_t>(std::clamp<std::int64_t>(wanted, -layout_.scrollRange, 0));
    if (std::exchange(scrollOffset_, offset) != offset) NotifyChanged();
}

MbMsgBoxResult MessageBox::ReturnedValue() {
    const std::u16string result = TakeResult();
    request_.buttons = mbOkOnly;
    return result.empty() ? mbOK : static_cast<MbMsgBoxResult>(ToInt32(result));
}

void MessageBox::ShownModeless() {
    RefreshOwner();
}

void MessageBox::CloseWith(std::u16string_view result) {
    End(std::u16string(result));
    RefreshOwner();
    request_.owner = nullptr;
}

std::uint32_t MessageBox::OwnerWindow() const {
    return request_.owner != nullptr && request_.owner->Exists() ? request_.owner->Window() : 0;
}

void MessageBox::RefreshOwner() const {
    if (request_.owner != nullptr && request_.owner->Exists()) request_.owner->Refresh();
}

}  // namespace halvek
