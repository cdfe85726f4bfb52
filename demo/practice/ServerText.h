// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace frontdesk {

/// The delimited texts that a practice's server sends.
enum class TextFormat { Codes, Rights, Printers, Settings, Reminders, Selection };

/// The value as a format can carry it. The formats know no escape: letters that a format separates
/// its fields by are replaced in every value, here and nowhere else, so "François" travels in a
/// reminder as "Francois" and in a selection list as it is.
QString Carried(TextFormat format, const QString& value);

/// The text of some records in Windows-1252, as a server sends it.
///
/// @param mark  what follows the records, such as a reminder's alert
QByteArray ServerText(TextFormat format, const QList<QStringList>& records,
                      const QString& mark = {});

}  // namespace frontdesk
