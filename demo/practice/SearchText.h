// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace frontdesk {

/// A text as patients are searched for: without accents, in small letters, so that "garcia" finds
/// García and "weiss" Weiß.
inline QString SearchText(const QString& text) {
    QString plain;
    for (const QChar letter :
         text.trimmed().toCaseFolded().normalized(QString::NormalizationForm_KD)) {
        if (letter == u'\u00DF') {
            plain += "ss";
        } else if (letter == u'\u00E6') {
            plain += "ae";
        } else if (letter.category() != QChar::Mark_NonSpacing) {
            plain += letter;
        }
    }
    return plain;
}

}  // namespace frontdesk
