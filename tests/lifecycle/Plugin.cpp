// SPDX-License-Identifier: MIT
// A host's plugin that uses the library; LifeCycle.cpp loads and unloads it.
#include <halvekutils/core/Utils.h>
#include <halvekutils/qt/QtPlatform.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <cstdlib>

using namespace halvek;

namespace {

std::shared_ptr<Utils> Session(const char16_t* log) {
    auto utils = Utils::Create();
    utils->InitUtils(log, u"Front Desk", u"test", false, u"1");
    return utils;
}

/// Logs at the end of the process, when no other static object of the plugin is left.
struct LastWord {
    std::shared_ptr<Utils> utils;
    ~LastWord() {
        if (utils) utils->LogError(u"the last word");
    }
};
LastWord lastWord;

}  // namespace

extern "C" {

/// Shows a message box that is closed as soon as it is open; returns its result.
HALVEK_EXPORT std::int32_t ShowBox(const char16_t* log) {
    const QtPlatform desktop;
    const auto utils = Session(log);
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    return utils->ShowMsgBox(u"Post $25.00?", mbOkCancel, mbQuestion, u"Payments");
}

/// Ends the process while a message box is open.
HALVEK_EXPORT void ExitInBox(const char16_t* log) {
    const QtPlatform desktop;
    lastWord.utils = Session(log);
    QTimer::singleShot(0, [] { std::exit(3); });
    lastWord.utils->ShowMsgBox(u"Post $25.00?", mbOkCancel, mbQuestion, u"Payments");
}

HALVEK_EXPORT void Log(const char16_t* log, const char16_t* line) {
    Session(log)->LogError(line);
}
}
