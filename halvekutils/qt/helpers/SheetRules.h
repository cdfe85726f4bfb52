// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace halvek {

/// What rules are about; a control may have rules of each subject.
enum class SheetSubject { Heading, Font };

/// The selector of a control that has rules of the library's. It overrides any rule that a host
/// writes.
QString SheetSelector();

/// Gives a control rules behind those of the host's own style sheet, in place of earlier ones on
/// the same subject. A style sheet is the only thing that overrides a style sheet.
void SetSheetRules(QWidget& control, SheetSubject subject, const QString& rules);

/// True when the control has rules on the subject.
bool HasSheetRules(const QWidget& control, SheetSubject subject);

}  // namespace halvek
