// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/platform/TextField.h>

#include <QLineEdit>
#include <QString>

#include <memory>

namespace halvek {

// A line edit as the text control that rules work on, and the ways back into it.

/// Where the caret stands, or the selection starts.
int CaretOf(const QLineEdit& line);

/// The four values of a line edit; read-only is locked.
std::shared_ptr<TextField> CopyOf(const QLineEdit& line);

/// Selects, or with the length 0 places the caret.
void Select(QLineEdit& line, int start, int length);

/// Sets a text that is no doing of the user's and cannot be undone. It is never cut.
void SetText(QLineEdit& line, const QString& text);

/// Changes the text as the user would, by the part in which the new one differs.
void Edit(QLineEdit& line, const QString& text);

}  // namespace halvek
