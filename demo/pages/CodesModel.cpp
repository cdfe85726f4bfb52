// SPDX-License-Identifier: MIT
#include "pages/CodesModel.h"

#include <halvekutils/qt/QtText.h>

#include <QString>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace frontdesk {

using halvek::CodeDefinition;
using halvek::ToQString;

namespace {

constexpr QChar kSortSeparator(230);

QString Tick(bool flag) {
    return flag ? "Yes" : QString();
}

struct Column {
    const char* header;
    QString (*text)(const CodeDefinition& code);
};

constexpr Column kColumns[] = {
    {"Key", [](const CodeDefinition& code) { return ToQString(code.CodeKey()); }},
    {"Description", [](const CodeDefinition& code) { return ToQString(code.CodeDescription()); }},
    {"Lookup", [](const CodeDefinition& code) { return Tick(code.CodeHasLookup()); }},
    {"In menu", [](const CodeDefinition& code) { return Tick(code.IncludedInMenu()); }},
    {"Report", [](const CodeDefinition& code) { return ToQString(code.ReportName()); }},
    {"Sorted by",
     [](const CodeDefinition& code) {
         return ToQString(code.SortByList()).split(kSortSeparator, Qt::SkipEmptyParts).join(", ");
     }},
    {"Per entity", [](const CodeDefinition& code) { return Tick(code.IsEntitySpecific()); }},
    {"System", [](const CodeDefinition& code) { return Tick(code.IsSystemCode()); }},
};

}  // namespace

void CodesModel::SetCodes(const std::shared_ptr<halvek::CodesCollection>& codes) {
    beginResetModel();
    codes_.clear();
    if (codes != nullptr) {
        for (const auto& code : codes) codes_.push_back(code);
    }
    endResetModel();
}

int CodesModel::RowOf(const std::shared_ptr<CodeDefinition>& code) const {
    const auto found = std::ranges::find(codes_, code);
    return found == codes_.end() ? -1 : static_cast<int>(found - codes_.begin());
}

int CodesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(codes_.size());
}

int CodesModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(std::size(kColumns));
}

QVariant CodesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole) return {};
    const auto& code = codes_[static_cast<std::size_t>(index.row())];
    return kColumns[index.column()].text(*code);
}

QVariant CodesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return int{Qt::AlignLeft | Qt::AlignVCenter};
    return role == Qt::DisplayRole ? QVariant(kColumns[section].header) : QVariant();
}

}  // namespace frontdesk
