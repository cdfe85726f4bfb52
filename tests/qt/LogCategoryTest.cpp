// SPDX-License-Identifier: MIT
#include "tests/CleanState.h"

#include <halvekutils/qt/QtText.h>

#include <QLoggingCategory>
#include <QStringList>

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

}  // namespace
}  // namespace halvek
