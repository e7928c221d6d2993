#pragma once

#include "core/RegionalSettings.h"

namespace norvane {

/// The machine's regional settings, from the locale that its environment names. Numbers, money and dates may each have
/// a locale of their own. Where none is named, it is not installed, or it is C or en_US, the United States default
/// holds. Two-digit years reach up to 2049. Changes nothing of the process's own locale.
RegionalSettings SystemRegionalSettings();

}  // namespace norvane
