// SPDX-License-Identifier: MIT
#pragma once

#include "CallLog.h"

#include <halvekutils/core/Utils.h>

#include <QList>

#include <memory>

namespace frontdesk {

/// The accounts that are open at the desk, in the library's registry of windows: all are shown in
/// the one window, so an account's number is its handle.
class OpenAccounts {
  public:
    OpenAccounts(std::shared_ptr<halvek::Utils> utils, CallLog& calls);

    /// Numbers in the order in which they were opened.
    QList<int> Numbers() const;
    /// Adds an account that is not open yet.
    void Add(int number);
    void Remove(int number);
    void Clear();

  private:
    std::shared_ptr<halvek::Utils> utils_;
    CallLog& calls_;
};

}  // namespace frontdesk
