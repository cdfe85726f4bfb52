// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

#include <functional>

namespace frontdesk {

/// Records which control the keyboard acts on, to follow the client without a mouse. Every change
/// gives a line: the window or the page; on a page, the control's number among all that can be
/// operated; the control's name.
///
///     Front Desk: Services
///     Codes 1/6: Key
///     Codes 2/6: Look up
class FocusRecord : public QObject {
  public:
    using Listener = std::function<void(const QString& line)>;

    explicit FocusRecord(Listener listener);

  private:
    void Note(const QWidget& focused) const;

    Listener listener_;
};

}  // namespace frontdesk
