// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/core/Forms.h>
#include <halvekutils/platform/Desktop.h>
#include <halvekutils/platform/Machine.h>

namespace halvek {

/// The desktop on which the library's dialogs open: real windows or a script that answers.
///
/// One is installed at a time. Without one, everything but the dialogs works.
class HALVEK_EXPORT Platform : public Desktop, public Forms {
  public:
    ~Platform() override;

    /// The installed platform. Throws ObjectNotSet when there is none, and InvalidArgument off the
    /// user-interface thread.
    static Platform& Installed();

  protected:
    Platform();
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;

    /// Makes this the installed platform, for derived classes that are ready to work.
    void Install();
    /// Restores the previous platform; for the start of a derived destructor.
    void Uninstall() noexcept;

  private:
    Platform* before_ = nullptr;
};

/// Gives the library another machine for a while, with a stopped clock or a test's own folder.
///
/// @code{.cpp}
/// MyMachine machine;
/// UseMachine use(machine);
/// @endcode
class HALVEK_EXPORT UseMachine {
  public:
    /// Installs a machine, which outlives this object.
    explicit UseMachine(Machine& machine);
    ~UseMachine();
    UseMachine(const UseMachine&) = delete;
    UseMachine& operator=(const UseMachine&) = delete;

  private:
    Machine* before_;
};

}  // namespace halvek
