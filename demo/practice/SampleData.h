// SPDX-License-Identifier: MIT
#pragma once

#include "practice/Database.h"

#include <QString>

namespace frontdesk {

/// Fills an empty file with a practice that does not exist: 2,000 patients, three weeks of 40
/// visits a day, 5,000 codes. One transaction: a client that is killed meanwhile leaves an empty
/// file. Without success, `fault` says why.
bool MakeSamplePractice(Database& database, QString& fault);

}  // namespace frontdesk
