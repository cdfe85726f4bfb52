#pragma once

#include <QLineEdit>
#include <QWidget>

class QLabel;

namespace halvek {

class DebugTextView;

/// The bar under the debug console's text that searches it, closed until Ctrl+F opens it.
class DebugFindBar : public QWidget {
    Q_OBJECT

  public:
    DebugFindBar(DebugTextView& text, QWidget* parent);

    void Open();
    void FindNext();
    void FindPrevious();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void FindTyped();
    void Tell(bool found);

    DebugTextView& text_;
    QLineEdit* txtFind_;
    QLabel* lblFind_;
};

}  // namespace halvek
