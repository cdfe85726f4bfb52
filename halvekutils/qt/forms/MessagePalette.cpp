// SPDX-License-Identifier: MIT
#include <halvekutils/qt/forms/MessagePalette.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <algorithm>

namespace halvek {

namespace {

/// The colour of the focus, dark enough for a light button even on a dark desktop.
QColor OnLightFace(const QColor& highlight) {
    constexpr int kMaxLightness = 80;
    return QColor::fromHsl(highlight.hslHue(), highlight.hslSaturation(),
                           std::min(highlight.lightness(), kMaxLightness));
}

}  // namespace

QPalette MessagePalette(const MessageBoxColors& colors, const QPalette& desktop) {
    const QColor background = ToQColor(colors.background, desktop);
    const QColor wanted =
        colors.text ? ToQColor(*colors.text, desktop) : desktop.color(QPalette::ButtonText);
    const QColor text = design::Visible(wanted, background, design::kMinHostContrast);
    QPalette palette = desktop;
    for (const auto role : {QPalette::Window, QPalette::Base}) palette.setColor(role, background);
    for (const auto role : {QPalette::WindowText, QPalette::Text}) palette.setColor(role, text);
    return palette;
}

QPalette MessageButtonPalette(const MessageBoxColors& colors, const QPalette& desktop) {
    QPalette palette = desktop;
    if (colors.buttonFace && !IsSchemeColor(*colors.buttonFace)) {
        palette.setColor(QPalette::Button, ToQColor(*colors.buttonFace, desktop));
        palette.setColor(QPalette::ButtonText, Qt::black);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::gray);
        palette.setColor(QPalette::Highlight, OnLightFace(desktop.color(QPalette::Highlight)));
    }
    // Arrows are drawn as text; a role that is not set would take the form's colour.
    for (const auto role : {QPalette::WindowText, QPalette::Text}) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            palette.setColor(group, role, palette.color(group, QPalette::ButtonText));
        }
    }
    return palette;
}

}  // namespace halvek
