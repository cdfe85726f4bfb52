// SPDX-License-Identifier: MIT
#include "tests/qt/FormTest.h"

#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/CurrencyLineEdit.h>

namespace halvek {
namespace {

/// A host's form: an amount and a range whose upper field is signed.
struct CurrencyFieldTest : FormTest {
    CurrencyFieldTest() {
        auto* rows = new QVBoxLayout(&form_);
        const std::initializer_list<QWidget*> parts = {&plain_, &amount_, from_, to_};
        for (QWidget* const part : parts) rows->addWidget(part);
        MakeCurrencyField(&amount_);
        CheckCurrencyRange(from_, to_, u"From", u"To");
        form_.show();
        Activate(form_);
    }
    void TypeInto(QLineEdit& line, const char* keys) {
        line.setFocus();
        Type(form_, keys);
    }

    QDialog form_;
    QLineEdit plain_, amount_;
    QLineEdit* from_ = new QLineEdit;
    QLineEdit* to_ = new CurrencyLineEdit(AmountSign::Signed);
};

TEST_F(CurrencyFieldTest, WhatTheHostSetsIsShownAsAnAmountInOneChange) {
    QStringList changes;
    QObject::connect(&amount_, &QLineEdit::textChanged, &form_,
                     [&](const QString& text) { changes += text; });
    const QString rows(
        "1234.5>$1,234.50>1234.50;$1,234,567>$1,234,567.00>1234567.00;-.005>$-0.01>-0.01;>>");
    for (const QString& row : rows.split(';')) {
        for (const bool isLocked : {false, true}) {
            const QString shown = row.section('>', 1, 1);
            changes.clear();
            amount_.setReadOnly(isLocked);
            amount_.setText(row.section('>', 0, 0));
            EXPECT_EQ(amount_.text(), shown);
            EXPECT_TRUE(changes.isEmpty() || changes == QStringList(shown));
            amount_.setFocus();
            EXPECT_EQ(amount_.selectedText(), isLocked ? shown : row.section('>', 2));
            plain_.setFocus();
            EXPECT_EQ(amount_.text(), shown);
        }
    }
}

TEST_F(CurrencyFieldTest, EveryWayInIsJudgedByWhatWouldResult) {
    const auto put = [&](QLineEdit& line, const QString& text, int way) {
        QApplication::clipboard()->setText(text);
        const QMimeData* const data = QApplication::clipboard()->mimeData();
        QInputMethodEvent commit;
        commit.setCommitString(text);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, data, Qt::LeftButton, {});
        QDropEvent drop({5, 5}, Qt::CopyAction, data, Qt::LeftButton, {});
        if (way == 0) PressKey(form_, Qt::CTRL | Qt::Key_V);
        if (way == 1) line.paste();
        if (way == 2) QCoreApplication::sendEvent(&line, &commit);
        if (way == 3) QCoreApplication::sendEvent(&line, &enter);
        if (way == 3) QCoreApplication::sendEvent(&line, &drop);
    };
    const QString taken("$1,234.50>1234.50; 12\n>12;(5.00)>-5.00;$(1,000)>-1000;-$5>-5;.5>.5");
    const QString refused(
        "1.234,50;12.345.6;1,23;1,2345;0,123;1,234,;1 "
        "234;--5;5-;(-5);$$5;1e3;12345678;.123;\uFF15");
    int changes = 0;
    QObject::connect(to_, &QLineEdit::textChanged, &form_, [&] { ++changes; });
    for (int way = 0; way < 4; ++way) {
        for (const QString& row : (taken + ';' + refused).split(';')) {
            to_->clear();
            to_->setFocus();
            changes = 0;
            put(*to_, row.section('>', 0, 0), way);
            EXPECT_EQ(to_->text(), row.section('>', 1, 1)) << row.toStdString() << " by " << way;
            EXPECT_EQ(changes, row.contains('>') ? 1 : 0) << "the host sees nothing in between";
        }
    }
    TypeInto(amount_, "25");
    put(amount_, "(5.00)", 1);
    put(amount_, QString(10'000'000, '9'), 0);
    amount_.selectAll();
    put(amount_, "$1,234.50", 0);
    PressKey(form_, Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(amount_.text(), "25");
}

TEST_F(CurrencyFieldTest, AnotherWindowDoesNotSeeTheAmountAsLeft) {
    TypeInto(amount_, "52");
    auto other = OpenHostWindow(QRect(0, 0, 50, 50));
    Activate(form_);
    EXPECT_EQ(amount_.text(), "52");
    other = OpenHostWindow(QRect(0, 0, 50, 50));
    plain_.setFocus();
    Activate(form_);
    EXPECT_EQ(amount_.text(), "$52.00");
}

TEST_F(CurrencyFieldTest, ATableGetsTheShownAmountWhenItsWindowIsNoLongerActive) {
    struct Delegate : QStyledItemDelegate {
        QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                              const QModelIndex&) const override {
            return new CurrencyLineEdit(parent);
        }
    } delegate;
    QTableWidget table(1, 1);
    table.setItem(0, 0, new QTableWidgetItem);
    table.setItemDelegate(&delegate);
    table.show();
    Activate(table);
    table.editItem(table.item(0, 0));
    Type(table, "12.5");
    const auto other = OpenHostWindow(QRect(0, 0, 50, 50));
    EXPECT_EQ(table.item(0, 0)->text(), "$12.50");
}

TEST_F(CurrencyFieldTest, ARefusedFieldKeepsTheFocusUnlessItIsGone) {
    const std::function<void()> ways[] = {[] {}, [&] { to_->hide(); },
                                          [&] { to_->setEnabled(false); }, [&] { delete to_; }};
    for (const auto& happens : ways) {
        from_->setText("50");
        to_->setEnabled(true);
        to_->show();
        TypeInto(*to_, "20");
        const QPointer<QLineEdit> to = to_;
        const User user([&](QDialog& box) {
            happens();
            PressKey(box, Qt::Key_Return);
        });
        plain_.setFocus();
        Activate(form_);
        const bool isThere = to != nullptr && to->isVisible() && to->isEnabled();
        EXPECT_EQ(form_.focusWidget(), isThere ? to.data() : &plain_);
        EXPECT_EQ(isThere ? to->text() : QString(), "");
    }
}

// The user acts in an event loop above the message's, as one of the host's would be.
TEST_F(CurrencyFieldTest, NothingIsPostedBeforeTheMessageAboutAFieldHasReturned) {
    auto* const post = new QPushButton("Post");
    form_.layout()->addWidget(post);
    int posted = 0;
    QObject::connect(post, &QPushButton::clicked, [&] { ++posted; });
    QCoreApplication::processEvents();
    from_->setText("50");
    TypeInto(*to_, "20");
    const User user([&](QDialog& box) {
        EXPECT_FALSE(LeaveCurrencyFields(&form_)) << "a timer of the host's asks";
        PressKey(box, Qt::Key_Return);
        EXPECT_FALSE(box.isVisible());
        Click(form_, *post);
        to_->setFocus();
        PressKey(form_, Qt::Key_Return);
    });
    Click(form_, *post);
    EXPECT_EQ(posted, 0);
    EXPECT_EQ(to_->text(), "");
    Click(form_, *post);
    EXPECT_EQ(posted, 1);
}

}  // namespace
}  // namespace halvek
