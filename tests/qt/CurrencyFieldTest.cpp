#include "tests/qt/FormTest.h"

#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/CurrencyLineEdit.h>

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace halvek {
namespace {

/// A payment form of a host's.
struct PaymentForm : QDialog {
    PaymentForm() {
        auto* rows = new QVBoxLayout(this);
        for (QWidget* const part :
             {static_cast<QWidget*>(&amount), static_cast<QWidget*>(&adjustment),
              static_cast<QWidget*>(&from), static_cast<QWidget*>(&to),
              static_cast<QWidget*>(&plain), static_cast<QWidget*>(&post)}) {
            rows->addWidget(part);
        }
        MakeCurrencyField(&amount);
        MakeCurrencyField(&from);
        CheckCurrencyRange(&from, &to, u"From", u"To");
        post.setDefault(true);
        connect(&post, &QPushButton::clicked, this, [this] { posted += amount.text() + ";"; });
        show();
        Activate();
        Focus(plain);
    }

    void Activate() {
        activateWindow();
        EXPECT_TRUE(Soon([this] { return isActiveWindow(); }));
    }

    /// Types into whatever has the focus; "<" is Backspace, "^" Ctrl with the next letter.
    void Type(const char* keys) {
        for (; *keys != 0; ++keys) {
            if (*keys == '<') {
                PressKey(*this, Qt::Key_Backspace);
            } else if (*keys == '^') {
                QTest::keyClick(windowHandle(), *++keys, Qt::ControlModifier);
            } else {
                QTest::keyClick(windowHandle(), *keys);
            }
        }
    }
    void Focus(QWidget& part) {
        part.setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
    }
    /// Leaves the field and gives what it then shows.
    std::string Left(QLineEdit& line) {
        Focus(plain);
        return line.text().toStdString();
    }

    QLineEdit amount;
    CurrencyLineEdit adjustment{AmountSign::Signed};
    QLineEdit from;
    QLineEdit to;
    QLineEdit plain;
    QPushButton post{QStringLiteral("&Post")};
    QString posted;
};

/// The text with the caret or the selection: "12|.50", "1[2.5]0".
std::string Shown(const QLineEdit& line) {
    QString shown = line.text();
    if (!line.hasSelectedText()) return shown.insert(line.cursorPosition(), u'|').toStdString();
    shown.insert(line.selectionEnd(), u']');
    return shown.insert(line.selectionStart(), u'[').toStdString();
}

class CurrencyFieldTest : public FormTest {
  protected:
    PaymentForm form_;
};

TEST_F(CurrencyFieldTest, KeysMakeAnAmountThatLeavingShows) {
    const struct {
        QLineEdit& line;
        const char* before;
        const char* keys;
        const char* typed;
        const char* left;
    } rows[] = {
        {form_.amount, "", "12a,3.456", "123.45|", "$123.45"},
        {form_.amount, "", "123456789.1", "1234567.1|", "$1,234,567.10"},
        {form_.amount, "", "0.5<<<7", "7|", "$7.00"},
        {form_.amount, "$1,234.50", "", "[1234.50]", "$1,234.50"},
        {form_.amount, "$1,234.50", "9", "9|", "$9.00"},
        {form_.amount, "1,234,567", "", "[1234567]", "$1,234,567.00"},
        {form_.amount, "123456789", "", "[123456789]", "$1,234,567.89"},
        {form_.amount, "", "12^z", "|", ""},
        {form_.amount, "$5.00", "12^z", "[5.00]", "$5.00"},
        {form_.amount, "$5.00", "12^z^y", "12|", "$12.00"},
        {form_.adjustment, "", "25-", "-|25", "$-25.00"},
        {form_.adjustment, "", "-25+", "|25", "$25.00"},
        {form_.adjustment, "", "-.005", "-0.00|", "0.00"},
        {form_.adjustment, "", "25-^z", "|25", "$25.00"},
        {form_.adjustment, "$-5.00", "", "[-5.00]", "$-5.00"},
    };
    for (const auto& [line, before, keys, typed, left] : rows) {
        line.setText(QString::fromLatin1(before));
        EXPECT_EQ(line.text(), QString::fromLatin1(before));
        form_.Focus(line);
        form_.Type(keys);
        EXPECT_EQ(Shown(line), typed) << before << " " << keys;
        EXPECT_EQ(form_.Left(line), left);
    }
}

TEST_F(CurrencyFieldTest, EveryWayInIsJudgedByWhatWouldResult) {
    const auto put = [](QLineEdit& line, const QString& text, int way) {
        QMimeData data;
        data.setText(text);
        QApplication::clipboard()->setText(text);
        QInputMethodEvent commit;
        commit.setCommitString(text);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        if (way == 0)
            QTest::keyClick(line.window()->windowHandle(), Qt::Key_V, Qt::ControlModifier);
        if (way == 1) line.paste();
        if (way == 2) QCoreApplication::sendEvent(&line, &commit);
        if (way == 3) {
            QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton,
                                  Qt::NoModifier);
            QCoreApplication::sendEvent(&line, &enter);
            QCoreApplication::sendEvent(&line, &drop);
        }
    };
    const struct {
        QLineEdit& line;
        const char* typed;
        const char* put;
        const char* text;
    } rows[] = {
        {form_.amount, "", "$1,234.50", "1234.50"},
        {form_.amount, "", " 12 ", "12"},
        {form_.amount, "", "1234.5", "1234.5"},
        {form_.adjustment, "", "(5.00)", "-5.00"},
        {form_.amount, "", "(5.00)", ""},
        {form_.amount, "7", "1.234,50", "7"},
        {form_.amount, "7", "12.345.6", "7"},
        {form_.amount, "", "1,23", ""},
        {form_.amount, "", "12345678", ""},
        {form_.amount, "", "1.234", ""},
        {form_.amount, "7", "abc", "7"},
        {form_.amount, "7", "\uFF15", "7"},
    };
    for (int way = 0; way < 4; ++way) {
        for (const auto& [line, typed, text, expected] : rows) {
            line.clear();
            form_.Focus(line);
            form_.Type(typed);
            QStringList seen;
            const auto watch = QObject::connect(&line, &QLineEdit::textChanged,
                                                [&](const QString& now) { seen += now; });
            put(line, QString::fromUtf8(text), way);
            QObject::disconnect(watch);
            EXPECT_EQ(line.text().toStdString(), expected) << text << " by way " << way;
            EXPECT_LE(seen.size(), 1) << "the host sees no text in between";
            form_.Left(line);
        }
    }
    form_.amount.clear();
    form_.Focus(form_.amount);
    put(form_.amount, QString(10'000'000, u'9'), 0);
    form_.Type("25");
    put(form_.amount, QStringLiteral("x"), 1);
    put(form_.amount, QStringLiteral("."), 0);
    EXPECT_EQ(Shown(form_.amount), "25.|");
    form_.amount.selectAll();
    put(form_.amount, QStringLiteral("$1,234.50"), 0);
    form_.Type("^z");
    EXPECT_EQ(Shown(form_.amount), "[25.]");
}

TEST_F(CurrencyFieldTest, TheDefaultButtonSeesTheAmountAsLeft) {
    form_.Focus(form_.amount);
    form_.Type("25");
    PressKey(form_, Qt::Key_Enter);
    form_.Type("31");
    QTest::keyClick(form_.windowHandle(), Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(Soon([this] { return form_.posted.count(u';') == 2; }));
    form_.post.setFocusPolicy(Qt::NoFocus);
    form_.Type("47");
    Click(form_, form_.post);
    EXPECT_EQ(form_.posted, QStringLiteral("$25.00;$31.00;$47.00;"));
    EXPECT_EQ(form_.focusWidget(), &form_.amount);
}

TEST_F(CurrencyFieldTest, OnlyLeavingValidatesNotTheWindowsDeactivation) {
    form_.Focus(form_.amount);
    form_.Type("25");
    {
        const auto other = OpenHostWindow(QRect(0, 0, 50, 50));
        EXPECT_EQ(form_.amount.text(), QStringLiteral("25"));
    }
    form_.Activate();
    EXPECT_EQ(Shown(form_.amount), "25|");
    const auto other = OpenHostWindow(QRect(0, 0, 50, 50));
    form_.plain.setFocus();
    form_.Activate();
    EXPECT_EQ(form_.amount.text(), QStringLiteral("$25.00"));
}

TEST_F(CurrencyFieldTest, ARefusedFieldKeepsTheFocusAndTheClickDoesNothing) {
    const std::function<void()> ways[] = {
        [this] { PressKey(form_, Qt::Key_Tab); }, [this] { PressKey(form_, Qt::Key_Return); },
        [this] { Click(form_, form_.post); },     [this] { Click(form_, form_.from); },
        [this] { form_.plain.setFocus(); },
    };
    for (const auto& leave : ways) {
        form_.from.setText(QStringLiteral("50"));
        form_.Focus(form_.to);
        form_.Type("20");
        const User user(Keys({Qt::Key_Return}));
        leave();
        EXPECT_TRUE(user.HasActed());
        form_.Activate();
        EXPECT_TRUE(form_.to.hasFocus());
        EXPECT_EQ(form_.to.text() + form_.posted, QString());
        EXPECT_EQ(form_.from.text(), QStringLiteral("50"));
    }
    form_.Type("50");
    EXPECT_EQ(form_.Left(form_.to), "$50.00");
}

TEST_F(CurrencyFieldTest, AFieldThatVanishesWhileItIsRefusedIsLetGo) {
    const std::function<void(QLineEdit*)> ends[] = {
        [](QLineEdit* line) { line->hide(); }, [](QLineEdit* line) { line->setEnabled(false); },
        [](QLineEdit* line) { delete line; }};
    for (const auto& end : ends) {
        auto* const to = new QLineEdit(&form_);
        form_.layout()->addWidget(to);
        CheckCurrencyRange(&form_.from, to, u"From", u"To");
        form_.from.setText(QStringLiteral("50"));
        QCoreApplication::processEvents();
        form_.Focus(*to);
        form_.Type("20");
        const User user([&](QDialog& box) {
            end(to);
            PressKey(box, Qt::Key_Return);
        });
        form_.Focus(form_.plain);
        EXPECT_TRUE(user.HasActed());
        form_.Activate();
        EXPECT_TRUE(form_.plain.hasFocus());
    }
}

TEST_F(CurrencyFieldTest, ALockedFieldIsLeftAsItIs) {
    form_.amount.setText(QStringLiteral("12345678"));
    form_.amount.setReadOnly(true);
    form_.Focus(form_.amount);
    form_.Type("5<");
    EXPECT_EQ(Shown(form_.amount), "[12345678]");
    EXPECT_EQ(form_.Left(form_.amount), "12345678");
}

}  // namespace
}  // namespace halvek
