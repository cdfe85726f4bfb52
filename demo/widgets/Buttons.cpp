// SPDX-License-Identifier: MIT
#include "widgets/Buttons.h"

#include <QApplication>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPalette>

namespace frontdesk {

namespace {

/// Paints a glyph in a colour when it is needed, since the desktop's colours may change.
class Engine : public QIconEngine {
  public:
    Engine(const QString& glyph, const QColor& color)
        : glyph_(":/icons/" + glyph + ".png"), color_(color) {}

    QIconEngine* clone() const override { return new Engine(*this); }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        QImage tinted = glyph_.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPainter painter(&tinted);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        const QColor text = QApplication::palette().color(group, QPalette::ButtonText);
        painter.fillRect(tinted.rect(), color_.isValid() ? color_ : text);
        painter.end();
        return QPixmap::fromImage(tinted);
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const QSize size = rect.size() * painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, pixmap(size, mode, state));
    }

  private:
    QImage glyph_;
    QColor color_;
};

}  // namespace

QIcon MakeIcon(const QString& glyph, const QColor& color) {
    return QIcon(new Engine(glyph, color));
}

QPushButton* MakeButton(const QString& text) {
    constexpr int kPadding = 14;
    auto* button = new QPushButton(text);
    button->setMinimumHeight(button->fontMetrics().height() + kPadding);
    button->setMinimumWidth(button->sizeHint().width() + kPadding);
    return button;
}

QPushButton* MakePrimaryButton(const QString& text) {
    auto* button = MakeButton(text);
    button->setMinimumWidth(0);
    button->setShortcut(Qt::CTRL | Qt::Key_Return);
    button->setToolTip("Ctrl+Enter");
    button->setStyleSheet(
        "QPushButton { background: palette(highlight); color: palette(highlighted-text);"
        " font-weight: 600; padding: 2px 14px; border: 2px solid palette(highlight);"
        " border-radius: 5px; }"
        "QPushButton:focus { border-color: palette(window-text); }"
        "QPushButton:pressed, QPushButton:disabled { background: palette(mid);"
        " border-color: palette(mid); color: palette(button); }");
    return button;
}

// A new text clears the key.
void SetText(QPushButton& button, const QString& text) {
    const QKeySequence key = button.shortcut();
    button.setText(text);
    button.setShortcut(key);
}

QToolButton* MakeToolButton(const QString& name, const QKeySequence& key) {
    auto* button = new QToolButton;
    button->setAccessibleName(name);
    button->setShortcut(key);
    button->setToolTip(QString("%1 (%2)").arg(name, key.toString(QKeySequence::NativeText)));
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

}  // namespace frontdesk
