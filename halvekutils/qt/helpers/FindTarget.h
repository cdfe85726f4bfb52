// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextCursor>
#include <QTextDocument>
#include <QWidget>

namespace halvek {

/// Where a find bar looks for words.
class FindTarget {
  public:
    /// How the search stands.
    struct Outcome {
        bool missed = false;  ///< there is no such word
        QString text;         ///< what the bar says beside a word that is there
        QString spoken;       ///< what screen readers say of it; empty for the text
    };

    virtual ~FindTarget() = default;

    /// What is searched; takes the keyboard when the bar closes.
    virtual QWidget& Widget() = 0;
    /// The bar is opened.
    virtual void Start() {}
    /// The user has changed the word.
    virtual void Find(const QString& word) = 0;
    /// Goes to the next place of the word, or the one before, and on at the other end.
    virtual void FindNext(const QString& word, bool backwards) = 0;
    /// Enter: takes what was found; false where Enter goes to the next place.
    virtual bool Take() { return false; }
    /// How the search stands now.
    virtual Outcome Now() const = 0;
    /// The longest text that the bar will say.
    virtual QString LongestText() const { return {}; }
};

/// Words in a QTextEdit or a QPlainTextEdit, letter case ignored. Their base class lacks the
/// members used here.
template <class Text>
class FindInText : public FindTarget {
  public:
    explicit FindInText(Text& text) : text_(text) {}

    QWidget& Widget() override { return text_; }

    void Start() override { missed_ = false; }

    /// Searches from the start of the place found, so it stays found while the word grows.
    void Find(const QString& word) override {
        QTextCursor cursor = text_.textCursor();
        cursor.setPosition(cursor.selectionStart());
        text_.setTextCursor(cursor);
        missed_ = false;
        if (!word.isEmpty()) FindNext(word, false);
    }

    void FindNext(const QString& word, bool backwards) override {
        const QTextCursor before = text_.textCursor();
        QTextCursor otherEnd = before;
        otherEnd.movePosition(backwards ? QTextCursor::End : QTextCursor::Start);
        missed_ = !FindFrom(before, word, backwards) && !FindFrom(otherEnd, word, backwards);
        if (missed_) text_.setTextCursor(before);
    }

    Outcome Now() const override { return {missed_, {}, {}}; }

  private:
    bool FindFrom(const QTextCursor& cursor, const QString& word, bool backwards) {
        text_.setTextCursor(cursor);
        return text_.find(word,
                          backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags());
    }

    Text& text_;
    bool missed_ = false;
};

}  // namespace halvek
