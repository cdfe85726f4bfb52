// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"

#include <QString>
#include <QWidget>

#include <cstdint>

namespace frontdesk {

/// The rows of the registry's table.
enum RegistryRow : std::int32_t { kTypeRow, kHandleRow };

/// A small top-level window of the client, listed in the library's registry while it is open.
///
/// Deletes itself when it is closed.
class ClientWindow : public QWidget {
  public:
    /// @param type  as the registry names it: PATIENT, REPORT, ...
    ClientWindow(Desk& desk, const QString& type, const QString& title);

    /// The open window with a handle of the registry; null when there is none.
    static ClientWindow* Find(std::int32_t handle);

    static void CloseAll();

    std::int32_t Handle() const { return static_cast<std::int32_t>(winId()); }
    void BringForward();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    Desk& desk_;
};

}  // namespace frontdesk
