// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The 300 providers of a practice as its server sends them, by name: PATEG is Patel, Grace.
QString ProviderList();

/// Three kinds of insurance, the last one deleted.
QString InsuranceList();
