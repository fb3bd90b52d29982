// The user's own program directory on first use: created with the delivered files, so that the first start prices
// something.
#pragma once

#include <string>

namespace lifecycle {

/// Creates `directory` with the sample price list unless it is there already; it appears whole or not at all. True when
/// it was created. A failure names the directory.
bool createOnFirstUse(const std::string& directory);

}  // namespace lifecycle
