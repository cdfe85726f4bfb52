// SPDX-License-Identifier: MIT
#include "Looks.h"

#include <QApplication>
#include <QColor>
#include <QPalette>
#include <QToolTip>

#include <stdexcept>

namespace frontdesk {

namespace {

struct RoleColors {
    QPalette::ColorRole role;
    QRgb enabled;
    QRgb disabled;
};

constexpr RoleColors kLight[] = {
    {QPalette::Window, 0xEFEFEF, 0xEFEFEF},
    {QPalette::WindowText, 0x1A1A1A, 0x757575},
    {QPalette::Base, 0xFFFFFF, 0xF7F7F7},
    {QPalette::AlternateBase, 0xF5F7FA, 0xF2F2F2},
    {QPalette::Text, 0x1A1A1A, 0x757575},
    {QPalette::PlaceholderText, 0x707070, 0x8A8A8A},
    {QPalette::Button, 0xEFEFEF, 0xEFEFEF},
    {QPalette::ButtonText, 0x1A1A1A, 0x757575},
    {QPalette::BrightText, 0xB00020, 0xB00020},
    {QPalette::ToolTipBase, 0xFFFFDC, 0xFFFFDC},
    {QPalette::ToolTipText, 0x1A1A1A, 0x1A1A1A},
    {QPalette::Highlight, 0x1F6FC4, 0x9A9A9A},
    {QPalette::HighlightedText, 0xFFFFFF, 0xFFFFFF},
    {QPalette::Link, 0x0A58B0, 0x757575},
    {QPalette::LinkVisited, 0x6A3DA0, 0x757575},
    {QPalette::Light, 0xFFFFFF, 0xFFFFFF},
    {QPalette::Midlight, 0xF7F7F7, 0xF7F7F7},
    {QPalette::Mid, 0xB8B8B8, 0xB8B8B8},
    {QPalette::Dark, 0x9F9F9F, 0xBEBEBE},
    {QPalette::Shadow, 0x767676, 0xB1B1B1},
};

constexpr RoleColors kDark[] = {
    {QPalette::Window, 0x2B2D30, 0x2B2D30},
    {QPalette::WindowText, 0xE8E8E8, 0x9A9DA1},
    {QPalette::Base, 0x1E1F22, 0x26282B},
    {QPalette::AlternateBase, 0x25272A, 0x26282B},
    {QPalette::Text, 0xE8E8E8, 0x9A9DA1},
    {QPalette::PlaceholderText, 0x9DA1A6, 0x85898E},
    {QPalette::Button, 0x3B3E43, 0x323539},
    {QPalette::ButtonText, 0xE8E8E8, 0x9A9DA1},
    {QPalette::BrightText, 0xFF8A80, 0xFF8A80},
    {QPalette::ToolTipBase, 0x45494E, 0x45494E},
    {QPalette::ToolTipText, 0xF2F2F2, 0xF2F2F2},
    {QPalette::Highlight, 0x6AB0FF, 0x5A5E63},
    {QPalette::HighlightedText, 0x10151C, 0xE8E8E8},
    {QPalette::Link, 0x7DBBFF, 0x9A9DA1},
    {QPalette::LinkVisited, 0xCDA9FF, 0x9A9DA1},
    {QPalette::Light, 0x55595F, 0x4A4E53},
    {QPalette::Midlight, 0x484C51, 0x404449},
    {QPalette::Mid, 0x5C6066, 0x4A4E53},
    {QPalette::Dark, 0x18191B, 0x18191B},
    {QPalette::Shadow, 0x0C0D0E, 0x0C0D0E},
};

template <std::size_t n>
QPalette MakePalette(const RoleColors (&table)[n]) {
    QPalette palette;
    for (const RoleColors& row : table) {
        palette.setColor(QPalette::All, row.role, QColor(row.enabled));
        palette.setColor(QPalette::Disabled, row.role, QColor(row.disabled));
    }
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
