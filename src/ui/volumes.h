// The places of the machine that hold files, as the system lists them.
#pragma once

#include <vector>

#include "base/platform.h"

namespace ui {

/// The user's own directory, the whole machine, then media and network drives by their place.
std::vector<base::Volume> volumes();

}  // namespace ui
