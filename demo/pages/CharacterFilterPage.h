// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"
#include "widgets/CallBox.h"

namespace frontdesk {

/// What may be typed and stored: RemoveUnwantedChars, RemoveUnprintableChars, IsAlpha,
/// IsUnwantedChar and IsDateChar.
class CharacterFilterPage : public Page {
  public:
    explicit CharacterFilterPage(Desk& desk);

    void Play(Tour& tour) override;

  private:
    void PlayTexts(Tour& tour);
    void PlayMessages(Tour& tour);

    CallBox* removeUnwantedChars_;
    CallBox* removeUnprintableChars_;
    CallBox* isAlpha_;
    CallBox* isUnwantedChar_;
    CallBox* isDateChar_;
};

}  // namespace frontdesk
