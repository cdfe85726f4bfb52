// SPDX-License-Identifier: MIT
#include "tests/HelpFile.h"
#include "tests/qt/FormTest.h"
#include "tests/qt/Monkey.h"

#include <halvekutils/base/NumericText.h>
#include <halvekutils/core/DebugConsole.h>
#include <halvekutils/currency/AmountText.h>
#include <halvekutils/dialogs/MessageBoxButtons.h>
#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/CurrencyLineEdit.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QRegularExpression>
#include <QVBoxLayout>

namespace halvek {
namespace {

/// Whatever happens to windows, each call gives a legal result and leaves no window open. The seeds
/// of HALVEK_SEEDS ("100-299") replace the usual ones.
struct MonkeyTest : FormTest, ::testing::WithParamInterface<unsigned> {
    MonkeyTest() {
        utils_->InitUtils(u"", u"", u"", true, u"");
        StringArray colors(1, 60);
        for (int i = 1; i <= 60; ++i) colors[i] = i % 7 == 0 ? u"-1" : IntegerText(i * 1000);
        utils_->InitPrefs(colors, 0, 0, 0, 0);
        for (int i = 0; i < 38; ++i) {
            codes_ += QChar('a' + i % 26) + (i < 26 ? "" : QString::number(i / 26));
            list_ += codes_.back() + "\tName\t" + (i % 5 == 0 ? "1:" : "0:");
        }
    }
    // "All goes to file" fills it.
    ~MonkeyTest() override { std::filesystem::remove(machine_.ownFolder / "Error.Log"); }

    /// Windows on the screen but the two that are not modal
    static QStringList Windows() {
        QStringList names;
        for (const QWidget* const window : QApplication::topLevelWidgets()) {
            const QString name = window->objectName();
            const bool mayStay = name == "frmDebug" || name == "HelpViewer" || name.isEmpty();
            if (window->isVisible() && !mayStay) names += name;
        }
        return names;
    }

    void MessageBox(Monkey& monkey, QWidget&);
    void Calendar(Monkey& monkey, QWidget& owner);
    void Calculator(Monkey& monkey, QWidget&);
    void Palette(Monkey& monkey, QWidget& owner);
    void Selection(Monkey& monkey, QWidget& owner);
    void Console(Monkey& monkey, QWidget&);
    void Help(Monkey& monkey, QWidget&);
    void Fields(Monkey& monkey, QWidget&);

    template <void (MonkeyTest::*Open)(Monkey&, QWidget&)>
    MonkeyCall CallOf(const char* name, const char* ownKeys) {
        return {name, ownKeys,
                [this](Monkey& monkey, QWidget& owner) { (this->*Open)(monkey, owner); }};
    }

