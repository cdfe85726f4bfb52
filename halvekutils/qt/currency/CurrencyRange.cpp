// SPDX-License-Identifier: MIT
#include <halvekutils/currency/CurrencyEvents.h>
#include <halvekutils/platform/TextField.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/currency/CurrencyFilter.h>
#include <halvekutils/qt/currency/CurrencyRange.h>

#include <memory>
#include <vector>

namespace halvek {

namespace {

struct Limits {
    QString lower;
    QString upper;
    CurrencyRange range;
};

std::vector<Limits> LimitsOf(const QLineEdit& line) {
    std::vector<Limits> limits;
    for (const CurrencyFilter* const field : line.window()->findChildren<CurrencyFilter*>()) {
        const QLineEdit* const to = field->Line();
        const CurrencyRange& range = field->Range();
        if (to == nullptr || range.from == nullptr) continue;
        if (to == &line || range.from == &line) {
            limits.push_back({range.from->text(), to->text(), range});
        }
    }
    return limits;
}

}  // namespace

bool IsInOrder(QLineEdit& line, const CurrencyEvents& events) {
    const CurrencyEvents handlers = events;
    const auto field = std::make_shared<TextField>(line.text());
    bool cancel = false;
    for (const auto& [lower, upper, range] : LimitsOf(line)) {
        handlers.CheckRange(field, lower, upper, range.lblMin, range.lblMax, cancel);
        if (cancel) return false;
    }
    return true;
}

}  // namespace halvek
