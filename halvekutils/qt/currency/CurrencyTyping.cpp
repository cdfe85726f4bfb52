// SPDX-License-Identifier: MIT
#include <halvekutils/currency/CurrencyEvents.h>
#include <halvekutils/platform/Beep.h>
#include <halvekutils/platform/TextField.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/currency/CurrencyKeyEvent.h>
#include <halvekutils/qt/currency/CurrencyTyping.h>
#include <halvekutils/qt/helpers/LineEditCopy.h>

#include <QPointer>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

namespace halvek {

namespace {

bool IsSame(const TextField& one, const TextField& other) {
    return one.Text() == other.Text() && one.SelStart() == other.SelStart() &&
           one.SelLength() == other.SelLength();
}

void InsertKey(TextField& field, char16_t letter) {
    const std::int32_t start = field.SelStart();
    const auto length = static_cast<std::size_t>(field.SelLength());
    field.Text(field.Text().replace(static_cast<std::size_t>(start), length, 1, letter));
    field.SelStart(start + 1);
}

}  // namespace

bool TypeInto(QLineEdit& line, char16_t letter, const CurrencyEvents& events, AmountSign sign) {
    const std::shared_ptr<TextField> field = CopyOf(line);
    const TextField before = *field;
    auto key = static_cast<std::int16_t>(letter);
    events.PressKey(field, key);
    if (key == kBackspace) return false;
    if (key != 0) InsertKey(*field, letter);
    const bool changes = field->Text() != before.Text();
    if (changes) events.Change(field);
    const bool isRefused = changes ? !IsTypedAmount(field->Text(), sign)
                                   : letter != kBackspace && IsSame(*field, before);
    if (isRefused) {
        Beep();
        return true;
    }
    const QPointer<QLineEdit> alive(&line);
    if (field->Text() != before.Text()) Edit(line, ToQString(field->Text()));
    if (alive != nullptr) Select(line, field->SelStart(), field->SelLength());
    return true;
}

bool InsertInto(QLineEdit& line, const QString& piece, AmountSign sign) {
    if (line.isReadOnly()) return false;
    const int start = CaretOf(line);
    const QString result = line.text().replace(start, line.selectionLength(), piece);
    const std::optional<std::u16string> typed = TypedAmount(result, sign);
    if (!typed) {
        Beep();
        return false;
    }
    const QString text = ToQString(*typed);
    const auto behind = text == result ? start + piece.size() : text.size();
    const QPointer<QLineEdit> alive(&line);
    if (text != line.text()) Edit(line, text);
    if (alive != nullptr) line.setCursorPosition(static_cast<int>(behind));
    return true;
}

BareSelection BareSelectionOf(const QLineEdit& line) {
    const QString text = line.text();
    const int caret = CaretOf(line);
    const int selected = line.selectionLength();
    const std::optional<std::u16string> bare = BareAmount(text, AmountSign::Signed);
    if (!bare || IsTypedAmount(text, AmountSign::Signed)) return {text, caret, selected};
    const auto bareLengthOf = [&](int length) {
        const auto isDropped = [](QChar c) { return QStringLiteral("$, \t)").contains(c); };
        return length - static_cast<int>(std::ranges::count_if(text.left(length), isDropped));
    };
    const int start = bareLengthOf(caret);
    return {ToQString(*bare), start, bareLengthOf(caret + selected) - start};
}

}  // namespace halvek
