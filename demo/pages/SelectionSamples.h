// SPDX-License-Identifier: MIT
#pragma once

#include "SampleData.h"
#include "Shown.h"

#include <QString>

#include <vector>

namespace frontdesk {

/// The members of Utils that open a selection list.
enum SelectionMember {
    kSelection,
    kSelectionGrid,
    kSelectionBeside,
    kSelectionGridBeside,
};

inline constexpr Named<SelectionMember> kSelectionMembers[] = {
    {kSelection, "ShowSelection"},
    {kSelectionGrid, "ShowSelectionGrid"},
    {kSelectionBeside, "ShowSelectionAndCalculateCoordinates"},
    {kSelectionGridBeside, "ShowSelectionGridAndCalculateCoordinates"},
};

/// The last two open beside a button; the others are given a position.
inline bool IsBeside(SelectionMember member) {
    return member == kSelectionBeside || member == kSelectionGridBeside;
}

/// Only these can leave deleted entries out.
inline bool IsGrid(SelectionMember member) {
    return member == kSelectionGrid || member == kSelectionGridBeside;
}

/// The arguments of those members.
struct SelectionArguments {
    QString listName;
    QString allValues;
    QString selected;
    QString typed = {};
    bool doNotIncludeDeleted = false;
    SelectionMember member = kSelectionGridBeside;
    // In twips; -1 means not given.
    int posLeft = -1;
    int posTopUp = -1;
    int posTopDown = -1;
};

/// A list worth seeing, and its name on the page.
struct SelectionSample {
    QString name;
    SelectionArguments arguments;
};

/// The practice's lists with codes that a visit may hold, and extreme lists.
std::vector<SelectionSample> SelectionSamples(const SampleData& data);

/// Every code of a list in its order, separated by ",".
QString AllCodes(const QString& allValues);

/// The largest list: 100,000 patients, every tenth of them chosen.
SelectionArguments HugeSelection();

}  // namespace frontdesk
