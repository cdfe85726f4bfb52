// SPDX-License-Identifier: MIT
#include <halvekutils/qt/helpers/SheetRules.h>

#include <QVariant>
#include <QWidget>

namespace halvek {

namespace {

// Our rules follow the host's own after a mark. Each condition weighs a sixteenth of a name, so
// this many override any rule that a host writes.
constexpr char kMarked[] = "halvekRules";
constexpr QLatin1String kCondition("[halvekRules=\"true\"]");
constexpr int kConditions = 64;
constexpr QLatin1String kMark("\n/* halvekutils */\n");

const char* PropertyOf(SheetSubject subject) {
    return subject == SheetSubject::Heading ? "halvekHeadingRules" : "halvekFontRules";
}

QString RulesOf(const QWidget& control, SheetSubject subject) {
    return control.property(PropertyOf(subject)).toString();
}

QString SheetOfHost(const QWidget& control) {
    const QString sheet = control.styleSheet().section(kMark, 0, 0);
    // A style sheet cannot mix rules with declarations that have no selector.
    const bool isBare = !sheet.trimmed().isEmpty() && !sheet.contains(QLatin1Char('{'));
    return isBare ? QStringLiteral("* {%1}").arg(sheet) : sheet;
}

}  // namespace

QString SheetSelector() {
    return QString(kCondition).repeated(kConditions);
}

void SetSheetRules(QWidget& control, SheetSubject subject, const QString& rules) {
    control.setProperty(PropertyOf(subject), rules);
    const QString sheet = SheetOfHost(control) + kMark + RulesOf(control, SheetSubject::Heading) +
                          RulesOf(control, SheetSubject::Font);
    if (control.styleSheet() == sheet) return;
    control.setProperty(kMarked, true);
    const bool fills = control.autoFillBackground();
    control.setStyleSheet(sheet);
    control.setAutoFillBackground(fills);  // a style sheet may put it on
}

bool HasSheetRules(const QWidget& control, SheetSubject subject) {
    return !RulesOf(control, subject).isEmpty();
}

}  // namespace halvek
