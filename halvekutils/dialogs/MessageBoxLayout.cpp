// SPDX-License-Identifier: MIT
#include <halvekutils/dialogs/MessageBoxButtons.h>
#include <halvekutils/dialogs/MessageBoxLayout.h>

#include <algorithm>

namespace halvek {

namespace {

// The form as designed.
constexpr std::int32_t kMessageTop = 120;
constexpr std::int32_t kMessageLeftWithIcon = 690;
constexpr std::int32_t kMessageLeftAlone = 400;
constexpr std::int32_t kButtonFrameHeight = 705;
constexpr Size kButton = {1300, 420};
constexpr std::int32_t kButtonTop = 135;
constexpr Rect kIcon = {150, 280, 480, 480};
constexpr std::int32_t kLabelLeft = 105;
constexpr std::int32_t kLabelTop = 45;
constexpr Size kScrollButton = {270, 270};
constexpr std::int32_t kScrollMargin = 30;

// Measuring more of a line cannot change the layout: no character is that narrow on any screen.
constexpr std::size_t kMeasuredLength = 1000;
constexpr std::size_t kMeasuredSingleLine = 10'000;

constexpr std::int32_t kFormMargin = 800;
constexpr std::int32_t kMessageMargin = 420;
constexpr std::int32_t kLeastMessageWidth = 4600;
constexpr std::int32_t kLeastMessageHeight = 800;
constexpr std::int32_t kMostMessageHeight = 8600;
constexpr std::int32_t kButtonGap = 80;

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

Size MultiLineLabel(const MessageBoxContent& content, const TextMeter& meter, Size screen) {
    const TextIn measured = content.prompt.substr(0, kMeasuredLength);
    const std::int32_t width = meter.TextWidth(measured, content.font) + 120;
    const std::int32_t height = meter.TextHeight(content.prompt, content.font);
    return {std::min(width, screen.width * 4 / 5), height + Slack(height)};
}

/// One line that would not fit on the screen, wrapped at the width that several lines may have.
Size WrappedLineLabel(const MessageBoxContent& content, const TextMeter& meter, Size screen) {
    const std::int32_t width = screen.width * 4 / 5;
    const std::int32_t height = meter.WrappedHeight(content.prompt, content.font, width);
    return {width, height + Slack(height)};
}

Size LabelSize(const MessageBoxContent& content, const TextMeter& meter, Size screen) {
    if (IsMultiLine(content.prompt)) return MultiLineLabel(content, meter, screen);
    const std::int32_t width = SingleLineWidth(content, meter);
    if (width + kMessageMargin + kFormMargin > screen.width) {
        return WrappedLineLabel(content, meter, screen);
    }
    return {width, meter.TextHeight(content.prompt, content.font)};
}

/// The form's outer height after its limits, which apply in this order: a height just above 9300
/// ends slightly below 8870.
std::int32_t LimitHeight(std::int32_t height) {
    if (height > 9300) height -= 450;
    return std::min(height, 8870);
}

/// The left edges of the buttons in a frame of this width.
std::array<std::int32_t, 3> ButtonLefts(int count, std::int32_t frame) {
    const std::int32_t width = kButton.width;
    if (count == 1) return {frame / 2 - width / 2};
    if (count == 2) {
        const std::int32_t first = frame / 2 - width - kButtonGap / 2;
        return {first, first + width + kButtonGap};
    }
    const std::int32_t gap = (frame - 3 * width) / 4;
    const std::int32_t middle = width + 2 * gap;
    const std::int32_t pull = std::max(gap - kButtonGap, 0);
    return {middle - width - gap + pull, middle, middle + width + gap - pull};
}

void PlaceFrames(MessageBoxLayout& layout, bool hasIcon, Size label) {
    Rect& message = layout.messageFrame;
    message.left = hasIcon ? kMessageLeftWithIcon : kMessageLeftAlone;
    message.top = kMessageTop;
    message.width = label.width + kMessageMargin;
    if (message.width < kLeastMessageWidth) {
        message.width = kLeastMessageWidth;
        label.width = kLeastMessageWidth;
    }
    message.height = std::clamp(label.height + 90, kLeastMessageHeight, kMostMessageHeight);
    layout.label = {kLabelLeft, kLabelTop, label.width, label.height};
    layout.buttonFrame = {message.left, message.Bottom(), message.width, kButtonFrameHeight};
}

void PlaceForm(MessageBoxLayout& layout, Size screen, Size frame) {
    const std::int32_t height = LimitHeight(layout.buttonFrame.Bottom() + frame.height);
    layout.form = {layout.messageFrame.width + kFormMargin, std::min(height, screen.height)};
    layout.inner = {layout.form.width, layout.form.height - frame.height};
    Rect& buttons = layout.buttonFrame;
    buttons.top = std::min(buttons.top, layout.inner.height - buttons.height);
}

void PlaceButtons(MessageBoxLayout& layout, int count) {
    const auto lefts = ButtonLefts(count, layout.buttonFrame.width);
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        layout.buttons[i] = Rect{lefts[i], kButtonTop, kButton.width, kButton.height};
    }
}

/// Places what depends on the wrapped text: wrapped lines are taller than the label was measured,
/// and scrolling reaches the last of them.
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
    const std::int32_t left = layout.messageFrame.width - kScrollButton.width - kScrollMargin;
    const std::int32_t last = kLabelTop + view - kScrollButton.height - kScrollMargin;
    layout.scrollButtons[0] = {left, last, kScrollButton.width, kScrollButton.height};
    layout.scrollButtons[1] = {left, kScrollMargin, kScrollButton.width, kScrollButton.height};
}

}  // namespace

MessageBoxLayout LayOutMessageBox(const MessageBoxContent& content, const TextMeter& meter,
                                  Size screen, Size frame) {
    MessageBoxLayout layout;
    const int buttonCount = ButtonCount(content.buttons);
    PlaceFrames(layout, content.hasIcon, LabelSize(content, meter, screen));
    PlaceForm(layout, screen, frame);
    PlaceButtons(layout, buttonCount);
    PlaceText(layout, buttonCount > 0,
              meter.WrappedHeight(content.prompt, content.font, layout.label.width));
    if (content.hasIcon) layout.icon = kIcon;
    return layout;
}

}  // namespace halvek
