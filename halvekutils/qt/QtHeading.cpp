// SPDX-License-Identifier: MIT
#include <halvekutils/base/Existing.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/HeadingBorder.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QRadioButton>

namespace halvek {

namespace {

// A style sheet, because the host may have one, which would override a palette. Our rules follow
// the host's own after a mark. Each condition weighs a sixteenth of a name, so this many override
// any rule that a host writes.
constexpr char kProperty[] = "halvekHeading";
constexpr QLatin1String kCondition("[halvekHeading=\"true\"]");
constexpr int kConditions = 64;
constexpr QLatin1String kMark("\n/* heading */\n");

QString SheetOfHost(const QWidget& widget) {
    const QString sheet = widget.styleSheet().section(kMark, 0, 0);
    // A style sheet cannot mix rules with declarations that have no selector.
    const bool isBare = !sheet.trimmed().isEmpty() && !sheet.contains(QLatin1Char('{'));
    return isBare ? QStringLiteral("* {%1}").arg(sheet) : sheet;
}

QString RulesOf(const HeadingLook& look, HeadingKind kind, const QPalette& palette) {
    QColor fore = ToQColor(look.fore, palette);
    QString back = QStringLiteral("none");
    if (look.back) {
        const QColor ground = ToQColor(*look.back, palette);
        fore = design::Visible(fore, ground, design::kMinHostContrast);
        back = ground.name();
    }
    const bool isLabel = kind == HeadingKind::Label;
    return QStringLiteral(
               "%1 { background: %2; color: %3; %4}\n"
               "%1:disabled { color: rgba(%5, %6, %7, 50%); }")
        .arg(QString(kCondition).repeated(kConditions), back, fore.name(),
             isLabel ? QStringLiteral("border: none; ") : QString())
        .arg(fore.red())
        .arg(fore.green())
        .arg(fore.blue());
}

/// Draws the mark of an option button or check box in the colour of the text, on a background of
/// its own.
void KeepMarkReadable(QWidget& control, const QColor& text) {
    const bool isTextDark = qGray(text.rgb()) < 128;
    if (isTextDark == (control.palette().color(QPalette::Base).value() < 128)) {
        QPalette readable;
        readable.setColor(QPalette::Base, isTextDark ? Qt::white : Qt::black);
        control.setPalette(readable.resolve(control.palette()));
    }
}

class WidgetHeading : public HeadingControl {
  public:
    explicit WidgetHeading(QWidget* control) : control_(control) {}

    HeadingKind Kind() const override {
        const QWidget* const control = &Control();
        if (qobject_cast<const QLabel*>(control) != nullptr) return HeadingKind::Label;
        if (qobject_cast<const QRadioButton*>(control) != nullptr) return HeadingKind::OptionButton;
        if (qobject_cast<const QCheckBox*>(control) != nullptr) return HeadingKind::CheckBox;
        return HeadingKind::Other;
    }

    void Show(const HeadingLook& look) override {
        QWidget& control = Control();
        const QString sheet =
            SheetOfHost(control) + kMark + RulesOf(look, Kind(), control.palette());
        if (control.styleSheet() != sheet) {
            control.setProperty(kProperty, true);
            control.setStyleSheet(sheet);
            control.setAutoFillBackground(false);  // last: a style sheet may put it on again
        }
        if (!look.back && Kind() != HeadingKind::Label) {
            KeepMarkReadable(control, ToQColor(look.fore, control.palette()));
        }
        SetHeadingBorder(control, look.border);
    }

  private:
    QWidget& Control() const { return Existing(control_, u"control"); }

    QPointer<QWidget> control_;
};

}  // namespace

std::shared_ptr<HeadingControl> AsHeading(QWidget* control) {
    return control == nullptr ? nullptr : std::make_shared<WidgetHeading>(control);
}

}  // namespace halvek
