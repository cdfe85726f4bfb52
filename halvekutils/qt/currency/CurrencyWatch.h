// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>

#include <vector>

namespace halvek {

class CurrencyFilter;

/// The one event filter on the application for all currency fields. The fields that are typed in
/// get their keys and the loss of the focus here, before delegates of tables and mappers commit
/// their text; and buttons, shortcuts and menus ask them first.
class CurrencyWatch : public QObject {
    Q_OBJECT

  public:
    /// The filter, made at the first call in the life of an application object.
    static CurrencyWatch& OfApplication();

    void Add(CurrencyFilter& field);
    void Remove(const CurrencyFilter& field);
    /// The fields that are watched at the moment.
    std::vector<QPointer<CurrencyFilter>> Fields() const { return fields_; }

    /// The click that took the focus from a field which keeps it does nothing else.
    void RefuseThisPress();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    explicit CurrencyWatch(QObject* parent);
    bool Filter(QObject& watched, QEvent& event);

    std::vector<QPointer<CurrencyFilter>> fields_;
    bool refusesPress_ = false;
};

}  // namespace halvek
