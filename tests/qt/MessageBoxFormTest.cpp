// SPDX-License-Identifier: MIT
#include "tests/FaultOf.h"
#include "tests/qt/FormTest.h"

#include <halvekutils/dialogs/MessageBox.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/helpers/Design.h>
#include <halvekutils/qt/helpers/Metrics.h>

#include <thread>

namespace halvek {
namespace {

class MessageBoxFormTest : public FormTest {
  protected:
    /// The answer that the user's acts give; `prompt`, `title` and `seconds` as in ShowMsgBox.
    MbMsgBoxResult Answer(ButtonsChoice buttons, User::Acts acts, TextIn prompt = u"Go on?",
                          TextIn title = u"Visit", std::int32_t seconds = 0) {
        const User user(std::move(acts));
        return utils_->ShowMsgBox(prompt, buttons, mbQuestion, title, mbWhite, mb9, false, seconds);
    }

    std::shared_ptr<MessageBox> MakeBox(ButtonsChoice buttons,
                                        std::shared_ptr<OwnerForm> owner = nullptr) const {
        MessageBoxRequest request{u"Go on?", buttons, mbNoIcon, u"Visit"};
        request.owner = std::move(owner);
        return std::make_shared<MessageBox>(request, Services::Current(), desktop_);
    }
};

// Answers

// Repetitions of a key that was down before the box opened are dropped, whatever they would do.
TEST_F(MessageBoxFormTest, AHeldKeyAnswersNothing) {
    for (const QKeyCombination held :
         {QKeyCombination(Qt::Key_Return), QKeyCombination(Qt::Key_Space),
          QKeyCombination(Qt::Key_Y), QKeyCombination(Qt::AltModifier | Qt::Key_Y)}) {
        const auto repeat = [&](QDialog& box) {
            for (int i = 0; i < 3; ++i) {
                // Not marked as repeated: two events of the same time.
                for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
                    QKeyEvent event(type, held.key(), held.keyboardModifiers());
                    event.setTimestamp(static_cast<quint64>(100 + i));
                    QCoreApplication::sendEvent(box.windowHandle(), &event);
                }
                qt_handleKeyEvent(box.windowHandle(), QEvent::KeyPress, held.key(),
                                  held.keyboardModifiers(), QStringLiteral("y"), true);
                EXPECT_TRUE(box.isVisible()) << held.toCombined();
            }
            const QTimer& countdown = Find<QTimer>(box, "tmrUnload");
            EXPECT_TRUE(countdown.isActive() && countdown.interval() == 1000);
            PressKey(box, held);
        };
        EXPECT_EQ(Answer(mbYesNo, repeat, u"Go on?", u"Visit", 9), mbYes) << held.toCombined();
    }
}

// The text

TEST_F(MessageBoxFormTest, TextOfAnyLengthLeavesABoxThatAnswers) {
    const auto controls = QString::fromUtf16(u"a\0b\xD800\x202E\x0007 \xFFFF", 8);
    for (const QString& text :
         {QString(), QString("line\r\n").repeated(20'000), QString(20'000'000, 'x'), controls}) {
        const auto look = [&](QDialog& box) {
            const QSize size = box.windowHandle()->frameGeometry().size();
            EXPECT_EQ(size.boundedTo(box.screen()->availableSize()), size);
            EXPECT_LE(box.windowHandle()->title().size(), 2000);
            PressKey(box, Qt::Key_N);
        };
        EXPECT_EQ(Answer(mbYesNo, look, text, text), mbNo) << text.size();
    }
}

TEST_F(MessageBoxFormTest, EveryWayOfScrollingReachesBothEndsOfTheText) {
    using Scroll = void (*)(QDialog & box, bool down);
    const Scroll ways[] = {
        [](QDialog& box, bool down) { PressKey(box, down ? Qt::Key_End : Qt::Key_Home); },
        [](QDialog& box, bool down) { PressKey(box, down ? Qt::Key_PageDown : Qt::Key_PageUp); },
        [](QDialog& box, bool down) {
            auto& view = *Find<QTextEdit>(box, "lblText").viewport();
            const QPointF at = view.rect().center();
            QWheelEvent wheel(at, view.mapToGlobal(at), {}, {0, down ? -120 : 120}, Qt::NoButton,
                              {}, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&view, &wheel);
        },
        [](QDialog& box, bool down) { Click(box, Find(box, down ? "cmdUpDn_0" : "cmdUpDn_1")); },
        // By itself, as while the mouse selects beyond its edge
        [](QDialog& box, bool down) {
            QScrollBar& bar = *Find<QTextEdit>(box, "lblText").verticalScrollBar();
            bar.setValue(bar.value() + (down ? 20 : -20));
        },
    };
    const auto scroll = [&](QDialog& box) {
        auto& text = Find<QTextEdit>(box, "lblText");
        const int line = text.fontMetrics().lineSpacing();
        for (const Scroll& way : ways) {
            for (const bool down : {true, false}) {
                SCOPED_TRACE(testing::Message() << &way - ways << down);
                QScrollBar& bar = *text.verticalScrollBar();
                for (int before = -1; bar.value() != before;) {
                    before = bar.value();
                    way(box, down);
                    const bool atEnd = bar.value() == (down ? bar.maximum() : 0);
                    // Every line is whole on one page or the next, except for a rounded pixel.
                    EXPECT_TRUE(atEnd || std::abs(bar.value() - before) <= text.height() - line + 1)
                        << before << " to " << bar.value() << " of " << bar.maximum();
                }
                QTextCursor end(text.document());
                if (down) end.movePosition(QTextCursor::End);
                const QRect last = text.cursorRect(end);
                EXPECT_GE(last.top(), 0);
                EXPECT_LE(last.bottom(), text.viewport()->height());
                EXPECT_EQ(bar.value(), down ? bar.maximum() : 0);
                EXPECT_EQ(Find(box, "cmdUpDn_0").isEnabled(), !down);
                EXPECT_EQ(Find(box, "cmdUpDn_1").isEnabled(), down);
            }
        }
        PressKey(box, Qt::Key_O);
    };
    EXPECT_EQ(Answer(mbOkOnly, scroll, QString("line\r\n").repeated(150)), mbOK);
}

TEST_F(MessageBoxFormTest, TheFocusIsSeenFromTheBeginning) {
    for (const ColorChoice background : {mbWhite, mbGray, mbSkinColor}) {
        const User user([](QDialog& box) {
            QWidget& button = Find(box, "arrCmd_0");
            const QImage focused = button.grab().toImage();
            PressKey(box, Qt::Key_Tab);
            EXPECT_NE(button.grab().toImage(), focused);
            PressKey(box, Qt::Key_N);
        });
        EXPECT_EQ(utils_->ShowMsgBox(u"Go on?", mbYesNo, mbNoIcon, u"", background), mbNo);
    }
}

/// The contrast between the darkest and the lightest point of a control.
double ContrastIn(QWidget& control) {
    const QImage picture = control.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
    const uchar* const points = picture.constBits();
    const auto [darkest, lightest] = std::minmax_element(points, points + picture.sizeInBytes());
    const auto gray = [](int level) { return QColor(level, level, level); };
    return design::Contrast(gray(*darkest), gray(*lightest));
}

TEST_F(MessageBoxFormTest, TextOfAnyColorsIsReadable) {
    const auto scheme = [](std::uint32_t number) {
        return static_cast<Color>(0x80000000 + number);
    };
    const std::pair<Color, Color> rows[] = {{kBlack, kBlack},         {kWhite, kWhite},
                                            {scheme(5), scheme(8)},   {scheme(13), scheme(14)},
                                            {scheme(2), scheme(9)},   {scheme(24), scheme(23)},
                                            {scheme(15), scheme(15)}, {-1, -1}};
    for (const auto& [skin, text] : rows) {
        utils_->InitPrefs(StringArray(), skin, text, 0, 0);
        const User user([](QDialog& box) {
            EXPECT_GE(ContrastIn(Find(box, "lblText")), 2);
            PressKey(box, Qt::Key_O);
        });
        EXPECT_EQ(utils_->ShowMsgBox(u"Go on?", mbOkOnly, mbNoIcon, u"", mbSkinColor), mbOK);
    }
    const QPalette& palette = QApplication::palette();
    EXPECT_EQ(ToQColor(scheme(5), palette), palette.color(QPalette::Base));
    EXPECT_EQ(ToQColor(scheme(25), palette), palette.color(QPalette::Button));
}

TEST_F(MessageBoxFormTest, AMessageOfTheLibrarysOwnNeedsNoSession) {
    TheSession() = Session();
    Services::Install(nullptr);
    const User user([](QDialog& box) {
        EXPECT_EQ(box.windowTitle(), "Front Desk");
        EXPECT_EQ(Find<QTextEdit>(box, "lblText").toPlainText(), "File <b> is not found.");
        PressKey(box, Qt::Key_Escape);
    });
    desktop_.ShowStockMessage(u"File <b> is not found.", StockIcon::Critical, u"Front Desk");
}

// The desktop

TEST_F(MessageBoxFormTest, AModelessBoxEndsModallyOrWithTheDesktop) {
    const auto modal = MakeBox(mbYesNo);
    desktop_.Show(modal, Modality::Modeless);
    const QPointer<QDialog> window = OpenDialog();
    ASSERT_NE(window, nullptr);
    EXPECT_FALSE(window->isModal());
    const User user([&](QDialog& dialog) {
        EXPECT_EQ(&dialog, window.data());
        PressKey(dialog, Qt::Key_N);
    });
    desktop_.Show(modal, Modality::Modal);
    EXPECT_EQ(modal->ReturnedValue(), mbNo);
    EXPECT_EQ(window, nullptr);

    const auto left = MakeBox(mbYesNoCancel);
    std::make_unique<QtPlatform>()->Show(left, Modality::Modeless);
    EXPECT_FALSE(left->IsOpen());
    EXPECT_EQ(left->ReturnedValue(), mbCancel);
}

TEST_F(MessageBoxFormTest, ABoxIsCentredOnItsOwner) {
    auto host = OpenHostWindow(QRect(250, 400, 300, 200));
    const auto active = OpenHostWindow(QRect(10, 10, 200, 100));
    const auto owner = AsOwnerForm(host.get());
    const User user([&](QDialog& box) {
        const QPoint off = box.windowHandle()->frameGeometry().center() -
                           host->windowHandle()->frameGeometry().center();
        EXPECT_LE(off.manhattanLength(), 4);
        PressKey(box, Qt::Key_N);
    });
    desktop_.Show(MakeBox(mbYesNo, owner), Modality::Modal);

    host.reset();
    EXPECT_EQ(FaultOf([&] { owner->Left(); }), 91);
    EXPECT_EQ(FaultOf([&] { owner->Refresh(); }), 91);
    EXPECT_EQ(AsOwnerForm(nullptr), nullptr);
    const User another([](QDialog& box) { PressKey(box, Qt::Key_Y); });
    desktop_.Show(MakeBox(mbYesNo, owner), Modality::Modal);
}

TEST_F(MessageBoxFormTest, ABoxIsAsLargeWhateverItsOwnerDoes) {
    const auto host = OpenHostWindow(QRect(50, 50, 300, 200));
    QSize ordinary;
    const auto look = [&](QDialog& box) {
        if (ordinary.isEmpty()) ordinary = box.size();
        EXPECT_EQ(box.size(), ordinary);
        PressKey(box, Qt::Key_N);
    };
    EXPECT_EQ(Answer(mbYesNo, look), mbNo);
    const std::function<void()> changes[] = {[&] { host->setWindowState(Qt::WindowMaximized); },
                                             [&] { host->setWindowState(Qt::WindowFullScreen); },
                                             [&] { host->setFixedSize(300, 500); },
                                             [&] { host->move(-2000, 5000); }};
    for (const auto& change : changes) {
        change();
        EXPECT_EQ(Answer(mbYesNo, look), mbNo);
    }
}

TEST_F(MessageBoxFormTest, ABoxThatNobodyCanAnswerIsNotWaitedFor) {
    const auto answered = MakeBox(mbYesNo);
    answered->Press(mbNo);
    desktop_.Show(answered, Modality::Modal);
    EXPECT_EQ(answered->ReturnedValue(), mbNo);

    qApp->setStyleSheet("QDialog { min-height: 0; max-height: 0 }");
    const auto box = MakeBox(mbYesNoCancel);
    desktop_.Show(box, Modality::Modal);
    qApp->setStyleSheet("");
    EXPECT_EQ(box->ReturnedValue(), mbCancel);
}

// The user's key goes through the window, which another one may block.
TEST_F(MessageBoxFormTest, ABoxThatIsGoneBeforeItIsSeenLeavesTheOneBelowToTheUser) {
    struct AtOnce : QObject {
        bool eventFilter(QObject* watched, QEvent* event) override {
            auto* const dialog = qobject_cast<QDialog*>(watched);
            if (event->type() == QEvent::Show && dialog != nullptr) end(*dialog);
            return false;
        }
        std::function<void(QDialog&)> end;
    } atOnce;
    for (const auto& end : {&QDialog::reject, static_cast<void (QDialog::*)()>(&QDialog::hide)}) {
        atOnce.end = [end](QDialog& dialog) { (dialog.*end)(); };
        const auto act = [&](QDialog& below) {
            const auto above = MakeBox(mbYesNoCancel);
            qApp->installEventFilter(&atOnce);
            desktop_.Show(above, Modality::Modal);
            qApp->removeEventFilter(&atOnce);
            EXPECT_EQ(above->ReturnedValue(), mbCancel);
            QTest::keyClick(below.windowHandle(), Qt::Key_Y);
        };
        EXPECT_EQ(Answer(mbYesNo, act), mbYes);
    }
}

TEST_F(MessageBoxFormTest, TheDesktopBelongsToTheUserInterfaceThread) {
    std::int32_t fault = 0;
    std::thread([&] { fault = FaultOf([] { QtPlatform elsewhere; }); }).join();
    EXPECT_EQ(fault, 5);
    EXPECT_EQ(&Platform::Installed(), &desktop_);
}

}  // namespace
}  // namespace halvek
