// The program's name and version as it tells them.
#pragma once

#include <string>

#include "base/build_values.h"

namespace base {

/// "Tessik" and the version.
inline std::string versionLine() { return std::string("Tessik ") + kVersion; }

/// What stands above the main window, with the document's file where it has one.
inline std::string windowCaption(const std::string& file = {}) {
  return std::string("Tessik v") + kVersion + " " + (file.empty() ? file : "- " + file);
}

}  // namespace base
