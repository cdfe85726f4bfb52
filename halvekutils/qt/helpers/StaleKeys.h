// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSet>

class QKeyEvent;
class QWidget;

namespace halvek {

/// Drops the repetitions of a key that went down before its window became active: an Enter held on
/// a host's button must not answer the dialog that the button opens.
class StaleKeys : public QObject {
    Q_OBJECT

  public:
    /// Destroyed with the window.
    explicit StaleKeys(QWidget& window);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool IsOfWindow(const QObject* receiver) const;
    bool Drops(const QKeyEvent& key);
    bool IsRepeated(const QKeyEvent& key) const;

    struct Release {
        quint32 place = 0;  ///< the key on the keyboard
        quint64 time = 0;
    };

    QWidget& window_;
    Release released_;
    QSet<quint32> pressedHere_;
};

}  // namespace halvek
