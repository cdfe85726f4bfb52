// SPDX-License-Identifier: MIT
#include "widgets/LoggedPane.h"

#include <QFontDatabase>

namespace frontdesk {

namespace {

constexpr int kHeight = 56;

}  // namespace

LoggedPane::LoggedPane() {
    setReadOnly(true);
    setTabChangesFocus(true);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setFixedHeight(kHeight);
    setAccessibleName("Logged by the last call");
    setPlaceholderText("The last call logged nothing.");
}

}  // namespace frontdesk
