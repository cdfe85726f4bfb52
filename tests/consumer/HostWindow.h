// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/core/Utils.h>

#include <QWidget>

class HostWindow : public QWidget {
    Q_OBJECT

  public:
    std::shared_ptr<halvek::Utils> utils = halvek::Utils::Create();
};
