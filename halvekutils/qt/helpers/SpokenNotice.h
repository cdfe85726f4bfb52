// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QString>

class QWidget;

namespace halvek {

class SpokenNoticePart;

/// Says what changes in a window without moving the focus. Screen readers say a notification as
/// soon as it appears; most ignore a changed description.
class SpokenNotice : public QObject {
    Q_OBJECT

  public:
    /// Belongs to the control that the notices are about, and says them only while it is shown.
    explicit SpokenNotice(QWidget& about);
    ~SpokenNotice() override;

    void Say(const QString& text);

  private:
    QWidget& about_;
    // The latest ones, for readers that are late; they belong to the desktop's register.
    QList<SpokenNoticePart*> said_;
};

}  // namespace halvek
