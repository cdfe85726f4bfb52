// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "widgets/Card.h"

#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

namespace frontdesk {

/// A required field for codes of one of the server's tables: typed, separated by commas, or chosen
/// from the library's list, which the button and the look-up keys open. Beside it stands what the
/// codes mean.
class CodesField : public QWidget {
    Q_OBJECT

  public:
    /// @param most  how many codes the field may hold
    CodesField(Desk& desk, const QString& table, const QString& name, int most);

    QString Codes() const;
    void SetCodes(const QString& codes);

    /// Whether the table has all codes; otherwise the user has been told and is in the field.
    bool Check();

    QLineEdit* Line() { return line_; }

  signals:
    void Changed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Choose(bool byDescription);
    void Describe();
    QString UnknownCode() const;

    Desk& desk_;
    QString table_;
    QString name_;
    int most_;
    QLineEdit* line_;
    QToolButton* button_;
    QLabel* meaning_;
};

}  // namespace frontdesk