    QString list_ = "H:";
    QStringList codes_;
    const HelpFile help_{40};
};

void MonkeyTest::MessageBox(Monkey& monkey, QWidget&) {
    const QString prompts[] = {QString("Go on?\r\n").repeated(150), "Go on?", ""};
    const auto set = static_cast<ButtonsChoice>(monkey.Below(11));
    const auto answer = utils_->ShowMsgBox(prompts[monkey.Below(3)], set, mbQuestion, u"Visit",
                                           mbWhite, mb9, false, monkey.Below(10) == 0 ? 1 : 0);
    auto legal = ButtonSetOf(set).results;
    if (set == mbNoButtons) legal.fill(mbOK);
    // Boxes without a close box are not answered when the application quits or the owner goes.
    EXPECT_TRUE(answer == kNotAnswered || answer == kClosedByCountdown ||
                std::ranges::count(legal, answer) > 0)
        << set << ' ' << answer;
}

void MonkeyTest::Calendar(Monkey& monkey, QWidget& owner) {
    const char16_t* const days[] = {u"12/31/9999", u"3/7/2004", u""};
    const auto day = ToQString(utils_->ShowCalendarAndCalculateCoordinates(
        Beside(&owner), days[monkey.Below(3)], u"", AsOwnerForm(&owner)));
    EXPECT_EQ(day, QDate::fromString(day, "MM/dd/yyyy").toString("MM/dd/yyyy"));
}

void MonkeyTest::Calculator(Monkey& monkey, QWidget&) {
    const auto text = ToQString(utils_->Calculate(monkey.Below(2) == 0 ? u"12.345" : u""));
    // Any text in the box can be edited: "-5", "1E+16" and "ERROR".
    EXPECT_TRUE(QRegularExpression("^[-+.0-9ERO]*$").match(text).hasMatch()) << text.toStdString();
}

void MonkeyTest::Palette(Monkey&, QWidget& owner) {
    const auto chosen =
        ToQString(utils_->ShowColorAndCalculateCoordinates(Beside(&owner), AsOwnerForm(&owner)));
    const int i = chosen.section('\t', 1).toInt();
    EXPECT_TRUE(chosen.isEmpty() || (i >= 1 && i <= 58 && i % 7 != 0)) << i;
    EXPECT_TRUE(chosen.isEmpty() || chosen == QString("%1\t%2").arg(i * 1000).arg(i)) << i;
}

void MonkeyTest::Selection(Monkey& monkey, QWidget& owner) {
    const QString before = monkey.Below(2) == 0 ? "d,c1" : "";
    std::u16string typed = monkey.Below(3) == 0 ? u"b" : u"";
    const bool active = monkey.Below(2) == 0;
    const auto chosen = ToQString(utils_->ShowSelectionGridAndCalculateCoordinates(
        u"Codes", list_, before, Beside(&owner), AsOwnerForm(&owner), typed, active));
    EXPECT_EQ(typed, u"");
    // A click on the header accepts the typed text as it is.
    if (chosen == "CANCEL" || chosen == before || monkey.HasJust("SelectGridHeader")) return;
    for (const QString& code : chosen.split(',', Qt::SkipEmptyParts)) {
        EXPECT_TRUE(codes_.contains(code) && (!active || codes_.indexOf(code) % 5 > 0))
            << chosen.toStdString();
    }
}

void MonkeyTest::Console(Monkey& monkey, QWidget&) {
    utils_->ShowInDebug(u"line");
    if (OpenDialog() == nullptr) monkey.PlayWith(Window("frmDebug"));
}

void MonkeyTest::Help(Monkey& monkey, QWidget&) {
    utils_->ShowHelp(0, monkey.Below(2) == 0 ? 100 : 200, help_.Path().u16string());
    if (OpenDialog() == nullptr) monkey.PlayWith(Window("HelpViewer"));
}

void MonkeyTest::Fields(Monkey& monkey, QWidget&) {
    if (OpenDialog() != nullptr) return;
    QWidget form;
    form.setObjectName("form");
    QVBoxLayout rows(&form);
    QLineEdit plain, amount, from, locked("$1,234.50");
    CurrencyLineEdit to(AmountSign::Signed);
    for (QLineEdit* const line :
         std::initializer_list<QLineEdit*>{&plain, &amount, &from, &to, &locked}) {
        rows.addWidget(line);
    }
    for (QLineEdit* const line : {&amount, &from, &locked}) MakeCurrencyField(line);
    CheckCurrencyRange(&from, &to, u"From", u"To");
    locked.setReadOnly(true);
    if (monkey.Below(5) == 0) to.setText("$-1,234,567.89");
    form.show();
    monkey.PlayWith(form);
    EXPECT_EQ(locked.text(), "$1,234.50");
    for (QLineEdit* const line : {&amount, &from, static_cast<QLineEdit*>(&to)}) {
        const QString text = line->text();
        const auto bare = BareAmount(text, AmountSign::Signed);
        const bool isShown = text.isEmpty() || text == "0.00" ||
                             (bare && text == ToQString(u"$" + FormatAmount(*bare)));
        EXPECT_TRUE(isShown || line == form.focusWidget()) << line->y() << text.toStdString();
        EXPECT_TRUE(isShown || IsTypedAmount(text, AmountSign::Signed)) << text.toStdString();
    }
}

TEST_P(MonkeyTest, BreaksNothing) {
    constexpr int kActs = 6000;
    Monkey monkey(GetParam(), kActs,
                  {CallOf<&MonkeyTest::MessageBox>("message box", "BFGJKLMPQTUVWXZ"),
                   CallOf<&MonkeyTest::Calendar>("calendar", "T2024"),
                   CallOf<&MonkeyTest::Calculator>("calculator", "0123456789+-*/=./0="),
                   CallOf<&MonkeyTest::Palette>("palette", "XYZ"),
                   CallOf<&MonkeyTest::Selection>("selection", "ABCDE 12 A1,"),
                   CallOf<&MonkeyTest::Console>("console", "LINE"),
                   CallOf<&MonkeyTest::Help>("help", "BILLS"),
                   CallOf<&MonkeyTest::Fields>("fields", "0123456789.-+")});
    monkey.Play();
    EXPECT_EQ(Windows(), QStringList()) << monkey.Trail();
}

std::vector<unsigned> Seeds() {
    const QList<QByteArray> range = qgetenv("HALVEK_SEEDS").split('-');
    if (range.size() < 2) return {1, 2, 3, 4, 5};
    std::vector<unsigned> seeds;
    for (unsigned seed = range[0].toUInt(); seed <= range[1].toUInt(); ++seed)
        seeds.push_back(seed);
    return seeds;
}

INSTANTIATE_TEST_SUITE_P(Seeds, MonkeyTest, ::testing::ValuesIn(Seeds()));

}  // namespace
}  // namespace halvek
