// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/QtText.h>

#include <QLineEdit>
#include <QLoggingCategory>

#include <thread>

namespace halvek {
namespace {

QStringList printed;

/// A host that also logs what its program prints.
void PrintAndLog(QtMsgType, const QMessageLogContext& context, const QString& text) {
    if (qstrcmp(context.category, "halvekutils") != 0) return;
    printed << text;
    Utils::Create()->LogError(text);
}

struct LogCategory : CleanState {
    ~LogCategory() override {
        QLoggingCategory::setFilterRules({});
        qInstallMessageHandler(before_);
    }
    QStringList PrintedAt(TextIn line) {
        printed.clear();
        utils_->LogError(line);
        return printed;
    }

    const QtMessageHandler before_ = qInstallMessageHandler(PrintAndLog);
};

TEST_F(LogCategory, PrintsLoggedLinesInDebugModeAndWhereARuleAsksForThem) {
    const std::tuple<bool, const char*, QStringList> rows[] = {
        {false, "", {}},
        {true, "", {"caf\u00E9"}},
        {false, "halvekutils=true", {"caf\u00E9"}},
        {true, "halvekutils=false", {}}};
    for (const auto& [debugMode, rules, lines] : rows) {
        QLoggingCategory::setFilterRules(rules);
        Start(debugMode);
        EXPECT_EQ(PrintedAt(u"caf\u00E9"), lines) << rules;
    }
    utils_->InitUtils((folder_ / "missing/a.log").u16string(), u"", u"", true, u"");
    QLoggingCategory::setFilterRules({});
    const QStringList lost = PrintedAt(u"lost");
    ASSERT_EQ(lost.size(), 2);
    EXPECT_TRUE(lost[1].contains("missing/a.log")) << qPrintable(lost[1]);
}

TEST_F(LogCategory, TellsOfCurrencyFieldsThatAreUsedOnAnotherThread) {
    Start(true);
    printed.clear();
    QLineEdit line("5");
    bool left = true;
    std::thread([&] {
        MakeCurrencyField(&line);
        left = LeaveCurrencyFields(&line);
    }).join();
    EXPECT_FALSE(left);
    EXPECT_EQ(line.text(), "5");
    const QString fault = ": Invalid argument: not the user-interface thread";
    EXPECT_EQ(printed, QStringList({"ERR in MakeCurrencyField" + fault,
                                    "ERR in LeaveCurrencyFields" + fault}));
}

}  // namespace
}  // namespace halvek
