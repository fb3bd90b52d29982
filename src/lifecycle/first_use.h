// The user's own program directory on first use: created with the delivered files, so that the first start prices
// something.
#pragma once

#include <string>

#include "base/profile_file.h"

namespace lifecycle {

/// The price list of a new directory.
base::ProfileFile samplePriceList();

/// True while the user's own `directory` has not been created.
bool isFirstUse(const std::string& directory);

/// Creates `directory` with the sample price list unless it is there already; it appears whole or not at all. A
/// failure names the directory.
void createOnFirstUse(const std::string& directory);

}  // namespace lifecycle
