// What the error log wants to know of the machine, asked of Linux and the desktop.
//
// A file, a screen or a printer that is missing leaves its fields empty; nothing here fails.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/system_information.h"

namespace ui {

/// Asks the print system, which may take its time.
base::SystemInformation systemInformation();

/// In bytes. "Free" is what programs can still get, caches of the system included.
struct MemoryFigures {
  std::uint64_t physical = 0;
  std::uint64_t freePhysical = 0;
  std::uint64_t paging = 0;
  std::uint64_t freePaging = 0;

  bool operator==(const MemoryFigures&) const = default;
};

/// Reads the lines of /proc/meminfo; what is missing or no number stays 0.
MemoryFigures memoryFigures(std::string_view meminfo);

struct KernelVersion {
  int major = 0;
  int minor = 0;
  int build = 0;

  bool operator==(const KernelVersion&) const = default;
};

/// Reads the numbers at the beginning of a release such as "6.1.0-13-amd64".
KernelVersion kernelVersion(std::string_view release);

}  // namespace ui
