// SPDX-License-Identifier: MIT
#include "tests/HelpFile.h"
#include "tests/qt/FormTest.h"
#include "tests/qt/Monkey.h"
#include "tests/stage/Calls.h"

#include <halvekutils/currency/AmountText.h>
#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/CurrencyLineEdit.h>
#include <halvekutils/qt/QtText.h>

#include <QRegularExpression>
#include <QVBoxLayout>

namespace halvek {
namespace {

/// Whatever happens to windows, each call gives a legal result and leaves no window open. The seeds
/// of HALVEK_SEEDS ("100-299") replace the usual ones.
struct MonkeyTest : FormTest, ::testing::WithParamInterface<unsigned> {
    MonkeyTest() { utils_->InitUtils(u"", u"", u"", true, u""); }
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

    void Console(Monkey& monkey);
    void Help(Monkey& monkey);
    void Fields(Monkey& monkey);

    /// The stage's dialogs, then the windows that are not modal
    std::vector<MonkeyCall> MakeCalls();

    const HelpFile help_{40};
};

void MonkeyTest::Console(Monkey& monkey) {
    utils_->ShowInDebug(u"line");
    if (OpenDialog() == nullptr) monkey.PlayWith(Window("frmDebug"));
}

void MonkeyTest::Help(Monkey& monkey) {
    utils_->ShowHelp(0, monkey.Below(2) == 0 ? 100 : 200, help_.Path().u16string());
    if (OpenDialog() == nullptr) monkey.PlayWith(Window("HelpViewer"));
}

void MonkeyTest::Fields(Monkey& monkey) {
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
        EXPECT_TRUE(isShown || line == form.focusWidget())
            << line->y() << ' ' << text.toStdString();
        EXPECT_TRUE(isShown || IsTypedAmount(text, AmountSign::Signed)) << text.toStdString();
    }
}

std::vector<MonkeyCall> MonkeyTest::MakeCalls() {
    // The keys that mean something to each kind
    static const std::pair<const char*, const char*> kKinds[] = {
        {"box", "BFGJKLMPQTUVWXZ"},
        {"calendar", "T2024"},
        {"calculator", "0123456789+-*/=./0="},
        {"palette", "XYZ"},
        {"list", "ABCDEMPSW 12 A1,"}};
    std::vector<MonkeyCall> made;
    for (const auto& [kind, keys] : kKinds) {
        for (const ::Call& call : Calls()) {
            if (!call.name.startsWith(kind) || call.legal.isEmpty()) continue;
            // Boxes without a close box are not answered when the application quits.
            const QRegularExpression legal("^(0|" + call.legal + ")$");
            made.push_back({call.name, keys, [=](Monkey& monkey, QWidget& owner) {
                                const QString given = call.open(owner);
                                // A click on the header accepts the typed text as it is.
                                EXPECT_TRUE(legal.match(given).hasMatch() ||
                                            monkey.HasJust("SelectGridHeader"))
                                    << call.name.toStdString() << " gave " << given.toStdString();
                            }});
        }
    }
    const std::size_t dialogs = made.size();
    for (std::size_t i = 0; i < dialogs; i += 9) {
        made.push_back({"console", "LINE", [this](Monkey& monkey, QWidget&) { Console(monkey); }});
        made.push_back({"help", "BILLS", [this](Monkey& monkey, QWidget&) { Help(monkey); }});
        made.push_back(
            {"fields", "0123456789.-+", [this](Monkey& monkey, QWidget&) { Fields(monkey); }});
    }
    return made;
}

TEST_P(MonkeyTest, BreaksNothing) {
    constexpr int kActs = 6000;
    Monkey monkey(GetParam(), kActs, MakeCalls());
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
