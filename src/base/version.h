// The program's name and version as it tells them.
#pragma once

#include <string>

namespace base {

inline constexpr const char* kVersion = "1.4";

/// "Tessik 1.4".
inline std::string versionLine() { return std::string("Tessik ") + kVersion; }

}  // namespace base
