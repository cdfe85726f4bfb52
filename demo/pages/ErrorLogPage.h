// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace frontdesk {

/// Lines written to the error log, and the end of its file.
class ErrorLogPage : public Page {
  public:
    explicit ErrorLogPage(Desk& desk);

    void Refresh() override;
    void Play(Tour& tour) override;

  private:
    QLayout* MakeMessage();
    QLayout* MakeTailHeading();
    void LogError();

    Desk& desk_;
    QLineEdit message_;
    QLabel tailLabel_;
    QPlainTextEdit* tail_;
};

}  // namespace frontdesk
