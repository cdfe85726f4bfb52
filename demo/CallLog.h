// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantList>

namespace frontdesk {

/// The calls of the library that the client has made, for programmers who watch it work.
class CallLog : public QObject {
    Q_OBJECT

  public:
    /// Notes a call and its result, null for a member that returns nothing.
    void Add(const QString& function, const QVariantList& arguments = {},
             const QVariant& result = {});

    const QStringList& Lines() const { return lines_; }

  signals:
    void Added(const QString& line);

  private:
    QStringList lines_;
};

}  // namespace frontdesk
