// SPDX-License-Identifier: MIT
#include "Looks.h"

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr const char* kPalettes[] = {"light", "dark", "contrast"};

// Of each palette; in the last, white on black and nothing between them
constexpr QRgb kButtons[] = {0xEFEFEF, 0x3B3E43, 0x000000};
constexpr QRgb kWindows[] = {0xEFEFEF, 0x2B2D30, 0x000000};
constexpr struct {
    QPalette::ColorRole role;
    QRgb colors[3];
} kOthers[] = {{QPalette::Base, {0xFFFFFF, 0x1E1F22, 0x000000}},
               {QPalette::AlternateBase, {0xF5F7FA, 0x25272A, 0x000000}},
               {QPalette::PlaceholderText, {0x707070, 0x9DA1A6, 0xFFFFFF}},
               {QPalette::ToolTipBase, {0xFFFFDC, 0x45494E, 0x000000}},
               {QPalette::ToolTipText, {0x1A1A1A, 0xF2F2F2, 0xFFFFFF}},
               {QPalette::Highlight, {0x1F6FC4, 0x6AB0FF, 0xFFFF00}},
               {QPalette::HighlightedText, {0xFFFFFF, 0x10151C, 0x000000}},
               {QPalette::Link, {0x0A58B0, 0x7DBBFF, 0x00FFFF}}};

}  // namespace

void UseLooks(const QString& palette, int points) {
    QApplication::setStyle("Fusion");
    const auto which = std::ranges::find(kPalettes, palette) - kPalettes;
    QPalette colors(kButtons[which], kWindows[which]);
    for (const auto& [role, ofEach] : kOthers) colors.setColor(role, ofEach[which]);
    QApplication::setPalette(colors);
    QToolTip::setPalette(colors);
    QApplication::setCursorFlashTime(0);
    if (points == 0) return;
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
}
