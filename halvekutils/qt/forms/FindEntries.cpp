// SPDX-License-Identifier: MIT
#include <halvekutils/qt/forms/FindEntries.h>
#include <halvekutils/qt/forms/SelectGridSpeech.h>

#include <QCoreApplication>

namespace halvek {

namespace {

QString PlaceText(std::int32_t place, std::int32_t count) {
    return QCoreApplication::translate("FindEntries", "%1 of %2").arg(place).arg(count);
}

}  // namespace

FindTarget::Outcome FindEntries::Now() const {
    const std::int32_t count = rules_.FoundCount();
    const std::int32_t place = rules_.FoundPlace();
    if (count == 0) return {true, {}, {}};
    if (place == 0) return {};  // the user has gone elsewhere
    const QString text = PlaceText(place, count);
    return {false, text, SpokenTextOf(rules_) + ", " + text};
}

QString FindEntries::LongestText() const {
    const std::int32_t all = rules_.RowCount() / SelectionList::kRowsPerBand * rules_.ColumnCount();
    return PlaceText(all, all);
}

}  // namespace halvek
