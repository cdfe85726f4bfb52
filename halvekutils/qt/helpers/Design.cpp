// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/FocusRing.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/PushButton.h>

#include <QApplication>
#include <QLayout>
#include <QPainter>
#include <QPushButton>

#include <algorithm>
#include <cmath>

namespace halvek::design {

namespace {

/// The share of light that a colour gives off, from 0 to 1.
double Luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

}  // namespace

int Margin() {
    return TwipsToPixels(kMargin);
}
int Gap() {
    return TwipsToPixels(kGap);
}

void SpaceOut(QLayout& layout) {
    layout.setContentsMargins(Margin(), Margin(), Margin(), Margin());
    layout.setSpacing(Gap());
}

double Contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool IsHighContrast() {
    constexpr double kNearlyAll = 20;  // ordinary light desktops come to 19
    const QPalette desktop = QApplication::palette();
    return Contrast(desktop.color(QPalette::WindowText), desktop.color(QPalette::Window)) >
           kNearlyAll;
}

QColor Visible(const QColor& wanted, const QColor& ground, double contrast) {
    if (Contrast(wanted, ground) >= contrast) return wanted;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return Contrast(black, ground) > Contrast(white, ground) ? black : white;
}

QColor Blended(const QColor& one, const QColor& other, int share) {
    const auto mixed = [share](int from, int to) {
        return (from * share + to * (100 - share)) / 100;
    };
    return QColor(mixed(one.red(), other.red()), mixed(one.green(), other.green()),
                  mixed(one.blue(), other.blue()));
}

QPalette Paper(QPalette desktop) {
    const bool isHighContrast = IsHighContrast();
    for (const auto role : {QPalette::Base, QPalette::Light}) desktop.setColor(role, Qt::white);
    for (const auto role : {QPalette::Text, QPalette::WindowText}) {
        desktop.setColor(role, Qt::black);
    }
    // Lines and outlines are darker tones of the window.
    desktop.setColor(QPalette::Window, isHighContrast ? Qt::gray : QColor(0xEF, 0xEF, 0xEF));
    desktop.setColor(QPalette::Mid, isHighContrast ? Qt::darkGray : QColor(0xB8, 0xB8, 0xB8));
    return desktop;
}

QFont ScaledFont(double factor) {
    QFont font = QApplication::font();
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * factor);
    } else {
        font.setPixelSize(qRound(font.pixelSize() * factor));
    }
    return font;
}

void PaintRing(QPainter& painter, const QRectF& area, const QColor& color) {
    constexpr double kHalf = kRingWidth / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, kRingWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(kHalf, kHalf, -kHalf, -kHalf), kCorner, kCorner);
    painter.restore();
}

QPushButton* NewButton(const char* name, const QString& caption, QWidget* parent) {
    auto* const button = new PushButton(caption, parent);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
    button->setAutoDefault(false);
    new FocusRing(*button);
    return button;
}

void MakeAlike(std::initializer_list<QPushButton*> buttons) {
    halvek::Size widest;
    for (const QPushButton* const button : buttons) {
        const QSize caption = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
        widest.width = std::max(widest.width, PixelsToTwips(caption.width()));
        widest.height = std::max(widest.height, PixelsToTwips(caption.height()));
    }
    const halvek::Size size = ButtonFor(widest);
    for (QPushButton* const button : buttons) {
        button->setMinimumSize(TwipsToPixels(size.width), TwipsToPixels(size.height));
    }
}

}  // namespace halvek::design
