// SPDX-License-Identifier: MIT
#include "Rows.h"

#include <halvekutils/platform/TextField.h>

#include <QDate>
#include <QLocale>
#include <QString>

#include <chrono>
#include <memory>

namespace bench {

namespace {

using namespace halvek;

constexpr int kCount = 1000;  // dates and amounts in one go

void WriteDigits(char16_t* out, unsigned number, int digits) {
    for (int i = digits - 1; i >= 0; --i, number /= 10) {
        out[i] = static_cast<char16_t>(u'0' + number % 10);
    }
}

/// Calendar arithmetic and the ten characters of "mm/dd/yyyy".
std::u16string PlainDate(int day) {
    using namespace std::chrono;
    const year_month_day date(sys_days(year(1840) / 12 / 31) + days(day));
    std::u16string text = u"00/00/0000";
    WriteDigits(&text[0], static_cast<unsigned>(date.month()), 2);
    WriteDigits(&text[3], static_cast<unsigned>(date.day()), 2);
    WriteDigits(&text[6], static_cast<unsigned>(static_cast<int>(date.year())), 4);
    return text;
}

Case ConvertDates(double) {
    const auto texts = std::make_shared<std::vector<std::u16string>>();
    for (int i = 0; i < kCount; ++i) {
        const QString number = QString::number(40'000 + i * 30);
        texts->push_back(number.toStdU16String());
    }
    return {.floor =
                [] {
                    for (int i = 0; i < kCount; ++i) {
                        const std::u16string text = PlainDate(40'000 + i * 30);
                        Use(&text);
                    }
                },
            .ours =
                [texts] {
                    for (const std::u16string& day : *texts) {
                        const std::u16string text = Session().ConvertHDate(day);
                        Use(&text);
                    }
                },
            .peer =
                [] {
                    const QDate zero(1840, 12, 31);
                    for (int i = 0; i < kCount; ++i) {
                        const QString text = zero.addDays(40'000 + i * 30).toString("MM/dd/yyyy");
                        Use(&text);
                    }
                }};
}

Case ValidateAmounts(double) {
    const auto field = std::make_shared<TextField>();
    const auto typed = std::make_shared<std::vector<std::u16string>>();
    for (int i = 0; i < kCount; ++i) {
        typed->push_back((QString::number(i * 1234 % 100'000) + ".50").toStdU16String());
    }
    const QLocale locale(QLocale::English, QLocale::UnitedStates);
    return {.floor =
                [typed] {
                    for (const std::u16string& amount : *typed) {
                        const std::u16string text = u'$' + amount;
                        Use(&text);
                    }
                },
            .ours =
                [typed, field] {
                    bool cancel = false;
                    for (const std::u16string& amount : *typed) {
                        field->Text(amount);
                        Session().OnCurrencyCtrValidate(field, cancel);
                        Use(field.get());
                    }
                },
            .peer =
                [typed, locale] {
                    for (const std::u16string& amount : *typed) {
                        const double number = QStringView(amount).toDouble();
                        const QString text = locale.toCurrencyString(number, "$", 2);
                        Use(&text);
                    }
                }};
}

}  // namespace

Rows ValueRows() {
    return {{"currency text, validate 1,000 amounts", "write the digits", 0,
             "QLocale::toCurrencyString", 3, ValidateAmounts, false},
            {"ConvertHDate to text, 1,000 dates", "calendar arithmetic and ten characters", 3,
             "QDate::toString", 8, ConvertDates, false}};
}

}  // namespace bench
