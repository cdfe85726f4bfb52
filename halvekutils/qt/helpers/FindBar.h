// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextCursor>
#include <QTextDocument>
#include <QWidget>

#include <functional>

class QLineEdit;

namespace halvek {

class StatusLabel;

/// A line below a text that finds words in it, letter case ignored; hidden until Open.
class FindBar : public QWidget {
    Q_OBJECT

  public:
    /// @param text  a QTextEdit or a QPlainTextEdit, whose base class lacks the members used here
    /// @param prompt  names the box where the word is typed
    template <class Text>
    FindBar(Text& text, const QString& prompt, QWidget* parent = nullptr)
        : FindBar(Searched{&text,
                           [&text](const QString& word, QTextDocument::FindFlags flags) {
                               return text.find(word, flags);
                           },
                           [&text] { return text.textCursor(); },
                           [&text](const QTextCursor& cursor) { text.setTextCursor(cursor); }},
                  prompt, parent) {}
    ~FindBar() override;

    /// Shows the bar and takes the keyboard.
    void Open();
    /// Hides the bar and gives the keyboard to the text.
    void Close();

    /// Goes to the first place of a word, which the bar then holds; neither shows the bar nor takes
    /// the keyboard.
    void FindFirst(const QString& word);

    /// Goes to the next place, or the one before, and on at the other end of the text; opens the
    /// bar when there is nothing to find yet.
    void Find(bool backwards);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct Searched {
        QWidget* widget;
        std::function<bool(const QString&, QTextDocument::FindFlags)> find;
        std::function<QTextCursor()> cursor;
        std::function<void(const QTextCursor&)> setCursor;
    };

    FindBar(Searched text, const QString& prompt, QWidget* parent);
    bool FindFrom(const QTextCursor& cursor, bool backwards);
    void FindTyped();
    static QString NotFound();
    void ShowOutcome(bool found);

    Searched text_;
    QLineEdit* txtFind_;
    StatusLabel* lblFind_;
};

}  // namespace halvek
