// SPDX-License-Identifier: MIT
#pragma once

class QTextDocument;
class QString;
class QWidget;

namespace halvek {

/// Shows how a page prints, and prints it from there.
void ShowPrintPreview(QWidget* parent, QTextDocument& page, const QString& title);

}  // namespace halvek
