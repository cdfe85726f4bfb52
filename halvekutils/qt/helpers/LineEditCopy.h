// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/platform/TextField.h>

#include <QLineEdit>
#include <QString>

#include <memory>

namespace halvek {

// A line edit as the text control that the rules work on, and functions that write the result back.

/// The caret's position, or where the selection starts.
int CaretOf(const QLineEdit& line);

/// The four values of a line edit; read-only is locked.
std::shared_ptr<TextField> CopyOf(const QLineEdit& line);

/// Selects, or places the caret when the length is 0.
void Select(QLineEdit& line, int start, int length);

/// Sets a text that does not come from the user and cannot be undone. It is never cut.
void SetText(QLineEdit& line, const QString& text);

/// Edits the text as the user would, by replacing only the part that differs.
void Edit(QLineEdit& line, const QString& text);

}  // namespace halvek
