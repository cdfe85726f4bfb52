// SPDX-License-Identifier: MIT
#pragma once

#include <QTextEdit>

namespace halvek {

class MessageBox;

/// lblText: the text of a message box. The mouse selects in it; it never takes the focus, which
/// belongs to the buttons.
class MessageText : public QTextEdit {
    Q_OBJECT

  public:
    MessageText(const MessageBox& box, QWidget* parent);

    /// Copies the selection, or else the whole message.
    void Copy() const;

  protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    // The form scrolls, as the box's rules decide.
    void wheelEvent(QWheelEvent* event) override;

  private:
    void CopySelection() const;
    void CopyMessage() const;
    void OpenMenu(const QPoint& place);

    const MessageBox& box_;
};

}  // namespace halvek
