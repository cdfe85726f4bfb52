#pragma once

#include <halvekutils/base/Export.h>
#include <halvekutils/platform/Controls.h>

#include <memory>

class QWidget;

namespace halvek {

/// A widget's window as the form that a dialog is centred on and refreshes; null for null. The
/// widget may be destroyed at any time.
HALVEK_EXPORT std::shared_ptr<OwnerForm> AsOwnerForm(QWidget* window);

}  // namespace halvek
