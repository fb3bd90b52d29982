// The manual.
#pragma once

#include "base/platform.h"
#include "settings/settings.h"

namespace frame {

/// Opens the manual of the program directory, where a shop keeps its own, otherwise the one that comes with the
/// program. A manual that is missing, or that nothing on the desktop can show, is a Failure.
void openManual(const settings::Paths& paths, base::Platform& platform);

}  // namespace frame
