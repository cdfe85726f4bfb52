// SPDX-License-Identifier: MIT
#include "HostWindow.h"

#include <halvekutils/qt/QtPlatform.h>

#include <QApplication>

using namespace halvek;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    const QtPlatform desktop;
    const HostWindow window;
    window.utils->InitUtils(u"/dev/null/none", u"Consumer", u"test", false, u"1");
    const auto answer = window.utils->ShowMsgBox(QString("1 second"), mbNoButtons, mbNoIcon, u"",
                                                 mbWhite, mb9, false, 1);
    return answer == kClosedByCountdown ? 0 : 1;
}
