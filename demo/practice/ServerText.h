// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace frontdesk {

/// The delimited texts that a practice's server sends.
enum class TextFormat { Codes, Rights, Printers, Settings, Reminders, Selection };

/// Writes one delimited text. The formats know no escape: letters that a format separates its
/// fields by are replaced in every value, here and nowhere else, so "François" travels in a
/// reminder as "Francois" and in a selection list as it is.
class ServerText {
  public:
    explicit ServerText(TextFormat format) : format_(format) {}

    /// The value as the format can carry it.
    QString Carried(const QString& value) const;

    /// The next record, its values separated as the format wants.
    void Add(const QStringList& values);
    /// A mark of the format that follows the records, such as a reminder's alert.
    void End(const QString& mark) { text_ += mark; }

    /// In Windows-1252, as a server sends it.
    QByteArray Bytes() const;

  private:
    TextFormat format_;
    QString text_;
    bool hasRecords_ = false;
};

}  // namespace frontdesk
