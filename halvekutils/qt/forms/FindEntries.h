// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/qt/helpers/FindTarget.h>
#include <halvekutils/selection/SelectGrid.h>

namespace halvek {

/// The entries of a selection dialog: the current one goes to what is found, Enter ticks or unticks
/// it.
class FindEntries : public FindTarget {
  public:
    /// @param grid  shows the entries
    FindEntries(SelectGrid& rules, QWidget& grid) : rules_(rules), grid_(grid) {}

    QWidget& Widget() override { return grid_; }
    void Find(const QString& word) override { rules_.Find(word); }
    void FindNext(const QString&, bool backwards) override { rules_.FindNext(backwards); }
    bool Take() override { return rules_.ToggleFound(); }
    Outcome Now() const override;
    QString LongestText() const override;

  private:
    SelectGrid& rules_;
    QWidget& grid_;
};

}  // namespace halvek
