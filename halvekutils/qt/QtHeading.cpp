// SPDX-License-Identifier: MIT
#include <halvekutils/base/Existing.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/HeadingBorder.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/SheetRules.h>

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QRadioButton>

namespace halvek {

namespace {

QString Padding(const QSize& taken) {
    const int left = taken.width() / 2;
    const int top = taken.height() / 2;
    return QStringLiteral("border: none; padding: %1px %2px %3px %4px; ")
        .arg(top)
        .arg(taken.width() - left)
        .arg(taken.height() - top)
        .arg(left);
}

/// A padding in place of a label's own frame and padding: without them the label would shrink.
QString FrameOf(QWidget& label) {
    constexpr char kFrame[] = "halvekFrame";
    if (label.property(kFrame).isValid()) return label.property(kFrame).toString();
    label.ensurePolished();
    const QSize framed = label.sizeHint();
    const auto sizeWith = [&](const QSize& taken) {
        SetSheetRules(label, SheetSubject::Heading,
                      QStringLiteral("%1 { %2 }\n").arg(SheetSelector(), Padding(taken)));
        return label.sizeHint();
    };
    QSize taken = framed - sizeWith({0, 0});
    // A label that has a frame or padding indents its text, too.
    taken -= sizeWith(taken) - framed;
    label.setProperty(kFrame, Padding(taken.expandedTo({0, 0})));
    return label.property(kFrame).toString();
}

QString RulesOf(const HeadingLook& look, const QString& frame, const QPalette& palette) {
    QColor fore = ToQColor(look.fore, palette);
    QString back = QStringLiteral("none");
    if (look.back) {
        const QColor ground = ToQColor(*look.back, palette);
        fore = design::Visible(fore, ground, design::kMinHostContrast);
        back = ground.name();
    }
    return QStringLiteral(
               "%1 { background: %2; color: %3; %4}\n"
               "%1:disabled { color: rgba(%5, %6, %7, 50%); }\n")
        .arg(SheetSelector(), back, fore.name(), frame)
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
        const bool isLabel = Kind() == HeadingKind::Label;
        const QString frame = isLabel ? FrameOf(control) : QString();
        SetSheetRules(control, SheetSubject::Heading, RulesOf(look, frame, control.palette()));
        control.setAutoFillBackground(false);  // last: a style sheet may put it on again
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
