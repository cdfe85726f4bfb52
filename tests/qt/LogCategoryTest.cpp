// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/QtText.h>

#include <QLineEdit>
#include <QLoggingCategory>
#include <QStringList>

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

class LogCategory : public CleanState {
  protected:
    LogCategory() : before_(qInstallMessageHandler(PrintAndLog)) { printed.clear(); }
    ~LogCategory() override {
        QLoggingCategory::setFilterRules({});
        qInstallMessageHandler(before_);
    }

  private:
    QtMessageHandler before_;
};

TEST_F(LogCategory, PrintsLoggedLinesInDebugModeAndWhereARuleAsksForThem) {
    const struct {
        bool debugMode;
        const char* rules;
        bool prints;
    } rows[] = {{false, "", false},
                {true, "", true},
                {false, "halvekutils=true", true},
                {true, "halvekutils=false", false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.rules);
        QLoggingCategory::setFilterRules(QLatin1String(row.rules));
        Start(row.debugMode);
        printed.clear();
        utils_->LogError(u"caf\u00E9");
        EXPECT_EQ(printed, row.prints ? QStringList(QStringLiteral("caf\u00E9")) : QStringList());
    }
    utils_->InitUtils((folder_ / "missing/a.log").u16string(), u"", u"", true, u"");
    QLoggingCategory::setFilterRules({});
    printed.clear();
    utils_->LogError(u"lost");
    ASSERT_EQ(printed.size(), 2);
    EXPECT_TRUE(printed[1].contains(QStringLiteral("missing/a.log"))) << qPrintable(printed[1]);
}

TEST_F(LogCategory, TellsOfCurrencyFieldsThatAreUsedOnAnotherThread) {
    Start(true);
    QLineEdit line(QStringLiteral("5"));
    bool left = true;
    std::thread([&] {
        MakeCurrencyField(&line);
        left = LeaveCurrencyFields(&line);
    }).join();
    EXPECT_FALSE(left);
    EXPECT_EQ(line.text(), QStringLiteral("5"));
    const QString fault = QStringLiteral(": Invalid argument: not the user-interface thread");
    EXPECT_EQ(printed, QStringList({QStringLiteral("ERR in MakeCurrencyField") + fault,
                                    QStringLiteral("ERR in LeaveCurrencyFields") + fault}));
}

}  // namespace
}  // namespace halvek
