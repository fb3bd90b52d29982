// Reading the settings that a price needs, without creating or writing anything.
#pragma once

#include "app/settings/settings.h"

namespace app::settings {

/// The settings as the files at `paths` hold them; a missing file or key counts as its creation default. A number that
/// is none is error 13, a count of list entries outside 1 to 105 error 9; both texts name the key and the file.
Settings readForPricing(const Paths& paths);

}  // namespace app::settings
