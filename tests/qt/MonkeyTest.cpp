// SPDX-License-Identifier: MIT
#include "tests/qt/FormTest.h"
#include "tests/qt/Monkey.h"

#include <halvekutils/currency/AmountText.h>
#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/CurrencyLineEdit.h>
#include <halvekutils/qt/QtText.h>

namespace halvek {
namespace {

/// Plays with currency fields, which hold amounts whatever happens to them.
void Fields(Monkey& monkey) {
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
    WaitUntilClosed(form);
    QCoreApplication::processEvents();
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

/// The stage's calls and currency fields
std::vector<MonkeyCall> MakeCalls() {
    // The keys that mean something to each kind, and how often it comes
    static const std::tuple<const char*, const char*, std::size_t> kKinds[] = {
        {"box", "BFGJKLMPQTUVWXZ", 1},
        {"calendar", "T2024", 1},
        {"calculator", "0123456789+-*/=./0=", 1},
        {"palette", "XYZ", 1},
        {"list", "ABCDEMPSW 12 A1,", 1},
        {"console", "LINE", 2},
        {"help", "BILLS", 3}};
    std::vector<MonkeyCall> made(
        6, {"fields", "0123456789.-+", [](Monkey& monkey, QWidget&) { Fields(monkey); }});
    for (const auto& [kind, keys, times] : kKinds) {
        for (const ::Call& call : Calls()) {
            if (!call.name.startsWith(kind) || call.legal.isEmpty()) continue;
            // Boxes without a close box are not answered when the application quits.
            const QRegularExpression legal("^(0|" + call.legal + ")$");
            const auto open = [=](Monkey& monkey, QWidget& owner) {
                const int before = monkey.Step();
                const QString given = call.open(owner);
                EXPECT_TRUE(legal.match(given).hasMatch() || monkey.HeaderClicked() >= before)
                    << call.name.toStdString() << " gave " << given.toStdString();
            };
            made.insert(made.end(), times, {call.name, keys, open});
        }
    }
    return made;
}

/// Whatever happens to windows, each call gives a legal result and leaves no window open. The seeds
/// of HALVEK_SEEDS ("100-299") replace the usual ones.
struct MonkeyTest : FormTest, ::testing::WithParamInterface<unsigned> {};

TEST_P(MonkeyTest, BreaksNothing) {
    constexpr int kActs = 6000;
    Start(true);
    Monkey monkey(GetParam(), kActs, MakeCalls());
    monkey.Play();
    EXPECT_EQ(OpenDialog(), nullptr) << monkey.Trail();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << monkey.Trail();
    TakeLog();  // "All goes to file" fills it.
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
