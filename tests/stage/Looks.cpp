// SPDX-License-Identifier: MIT
#include "Looks.h"

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <QToolTip>

namespace {

constexpr struct {
    QPalette::ColorRole role;
    QRgb light, dark;
} kColors[] = {{QPalette::Base, 0xFFFFFF, 0x1E1F22},
               {QPalette::AlternateBase, 0xF5F7FA, 0x25272A},
               {QPalette::PlaceholderText, 0x707070, 0x9DA1A6},
               {QPalette::ToolTipBase, 0xFFFFDC, 0x45494E},
               {QPalette::ToolTipText, 0x1A1A1A, 0xF2F2F2},
               {QPalette::Highlight, 0x1F6FC4, 0x6AB0FF},
               {QPalette::HighlightedText, 0xFFFFFF, 0x10151C},
               {QPalette::Link, 0x0A58B0, 0x7DBBFF}};

/// White on black, and nothing between them
QPalette HighContrast() {
    QPalette colors(Qt::white, Qt::black, Qt::black, Qt::black, Qt::black, Qt::white, Qt::white,
                    Qt::black, Qt::black);
    colors.setColor(QPalette::Highlight, Qt::yellow);
    colors.setColor(QPalette::HighlightedText, Qt::black);
    colors.setColor(QPalette::Link, Qt::cyan);
    return colors;
}

}  // namespace

void UseLooks(const QString& palette, int points) {
    QApplication::setStyle("Fusion");
    const bool isDark = palette == "dark";
    QPalette colors = isDark ? QPalette(0x3B3E43, 0x2B2D30) : QPalette(0xEFEFEF, 0xEFEFEF);
    for (const auto& [role, light, dark] : kColors) colors.setColor(role, isDark ? dark : light);
    if (palette == "contrast") colors = HighContrast();
    QApplication::setPalette(colors);
    QToolTip::setPalette(colors);
    QApplication::setCursorFlashTime(0);
    if (points == 0) return;
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
}
