// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>

#include <vector>

namespace halvek {

class CurrencyFilter;

/// The one event filter on the application for all currency fields. Fields being edited get their
/// keys and the loss of the focus here, before delegates of tables and mappers commit their text.
/// Buttons, shortcuts and menus leave the fields here before they act.
class CurrencyWatch : public QObject {
    Q_OBJECT

  public:
    /// The filter, made at the first call in the life of an application object.
    static CurrencyWatch& OfApplication();

    void Add(CurrencyFilter& field);
    void Remove(const CurrencyFilter& field);
    /// The fields being watched.
    std::vector<QPointer<CurrencyFilter>> Fields() const { return fields_; }

    /// Swallows the click that tried to take the focus from a field that keeps it.
    void RefuseThisPress();

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    explicit CurrencyWatch(QObject* parent);
    bool IsRefused(const QEvent& event);
    bool Filter(QObject& watched, QEvent& event);

    std::vector<QPointer<CurrencyFilter>> fields_;
    bool refusesPress_ = false;
    bool refusesMenu_ = false;
};

}  // namespace halvek
