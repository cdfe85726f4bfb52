// SPDX-License-Identifier: MIT
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/CalculatorPad.h>
#include <halvekutils/qt/forms/FlashButton.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/FocusRing.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/SpokenNotice.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace halvek {

namespace {

// In twips.
constexpr std::int32_t kButtonWidth = 840;
constexpr std::int32_t kButtonHeight = 720;

constexpr double kButtonFont = 1.4;  // times the desktop's
constexpr int kPrimaryTone = 130;    // per cent
constexpr int kTint = 16;            // per cent of the highlight in buttons other than digits

/// The buttons as the user sees them, in tab order. A button listed in two rows spans both.
constexpr int kFace[4][5] = {
    {7, 8, 9, Calculator::kDivide, Calculator::kClear},
    {4, 5, 6, Calculator::kMultiply, Calculator::kEquals},
    {1, 2, 3, Calculator::kMinus, Calculator::kEquals},
    {0, Calculator::kPoint, Calculator::kChangeSign, Calculator::kPlus, Calculator::kReturn},
};

/// What screen readers and tool tips call the buttons after the digits, and the keys that press
/// them.
constexpr struct {
    const char* name;
    const char* key;
} kNames[] = {
    {"change sign", ""}, {"point", "."},      {"divide", "/"},
    {"multiply", "*"},   {"minus", "-"},      {"plus", "+"},
    {"equals", "="},     {"clear", "Delete"}, {"return the result", "Enter"},
};
static_assert(Calculator::kChangeSign + std::size(kNames) == Calculator::kButtonCount);

/// Digits look like the desktop's buttons, the buttons that act on numbers are tinted, and RET
/// stands out.
QPalette Tone(int index, QPalette colors) {
    const QColor highlight = colors.color(QPalette::Highlight);
    const QColor face = colors.color(QPalette::Button);
    if (index == Calculator::kReturn) {
        const QColor text = colors.color(QPalette::HighlightedText);
        // Styles lighten the upper part of a button; light text must be readable there, too.
        const bool isDark = text.lightness() > highlight.lightness();
        colors.setColor(QPalette::Button, isDark ? highlight.darker(kPrimaryTone) : highlight);
        colors.setColor(QPalette::ButtonText, design::Visible(text, highlight, 4.5));
    } else if (index >= Calculator::kDivide) {
        colors.setColor(QPalette::Button, design::Blended(highlight, face, kTint));
    }
    return colors;
}

QSize ButtonSize(const QFontMetrics& metrics) {
    const int widest =
        metrics.horizontalAdvance(ToQString(Calculator::Caption(Calculator::kReturn)));
    return {std::max(TwipsToPixels(kButtonWidth), widest + metrics.height()),
            std::max(TwipsToPixels(kButtonHeight), metrics.height() * 2)};
}

}  // namespace

CalculatorPad::CalculatorPad(Calculator& rules, QWidget* form)
    : rules_(rules),
      notice_(new SpokenNotice(*form)),
      focus_(rules.Focus()),
      display_(ToQString(rules.Display())) {
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 5; ++column) {
            const int index = kFace[row][column];
            FlashButton*& button = buttons_[static_cast<std::size_t>(index)];
            if (button != nullptr) continue;
            button = MakeButton(index, form);
            const int rows = row < 3 && kFace[row + 1][column] == index ? 2 : 1;
            addWidget(button, row, column, rows, 1);
        }
    }
}

FlashButton* CalculatorPad::MakeButton(int index, QWidget* form) {
    auto* const button = new FlashButton(ToCaption(Calculator::Caption(index)), form);
    button->setObjectName(QStringLiteral("arrCmd_%1").arg(index));
    if (index >= Calculator::kChangeSign) {
        const auto& [name, key] = kNames[index - Calculator::kChangeSign];
        button->setAccessibleName(tr(name));
        button->setToolTip(*key == 0 ? tr(name) : QStringLiteral("%1 (%2)").arg(tr(name), tr(key)));
    } else {
        button->setAccessibleName(button->text());
    }
    button->setFont(design::ScaledFont(kButtonFont));
    button->SetTone(Tone(index, form->palette()));
    button->setMinimumSize(ButtonSize(button->fontMetrics()));
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus);  // the form decides where a click leaves the focus
    new FocusRing(*button);
    button->installEventFilter(form);
    connect(button, &QPushButton::clicked, this, [this, index] {
        GuardEvent(u"frmCalculator.arrCmd_Click", [this, index] { rules_.Press(index); });
    });
    return button;
}

int CalculatorPad::IndexOf(const QObject* object) const {
    const auto button = std::ranges::find(buttons_, object);
    return button == buttons_.end() ? Calculator::kBox
                                    : static_cast<int>(button - buttons_.begin());
}

QString CalculatorPad::SpokenDisplay() const {
    const QString shown = ToQString(rules_.Display());
    return tr("Display") + u' ' + (shown.isEmpty() ? tr("empty") : shown);
}

void CalculatorPad::Announce() {
    const QString display = SpokenDisplay();
    for (FlashButton* const button : buttons_) {
        const QString told = IndexOf(button) == rules_.Focus() ? display : QString();
        if (button->accessibleDescription() != told) button->setAccessibleDescription(told);
    }
    // Some changes come in steps.
    QMetaObject::invokeMethod(
        this, [this] { GuardEvent(u"frmCalculator.Announce", [this] { SayChange(); }); },
        Qt::QueuedConnection);
}

void CalculatorPad::SayChange() {
    const QString shown = ToQString(rules_.Display());
    const bool isHeard = rules_.Focus() == Calculator::kBox || rules_.Focus() != focus_ ||
                         shown == display_ || IsTyped(shown);
    focus_ = rules_.Focus();
    display_ = shown;
    numberDone_ = rules_.NumberDone();
    if (!isHeard) notice_->Say(SpokenDisplay());
}

/// Whether the display has got one more digit, a key that people hear already.
bool CalculatorPad::IsTyped(const QString& display) const {
    const QString before = numberDone_ ? QString() : display_;
    return !rules_.NumberDone() && display.startsWith(before) &&
           display.size() == before.size() + 1;
}

void CalculatorPad::EndFlashes() {
    for (FlashButton* const button : buttons_) button->EndFlash();
}

}  // namespace halvek
