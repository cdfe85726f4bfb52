// SPDX-License-Identifier: MIT
#include "OpenAccounts.h"

#include <halvekutils/qt/QtText.h>

#include <cstdint>
#include <utility>

namespace frontdesk {

namespace {

constexpr char kType[] = "ACCOUNT";
constexpr std::int32_t kHandleRow = 1;  // of the registry's table; row 0 holds the types

}  // namespace

OpenAccounts::OpenAccounts(std::shared_ptr<halvek::Utils> utils, CallLog& calls)
    : utils_(std::move(utils)), calls_(calls) {}

QList<int> OpenAccounts::Numbers() const {
    QList<int> numbers;
    const halvek::StringTable windows = utils_->OpenWindows()->GetAll();
    for (std::int32_t index = 1; index < windows.Columns(); ++index) {
        numbers << halvek::ToQString(windows.At(kHandleRow, index)).toInt();
    }
    return numbers;
}

void OpenAccounts::Add(int number) {
    if (Numbers().contains(number)) return;
    const bool added = utils_->OpenWindows()->AddItem(QString(kType), number);
    calls_.Add("OpenWindows()->AddItem", {QString(kType), number}, added);
}

void OpenAccounts::Remove(int number) {
    const auto index = static_cast<std::int32_t>(Numbers().indexOf(number) + 1);
    if (index == 0) return;
    const bool removed = utils_->OpenWindows()->RemoveItem(index);
    calls_.Add("OpenWindows()->RemoveItem", {index}, removed);
}

void OpenAccounts::Clear() {
    utils_->OpenWindows()->ClearAll();
    calls_.Add("OpenWindows()->ClearAll");
}

}  // namespace frontdesk
