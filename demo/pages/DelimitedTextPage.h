// SPDX-License-Identifier: MIT
#pragma once

#include "Desk.h"
#include "Page.h"
#include "widgets/CallBox.h"

namespace frontdesk {

/// Texts cut at delimiters: SplitStr, StrToArr, CountInstances, ChunkStrToArr and SplitLeftRight.
class DelimitedTextPage : public Page {
  public:
    explicit DelimitedTextPage(Desk& desk);

    void Play(Tour& tour) override;

  private:
    CallBox* splitStr_;
    CallBox* strToArr_;
    CallBox* chunkStrToArr_;
    CallBox* countInstances_;
    CallBox* splitLeftRight_;
};

}  // namespace frontdesk
