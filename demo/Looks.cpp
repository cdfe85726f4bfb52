// SPDX-License-Identifier: MIT
#include "Looks.h"

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <QToolTip>

#include <stdexcept>

namespace frontdesk {

namespace {

/// The colours that a desktop's palette is made of.
struct Colors {
    QRgb window, base, button, text, quiet, highlight, highlightedText;
};

constexpr Colors kLight = {0xEFEFEF, 0xFFFFFF, 0xEFEFEF, 0x1A1A1A, 0x757575, 0x1F6FC4, 0xFFFFFF};
constexpr Colors kDark = {0x2B2D30, 0x1E1F22, 0x3B3E43, 0xE8E8E8, 0x9A9DA1, 0x6AB0FF, 0x10151C};

QPalette MakePalette(const Colors& colors) {
    QPalette palette(QColor(colors.button), QColor(colors.window));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(colors.text));
        palette.setColor(QPalette::Disabled, role, QColor(colors.quiet));
    }
    palette.setColor(QPalette::Base, QColor(colors.base));
    palette.setColor(QPalette::PlaceholderText, QColor(colors.quiet));
    palette.setColor(QPalette::Highlight, QColor(colors.highlight));
    palette.setColor(QPalette::HighlightedText, QColor(colors.highlightedText));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colors.quiet));
    return palette;
}

// Fusion derives the outline of a field from the colour of the window: on a dark one it can hardly
// be seen.
constexpr QRgb kDarkOutline = 0x8F9296;
constexpr const char* kOutlined[] = {"QAbstractItemView", "QAbstractSpinBox", "QCheckBox",
                                     "QComboBox",         "QLineEdit",        "QPlainTextEdit"};

void UseLight() {
    QApplication::setPalette(MakePalette(kLight));
}

void UseDark() {
    QPalette palette = MakePalette(kDark);
    QApplication::setPalette(palette);
    palette.setColor(QPalette::Window, QColor(kDarkOutline));
    for (const char* field : kOutlined) QApplication::setPalette(palette, field);
}

struct Looks {
    const char* name;
    void (*use)();
};

constexpr Looks kLooks[] = {{"light", UseLight}, {"dark", UseDark}};

}  // namespace

QStringList LooksNames() {
    QStringList names;
    for (const Looks& looks : kLooks) names << looks.name;
    return names;
}

void UseLooks(const QString& name) {
    for (const Looks& looks : kLooks) {
        if (looks.name != name) continue;
        QApplication::setStyle("Fusion");
        looks.use();
        QToolTip::setPalette(QApplication::palette());
        QApplication::setCursorFlashTime(0);
        return;
    }
    throw std::runtime_error("there is no palette " + name.toStdString());
}

}  // namespace frontdesk
