// The program's name and version as it tells them.
#pragma once

#include <string>

#include "base/build_values.h"

namespace base {

/// "Tessik" and the version.
inline std::string versionLine() { return std::string("Tessik ") + kVersion; }

}  // namespace base
