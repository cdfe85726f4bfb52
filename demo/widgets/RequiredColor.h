// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/core/Utils.h>

#include <QColor>
#include <QPalette>
#include <QWidget>

namespace frontdesk {

inline QColor ToQColor(halvek::Color color) {
    return {halvek::RedOf(color), halvek::GreenOf(color), halvek::BlueOf(color)};
}

/// Gives a field that must be filled in the practice's colour for it.
inline void ShowAsRequired(QWidget& field, const halvek::Utils& library) {
    const halvek::Color back = library.RequiredFieldBackColor();
    QPalette palette = field.palette();
    palette.setColor(QPalette::Base, ToQColor(back));
    palette.setColor(QPalette::Text, halvek::IsDark(back) ? Qt::white : Qt::black);
    field.setPalette(palette);
}

}  // namespace frontdesk
