// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/MessageBoxButtons.h>
#include <halvekutils/dialogs/MessageBoxLayout.h>
#include <halvekutils/platform/Design.h>

#include <algorithm>
#include <vector>

namespace halvek {

namespace {

// The form as designed.
constexpr std::int32_t kMessageTop = design::kMargin;
constexpr std::int32_t kMessageLeftWithIcon = 690;
constexpr std::int32_t kMessageLeftAlone = 400;
constexpr std::int32_t kButtonTop = 135;
constexpr std::int32_t kButtonBottom = 150;
constexpr Rect kIcon = {150, 280, 480, 480};
constexpr std::int32_t kLabelLeft = 60;  // leaves room for the scroll buttons at the right
constexpr std::int32_t kLabelTop = 45;
constexpr Size kScrollButton = {360, 360};
constexpr std::int32_t kScrollMargin = 30;

// Measuring more of a line cannot change the layout: no character is that narrow on any screen.
constexpr std::size_t kMeasuredLength = 1000;
constexpr std::size_t kMeasuredSingleLine = 10'000;

// A line that folds is about this long, which reads well.
constexpr std::int32_t kReadableLength = 90;
constexpr std::u16string_view kTypicalLetters = u"the quick brown fox jumps over a lazy dog ";

constexpr std::int32_t kFormMargin = 800;
constexpr std::int32_t kMinMessageWidth = 4600;
constexpr std::int32_t kMinMessageHeight = 800;
constexpr std::int32_t kMaxMessageHeight = 8600;

bool IsMultiLine(TextIn prompt) {
    return prompt.find(u"\r\n") != std::u16string_view::npos;
}

std::int32_t SingleLineWidth(const MessageBoxContent& content, const TextMeter& meter) {
    const TextIn measured = content.prompt.substr(0, kMeasuredSingleLine);
    return meter.TextWidth(measured, content.font) + (content.font.bold ? 4000 : 600);
}

std::int32_t Slack(std::int32_t textHeight) {
    return textHeight > 5000 ? 700 : 100;
}

std::int32_t WidestLabel(Size screen) {
    return screen.width * 4 / 5;
}

Size FoldedLabel(const MessageBoxContent& content, const TextMeter& meter, std::int32_t width) {
    const std::int32_t height = meter.WrappedHeight(content.prompt, content.font, width);
    return {width, height + Slack(height)};
}

Size MultiLineLabel(const MessageBoxContent& content, const TextMeter& meter, Size screen) {
    const TextIn measured = content.prompt.substr(0, kMeasuredLength);
    const std::int32_t width = meter.TextWidth(measured, content.font) + 120;
    if (width > WidestLabel(screen)) return FoldedLabel(content, meter, WidestLabel(screen));
    const std::int32_t height = meter.TextHeight(content.prompt, content.font);
    return {width, height + Slack(height)};
}

std::int32_t ReadableWidth(const FontSpec& font, const TextMeter& meter) {
    return meter.TextWidth(kTypicalLetters, font) * kReadableLength /
           static_cast<std::int32_t>(kTypicalLetters.size());
}

/// The sizes that suit a prompt, the best one first.
std::vector<Size> LabelSizes(const MessageBoxContent& content, const TextMeter& meter,
                             Size screen) {
    if (IsMultiLine(content.prompt)) return {MultiLineLabel(content, meter, screen)};
    const std::int32_t width = SingleLineWidth(content, meter);
    if (width + MessageBoxLayout::kTextMargin + kFormMargin <= screen.width) {
        return {{width, meter.TextHeight(content.prompt, content.font)}};
    }
    const std::int32_t widest = WidestLabel(screen);
    const std::int32_t readable = std::min(ReadableWidth(content.font, meter), widest);
    return {FoldedLabel(content, meter, readable), FoldedLabel(content, meter, widest)};
}

/// The size of each button of a set: the widest caption fits into the desktop's font.
Size ButtonSize(ButtonsChoice buttons, const TextMeter& meter) {
    Size widest = {0, meter.TextHeight(u"Yes", DesktopFont())};  // all captions are as tall
    for (const MbMsgBoxResult result : ButtonSetOf(buttons).results) {
        const std::u16string_view caption = CaptionOf(result);
        if (caption.empty()) continue;
        const std::u16string_view shown = caption.substr(1);  // without the accelerator's mark
        widest.width = std::max(widest.width, meter.TextWidth(shown, DesktopFont()));
    }
    return design::ButtonFor(widest);
}

/// The form's outer height after its limits, which apply in this order: a height just above 9300
/// ends slightly below 8870.
std::int32_t LimitHeight(std::int32_t height) {
    if (height > 9300) height -= 450;
    return std::min(height, 8870);
}

/// The left edges of buttons of this width in a frame.
std::array<std::int32_t, 3> ButtonLefts(int count, std::int32_t width, std::int32_t frame) {
    if (count == 1) return {frame / 2 - width / 2};
    if (count == 2) {
        const std::int32_t first = frame / 2 - width - design::kGap / 2;
        return {first, first + width + design::kGap};
    }
    const std::int32_t gap = (frame - 3 * width) / 4;
    const std::int32_t middle = width + 2 * gap;
    const std::int32_t pull = std::max(gap - design::kGap, 0);
    return {middle - width - gap + pull, middle, middle + width + gap - pull};
}

/// The least width of a message frame; wide captions raise it.
std::int32_t MinMessageWidth(int buttonCount, Size button) {
    const std::int32_t form = buttonCount * button.width + (buttonCount + 1) * design::kGap;
    return std::max(kMinMessageWidth, form - kFormMargin);
}

void PlaceFrames(MessageBoxLayout& layout, const MessageBoxContent& content, Size label,
                 Size button) {
    const std::int32_t least = MinMessageWidth(ButtonCount(content.buttons), button);
    Rect& message = layout.messageFrame;
    message.left = content.hasIcon ? kMessageLeftWithIcon : kMessageLeftAlone;
    message.top = kMessageTop;
    message.width = label.width + MessageBoxLayout::kTextMargin;
    if (message.width < least) {
        message.width = least;
        label.width = least;
    }
    message.height = std::clamp(label.height + 90, kMinMessageHeight, kMaxMessageHeight);
    layout.label = {kLabelLeft, kLabelTop, label.width, label.height};
    layout.form.width = message.width + kFormMargin;
    layout.buttonFrame = {0, message.Bottom(), layout.form.width,
                          kButtonTop + button.height + kButtonBottom};
}

void PlaceForm(MessageBoxLayout& layout, Size screen, Size frame) {
    const std::int32_t height = LimitHeight(layout.buttonFrame.Bottom() + frame.height);
    layout.form.height = std::min(height, screen.height);
    layout.inner = {layout.form.width, layout.form.height - frame.height};
    Rect& buttons = layout.buttonFrame;
    buttons.top = std::min(buttons.top, layout.inner.height - buttons.height);
}

void PlaceButtons(MessageBoxLayout& layout, int count, Size button) {
    const auto lefts = ButtonLefts(count, button.width, layout.buttonFrame.width);
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        layout.buttons[i] = Rect{lefts[i], kButtonTop, button.width, button.height};
    }
}

/// Places the parts that depend on the wrapped text, which is taller than the label that was
/// measured: scrolling must reach its last line.
void PlaceText(MessageBoxLayout& layout, bool hasButtons, std::int32_t textHeight) {
    Rect& label = layout.label;
    const std::int32_t below = hasButtons ? layout.buttonFrame.height : 0;
    const std::int32_t bottom = std::min(layout.messageFrame.Bottom(),
                                         hasButtons ? layout.buttonFrame.top : layout.inner.height);
    const std::int32_t visible = bottom - layout.messageFrame.top;
    const std::int32_t view = visible - kLabelTop;
    const std::int32_t space = layout.inner.height - below - 100;
    layout.canScroll = label.height > space || textHeight > view;
    if (layout.canScroll) {
        layout.scrollRange = std::max(textHeight - view, 0);
    } else {
        label.top = std::max((visible - textHeight) / 2, kLabelTop);
    }
    layout.viewHeight = visible - label.top;
    const std::int32_t left = layout.messageFrame.width - kScrollButton.width;
    const std::int32_t last = kLabelTop + view - kScrollButton.height - kScrollMargin;
    layout.scrollButtons[0] = {left, last, kScrollButton.width, kScrollButton.height};
    layout.scrollButtons[1] = {left, kScrollMargin, kScrollButton.width, kScrollButton.height};
}

MessageBoxLayout LayOutAround(Size label, const MessageBoxContent& content, const TextMeter& meter,
                              Size screen, Size frame) {
    MessageBoxLayout layout;
    const int buttonCount = ButtonCount(content.buttons);
    const Size button = ButtonSize(content.buttons, meter);
    PlaceFrames(layout, content, label, button);
    PlaceForm(layout, screen, frame);
    PlaceButtons(layout, buttonCount, button);
    PlaceText(layout, buttonCount > 0,
              meter.WrappedHeight(content.prompt, content.font, layout.ViewWidth()));
    if (content.hasIcon) layout.icon = kIcon;
    return layout;
}

}  // namespace

MessageBoxLayout LayOutMessageBox(const MessageBoxContent& content, const TextMeter& meter,
                                  Size screen, Size frame) {
    MessageBoxLayout layout;
    for (const Size label : LabelSizes(content, meter, screen)) {
        layout = LayOutAround(label, content, meter, screen, frame);
        if (!layout.canScroll) break;
    }
    return layout;
}

}  // namespace halvek
